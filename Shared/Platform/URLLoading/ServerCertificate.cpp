// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/ServerCertificate.h"

#include <openssl/asn1.h>
#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509_vfy.h>
#include <openssl/x509v3.h>

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <memory>
#include <utility>

namespace lodestar
{

namespace
{

/// The system's certificate authorities, read once and kept until the process ends.
X509_STORE* systemAuthorities()
{
    static X509_STORE* const store = [] {
        X509_STORE* made = X509_STORE_new();
        if (made != nullptr) {
            X509_STORE_set_default_paths(made);
        }
        return made;
    }();
    return store;
}

bool expectHost(X509_VERIFY_PARAM* parameters, const std::string& host)
{
    if (X509_VERIFY_PARAM_set1_ip_asc(parameters, host.c_str()) == 1) {
        return true;
    }
    X509_VERIFY_PARAM_set_hostflags(parameters, X509_CHECK_FLAG_NO_PARTIAL_WILDCARDS);
    return X509_VERIFY_PARAM_set1_host(parameters, host.data(), host.size()) == 1;
}

std::string objection(X509* leaf, STACK_OF(X509) * others, const std::string& host)
{
    const std::unique_ptr<X509_STORE_CTX, void (*)(X509_STORE_CTX*)> context(X509_STORE_CTX_new(), X509_STORE_CTX_free);
    X509_STORE* const authorities = systemAuthorities();
    if (context == nullptr || authorities == nullptr ||
        X509_STORE_CTX_init(context.get(), authorities, leaf, others) != 1 ||
        X509_STORE_CTX_set_default(context.get(), "ssl_server") != 1 ||
        !expectHost(X509_STORE_CTX_get0_param(context.get()), host)) {
        return "the certificate could not be examined";
    }
    if (X509_verify_cert(context.get()) == 1) {
        return {};
    }
    return X509_verify_cert_error_string(X509_STORE_CTX_get_error(context.get()));
}

using WallClock = std::chrono::system_clock;

std::string contentsOf(BIO* memory)
{
    char* text = nullptr;
    const long size = BIO_get_mem_data(memory, &text);
    return size > 0 ? std::string(text, static_cast<std::size_t>(size)) : std::string();
}

/// UTF-8 without control characters, which a name may hold.
std::string textOf(const X509_NAME* name)
{
    constexpr unsigned long readable = XN_FLAG_RFC2253 & ~static_cast<unsigned long>(ASN1_STRFLGS_ESC_MSB);
    const std::unique_ptr<BIO, decltype(&BIO_free)> memory(BIO_new(BIO_s_mem()), BIO_free);
    if (memory == nullptr) {
        return {};
    }
    if (X509_NAME_entry_count(name) == 1) {
        const X509_NAME_ENTRY* const entry = X509_NAME_get_entry(name, 0);
        if (OBJ_obj2nid(X509_NAME_ENTRY_get_object(entry)) == NID_commonName) {
            ASN1_STRING_print_ex(memory.get(), X509_NAME_ENTRY_get_data(entry),
                                 ASN1_STRFLGS_UTF8_CONVERT | ASN1_STRFLGS_ESC_CTRL);
            return contentsOf(memory.get());
        }
    }
    X509_NAME_print_ex(memory.get(), name, 0, readable);
    return contentsOf(memory.get());
}

/// A certificate may say that it never ends; the clock's own range ends in 2262.
WallClock::time_point momentOf(const ASN1_TIME* time)
{
    std::tm fields{};
    if (time == nullptr || ASN1_TIME_to_tm(time, &fields) != 1) {
        return {};
    }
    using std::chrono::seconds;
    const auto last = std::chrono::duration_cast<seconds>(WallClock::time_point::max().time_since_epoch());
    const seconds since(std::clamp<std::int64_t>(timegm(&fields), -last.count(), last.count()));
    return WallClock::time_point(since);
}

} // namespace

struct ServerCertificate::PresentedChain : Chain {
    PresentedChain(std::shared_ptr<X509> shown, STACK_OF(X509) * presented)
        : leaf(std::move(shown)),
          others(presented != nullptr ? X509_chain_up_ref(presented) : nullptr,
                 [](STACK_OF(X509) * chain) { sk_X509_pop_free(chain, X509_free); })
    {
    }
    Details details() const override
    {
        const X509_NAME* const subject = X509_get_subject_name(leaf.get());
        const X509_NAME* const issuer = X509_get_issuer_name(leaf.get());
        return {textOf(subject), textOf(issuer), X509_NAME_cmp(subject, issuer) == 0,
                momentOf(X509_get0_notBefore(leaf.get())), momentOf(X509_get0_notAfter(leaf.get()))};
    }
    std::string objection(const std::string& host) const override
    {
        return lodestar::objection(leaf.get(), others.get(), host);
    }

    const std::shared_ptr<X509> leaf;
    const std::shared_ptr<STACK_OF(X509)> others;
};

std::optional<ServerCertificate> ServerCertificate::ofConnection(const ssl_st* connection, std::string host, int port)
{
    if (connection == nullptr) {
        return std::nullopt;
    }
    std::shared_ptr<X509> leaf(SSL_get1_peer_certificate(connection), X509_free);
    ServerCertificate certificate;
    unsigned int length = 0;
    if (leaf == nullptr || X509_digest(leaf.get(), EVP_sha256(), certificate.m_leaf.data(), &length) != 1 ||
        length != certificate.m_leaf.size()) {
        return std::nullopt;
    }
    certificate.m_chain = std::make_shared<PresentedChain>(std::move(leaf), SSL_get_peer_cert_chain(connection));
    certificate.m_host = std::move(host);
    certificate.m_port = port;
    return certificate;
}

} // namespace lodestar
