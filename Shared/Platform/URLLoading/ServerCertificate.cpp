// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/ServerCertificate.h"

#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509_vfy.h>
#include <openssl/x509v3.h>

#include <memory>

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

} // namespace

std::optional<ServerCertificate> ServerCertificate::ofConnection(const ssl_st* connection, std::string host, int port)
{
    if (connection == nullptr) {
        return std::nullopt;
    }
    const std::shared_ptr<X509> leaf(SSL_get1_peer_certificate(connection), X509_free);
    ServerCertificate certificate;
    unsigned int length = 0;
    if (leaf == nullptr || X509_digest(leaf.get(), EVP_sha256(), certificate.m_leaf.data(), &length) != 1 ||
        length != certificate.m_leaf.size()) {
        return std::nullopt;
    }
    STACK_OF(X509)* const presented = SSL_get_peer_cert_chain(connection);
    const std::shared_ptr<STACK_OF(X509)> others(presented != nullptr ? X509_chain_up_ref(presented) : nullptr,
                                                 [](STACK_OF(X509) * chain) { sk_X509_pop_free(chain, X509_free); });
    certificate.m_objection = [leaf, others](const std::string& name) {
        return objection(leaf.get(), others.get(), name);
    };
    certificate.m_host = std::move(host);
    certificate.m_port = port;
    return certificate;
}

} // namespace lodestar
