#include "doctor/ClassCheck.h"

#include "doctor/ClassList.h"
#include "doctor/RegistrationCheck.h"
#include "library/Library.h"
#include "library/LibraryError.h"
#include "library/NotRegistered.h"
#include "platform/ComError.h"

namespace lejis_client {
namespace {

constexpr const wchar_t* kClassesNames[] = {L"32-bit classes", L"64-bit classes"};

std::wstring FaultOfCreation(const CLSID& classId) {
    try {
        CreateInstance(classId);
        return {};
    } catch (const NotRegistered&) {
        return L"is not registered";
    } catch (const LibraryError& error) {
        return L"cannot be created: " + error.description;
    }
}

// All classes of one bitness are to be registered in one file.
std::wstring FaultOfRegistration(Bitness bitness, const CLSID& classId) {
    const auto all = RegisteredFile(bitness);
    const auto one = RegisteredFile(bitness, classId);
    if (!one) return L"is not registered";
    if (CompareStringOrdinal(one->c_str(), -1, all->c_str(), -1, TRUE) == CSTR_EQUAL) return {};
    return L"is registered in another file than the others, " + *one;
}

// What is wrong with a class; empty when nothing is.
std::wstring FaultOf(Bitness bitness, const CLSID& classId) {
    const std::wstring fault = bitness == kOwnBitness ? FaultOfCreation(classId) : L"";
    const bool isRegistered = bitness != kOwnBitness || RegisteredFile(bitness);
    return fault.empty() && isRegistered ? FaultOfRegistration(bitness, classId) : fault;
}

}  // namespace

const wchar_t* ClassesNameOf(Bitness bitness) { return kClassesNames[bitness == Bitness::k64]; }

Finding CheckClasses(Bitness bitness, const std::wstring& file) {
    const wchar_t* const subject = ClassesNameOf(bitness);
    const wchar_t* const success = bitness == kOwnBitness ? L" can be created" : L" are registered";
    try {
        const auto classes = CreatableClasses(file);
        for (const ClassEntry& one : classes) {
            const std::wstring fault = FaultOf(bitness, one.id);
            if (!fault.empty()) return {subject, Health::kFailed, one.name + L' ' + fault, InstallAgain(bitness)};
        }
        return {subject, Health::kOk, L"all " + std::to_wstring(classes.size()) + success, {}};
    } catch (const platform::ComError& error) {
        return {subject, Health::kFailed, L"the type library cannot be read: " + error.Description(),
                InstallAgain(bitness)};
    }
}

}  // namespace lejis_client
