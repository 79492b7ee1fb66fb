#include "files/XmlSource.h"

#include "library/Library.h"

namespace lejis_client {

_variant_t XmlSource(const std::string& content) {
    Microsoft::WRL::ComPtr<IStream> stream;
    Check(CreateStreamOnHGlobal(nullptr, TRUE, &stream));
    Check(stream->Write(content.data(), static_cast<ULONG>(content.size()), nullptr));
    Check(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    return _variant_t(static_cast<IUnknown*>(stream.Get()));
}

}  // namespace lejis_client
