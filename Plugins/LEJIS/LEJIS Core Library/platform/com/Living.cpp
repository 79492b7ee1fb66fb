#include "platform/com/Living.h"

#ifdef LIST_LIVING_OBJECTS

#include <cxxabi.h>
#include <windows.h>

#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>

namespace platform::living {
namespace {

struct List {
    std::mutex mutex;
    std::map<const void*, ClassOf> objects;
};

// Never destroyed: objects that outlive the program's own end still leave it.
List& Living() {
    static List& list = *new List;
    return list;
}

std::string Readable(const std::type_info& type) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(type.name(), nullptr, nullptr, &status),
                                                           &std::free);
    return status == 0 ? name.get() : type.name();
}

}  // namespace

void Enter(const void* object, ClassOf classOf) noexcept {
    const std::lock_guard lock(Living().mutex);
    Living().objects[object] = classOf;
}

void Leave(const void* object) noexcept {
    const std::lock_guard lock(Living().mutex);
    Living().objects.erase(object);
}

std::vector<std::string> Names() {
    const std::lock_guard lock(Living().mutex);
    std::vector<std::string> names;
    for (const auto& [object, classOf] : Living().objects) names.push_back(Readable(classOf(object)));
    return names;
}

void Report() noexcept {
    for (const std::string& name : Names()) OutputDebugStringA(("Still alive: " + name + "\n").c_str());
}

}  // namespace platform::living

#endif
