#include "text/Digest.h"

#include <windows.h>

// It does not include windows.h, which it needs.
#include <bcrypt.h>

#include <cstdio>
#include <stdexcept>

namespace lejis_client {
namespace {

constexpr ULONG kBytes = 32;

void Require(NTSTATUS status) {
    if (status < 0) throw std::runtime_error("Windows computes no SHA-256");
}

class Algorithm {
public:
    Algorithm() { Require(BCryptOpenAlgorithmProvider(&handle_, BCRYPT_SHA256_ALGORITHM, nullptr, 0)); }
    ~Algorithm() { BCryptCloseAlgorithmProvider(handle_, 0); }
    Algorithm(const Algorithm&) = delete;
    Algorithm& operator=(const Algorithm&) = delete;

    void Hash(std::string_view content, UCHAR (&digest)[kBytes]) const {
        BCRYPT_HASH_HANDLE hash = nullptr;
        Require(BCryptCreateHash(handle_, &hash, nullptr, 0, nullptr, 0, 0));
        auto* const bytes = reinterpret_cast<UCHAR*>(const_cast<char*>(content.data()));
        NTSTATUS status = BCryptHashData(hash, bytes, static_cast<ULONG>(content.size()), 0);
        if (status >= 0) status = BCryptFinishHash(hash, digest, kBytes, 0);
        BCryptDestroyHash(hash);
        Require(status);
    }

private:
    BCRYPT_ALG_HANDLE handle_ = nullptr;
};

}  // namespace

std::string Digest(std::string_view content) {
    static const Algorithm algorithm;
    UCHAR digest[kBytes];
    algorithm.Hash(content, digest);
    std::string text = "sha256:";
    for (const UCHAR byte : digest) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", byte);
        text += digits;
    }
    return text;
}

}  // namespace lejis_client
