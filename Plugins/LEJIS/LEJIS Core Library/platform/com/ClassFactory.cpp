#include "platform/com/ClassFactory.h"

#include "platform/com/Guard.h"
#include "platform/com/Module.h"
#include "platform/ComError.h"

#include <algorithm>

namespace platform {
namespace {

class ClassFactory final : public UnknownObject<IClassFactory> {
public:
    explicit ClassFactory(const CreatableClass& made) : made_(made) {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        return Guard(made_.id, [&] { Check(made_.create()->QueryInterface(iid, object)); });
    }

    STDMETHODIMP LockServer(BOOL lock) override {
        lock ? module::Retain() : module::Release();
        return S_OK;
    }

private:
    const CreatableClass made_;
};

}  // namespace

HRESULT GetClassFactory(std::span<const CreatableClass> classes, REFCLSID classId, REFIID iid,
                        void** factory) noexcept {
    if (!factory) return E_POINTER;
    *factory = nullptr;
    const auto row = std::find_if(classes.begin(), classes.end(), [&](const auto& one) { return one.id == classId; });
    if (row == classes.end()) return CLASS_E_CLASSNOTAVAILABLE;
    return Guard(classId, [&] { Check(Create<ClassFactory>(*row)->QueryInterface(iid, factory)); });
}

}  // namespace platform
