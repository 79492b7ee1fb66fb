#pragma once

#include <comutil.h>

#include <string_view>

namespace platform {

// The bytes of an answer, in the array that the request gives, read where they lie.
class ResponseBytes {
public:
    // Takes over `body`. What is no array of bytes is no bytes.
    explicit ResponseBytes(VARIANT& body);
    ~ResponseBytes();
    ResponseBytes(const ResponseBytes&) = delete;
    ResponseBytes& operator=(const ResponseBytes&) = delete;

    explicit operator bool() const { return bytes_.data() != nullptr; }
    std::string_view View() const { return bytes_; }

private:
    _variant_t body_;
    std::string_view bytes_;
};

}  // namespace platform
