#include "world/Creation.h"

#include "platform/ComError.h"

// The DLL's export, which is part of this program.
STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** factory);

using Microsoft::WRL::ComPtr;

namespace fuzzing {

ComPtr<IUnknown> CreateObject(REFCLSID classId) {
    ComPtr<IClassFactory> factory;
    ComPtr<IUnknown> object;
    platform::Check(DllGetClassObject(classId, IID_PPV_ARGS(factory.GetAddressOf())));
    platform::Check(factory->CreateInstance(nullptr, IID_PPV_ARGS(object.GetAddressOf())));
    return object;
}

const PublicClass& AnyCreatable(Case& input) {
    static const std::vector<PublicClass> creatable = [] {
        std::vector<PublicClass> found;
        for (const PublicClass& candidate : PublicClasses()) {
            if (candidate.isCreatable) found.push_back(candidate);
        }
        return found;
    }();
    return input.Pick(creatable);
}

ComPtr<IUnknown> CreateAny(Case& input) { return CreateObject(AnyCreatable(input).id); }

}  // namespace fuzzing
