// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <openssl/ssl.h>

#include <memory>
#include <string>

namespace lodestar::simulator
{

template <auto Free>
struct Deleter {
    template <typename T>
    void operator()(T* object) const
    {
        Free(object);
    }
};

using ContextPtr = std::unique_ptr<SSL_CTX, Deleter<SSL_CTX_free>>;
using SslPtr = std::unique_ptr<SSL, Deleter<SSL_free>>;
using CertificatePtr = std::unique_ptr<X509, Deleter<X509_free>>;
using KeyPtr = std::unique_ptr<EVP_PKEY, Deleter<EVP_PKEY_free>>;

/// Makes a server context without session resumption, so that every connection presents the console's present
/// certificate.
ContextPtr makeServerContext();

/// A self-signed certificate with its key.
struct Leaf {
    enum class Kind { Valid, Expired, Misnamed };

    CertificatePtr certificate;
    KeyPtr key;

    /// SHA-256 of the certificate in lower-case hexadecimal.
    std::string fingerprint() const;
};

/// Makes an EC P-256 key and a certificate with it for the address. Throws `std::runtime_error`.
std::shared_ptr<const Leaf> makeLeaf(const std::string& address, Leaf::Kind kind);

} // namespace lodestar::simulator
