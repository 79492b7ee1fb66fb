#pragma once

#include "platform/com/UnknownObject.h"

#include <objidl.h>

#include <new>
#include <string>

namespace platform {

// A stream that keeps what is written to it, from its beginning to its end. It cannot be read or moved in.
class WrittenBytes final : public UnknownObject<IStream> {
public:
    const std::string& All() const { return bytes_; }

    STDMETHODIMP Write(const void* bytes, ULONG count, ULONG* written) override {
        if (written) *written = 0;
        if (!bytes) return STG_E_INVALIDPOINTER;
        try {
            bytes_.append(static_cast<const char*>(bytes), count);
        } catch (const std::bad_alloc&) {
            return STG_E_MEDIUMFULL;
        }
        if (written) *written = count;
        return S_OK;
    }

    STDMETHODIMP Commit(DWORD) override { return S_OK; }
    STDMETHODIMP SetSize(ULARGE_INTEGER) override { return S_OK; }

    STDMETHODIMP Read(void*, ULONG, ULONG*) override { return E_NOTIMPL; }
    STDMETHODIMP Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override { return E_NOTIMPL; }
    STDMETHODIMP CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override { return E_NOTIMPL; }
    STDMETHODIMP Revert() override { return E_NOTIMPL; }
    STDMETHODIMP LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Clone(IStream**) override { return E_NOTIMPL; }

protected:
    void* Find(REFIID iid) override {
        return iid == __uuidof(ISequentialStream) ? static_cast<ISequentialStream*>(this) : UnknownObject::Find(iid);
    }

private:
    std::string bytes_;
};

}  // namespace platform
