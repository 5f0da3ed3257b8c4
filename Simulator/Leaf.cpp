// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Leaf.h"

#include <openssl/bn.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace lodestar::simulator
{

namespace
{

void require(bool ok, const char* what)
{
    if (!ok) {
        throw std::runtime_error(what);
    }
}

void setSerial(X509* certificate)
{
    std::array<unsigned char, 8> bytes{};
    require(RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) == 1, "no random bytes");
    std::uint64_t serial = 0;
    std::memcpy(&serial, bytes.data(), bytes.size());
    require(ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate), serial >> 1U) == 1, "serial number");
}

void setName(X509* certificate, const std::string& commonName)
{
    X509_NAME* name = X509_get_subject_name(certificate);
    const auto add = [&](const char* field, std::string_view text) {
        require(X509_NAME_add_entry_by_txt(name, field, MBSTRING_UTF8,
                                           reinterpret_cast<const unsigned char*>(text.data()),
                                           static_cast<int>(text.size()), -1, 0) == 1,
                "certificate name");
    };
    add("O", "Corvel Console");
    add("CN", commonName);
    require(X509_set_issuer_name(certificate, name) == 1, "issuer name");
}

void addExtension(X509* certificate, int nid, const std::string& value)
{
    const std::unique_ptr<X509_EXTENSION, Deleter<X509_EXTENSION_free>> extension(
        X509V3_EXT_conf_nid(nullptr, nullptr, nid, value.c_str()));
    require(extension != nullptr && X509_add_ext(certificate, extension.get(), -1) == 1, "certificate extension");
}

} // namespace

ContextPtr makeServerContext()
{
    ContextPtr context(SSL_CTX_new(TLS_server_method()));
    require(context != nullptr, "TLS context");
    SSL_CTX_set_min_proto_version(context.get(), TLS1_2_VERSION);
    SSL_CTX_set_session_cache_mode(context.get(), SSL_SESS_CACHE_OFF);
    SSL_CTX_set_options(context.get(), SSL_OP_NO_TICKET | SSL_OP_NO_RENEGOTIATION | SSL_OP_IGNORE_UNEXPECTED_EOF);
    SSL_CTX_set_num_tickets(context.get(), 0);
    SSL_CTX_set_mode(context.get(),
                     SSL_MODE_ENABLE_PARTIAL_WRITE | SSL_MODE_ACCEPT_MOVING_WRITE_BUFFER | SSL_MODE_RELEASE_BUFFERS);
    return context;
}

std::string Leaf::fingerprint() const
{
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned size = 0;
    require(X509_digest(certificate.get(), EVP_sha256(), digest.data(), &size) == 1, "fingerprint");
    static constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (unsigned i = 0; i < size; ++i) {
        text += {digits[digest.at(i) >> 4U], digits[digest.at(i) & 0xFU]};
    }
    return text;
}

std::shared_ptr<const Leaf> makeLeaf(const std::string& address, Leaf::Kind kind)
{
    auto leaf = std::make_shared<Leaf>();
    leaf->key.reset(EVP_EC_gen("P-256"));
    leaf->certificate.reset(X509_new());
    require(leaf->key != nullptr && leaf->certificate != nullptr, "key");
    X509* certificate = leaf->certificate.get();
    const std::string named = kind == Leaf::Kind::Misnamed ? "elsewhere.example" : address;
    constexpr long day = 86400;
    require(X509_set_version(certificate, X509_VERSION_3) == 1, "certificate version");
    setSerial(certificate);
    setName(certificate, named);
    const bool expired = kind == Leaf::Kind::Expired;
    X509_gmtime_adj(X509_getm_notBefore(certificate), expired ? -400 * day : -day);
    X509_gmtime_adj(X509_getm_notAfter(certificate), expired ? -30 * day : 3650 * day);
    require(X509_set_pubkey(certificate, leaf->key.get()) == 1, "certificate key");
    addExtension(certificate, NID_basic_constraints, "critical,CA:FALSE");
    addExtension(certificate, NID_subject_alt_name, (kind == Leaf::Kind::Misnamed ? "DNS:" : "IP:") + named);
    require(X509_sign(certificate, leaf->key.get(), EVP_sha256()) > 0, "certificate signature");
    return leaf;
}

} // namespace lodestar::simulator
