#include "platform/msxml/DocumentClass.h"

#include "platform/ComError.h"

#include <mutex>

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace msxml {
namespace {

// The class may be called from any thread. It stays valid when the client leaves COM and comes back, for its module is
// held with it.
struct DocumentClass {
    std::mutex mutex;
    ComPtr<IClassFactory> factory;
    HMODULE module = nullptr;
};

DocumentClass& TheClass() {
    // Never destroyed: at the end of the process MSXML may be gone before.
    static DocumentClass& instance = *new DocumentClass;
    return instance;
}

ComPtr<IClassFactory> LookUp(HMODULE& module) {
    ComPtr<IClassFactory> factory;
    Check(
        CoGetClassObject(__uuidof(DOMDocument60), CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(factory.GetAddressOf())));
    const void* const anythingInModule = *reinterpret_cast<void**>(factory.Get());
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, static_cast<LPCWSTR>(anythingInModule), &module);
    return factory;
}

ComPtr<IClassFactory> Factory() {
    DocumentClass& one = TheClass();
    const std::lock_guard lock(one.mutex);
    if (!one.factory) one.factory = LookUp(one.module);
    return one.factory;
}

}  // namespace

Document NewDocument() {
    Document document;
    Check(Factory()->CreateInstance(nullptr, IID_PPV_ARGS(document.GetAddressOf())));
    return document;
}

void ReleaseDocumentClass() noexcept {
    DocumentClass& one = TheClass();
    const std::lock_guard lock(one.mutex);
    one.factory.Reset();
    if (one.module) FreeLibrary(one.module);
    one.module = nullptr;
}

}  // namespace msxml
