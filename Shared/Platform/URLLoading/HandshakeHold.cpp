// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/HandshakeHold.h"

#include <openssl/async.h>
#include <openssl/ssl.h>

namespace lodestar
{

namespace
{

using Holder = std::shared_ptr<HandshakeHold>;

void freeHolder(void*, void* holder, CRYPTO_EX_DATA*, int, long, void*)
{
    delete static_cast<Holder*>(holder);
}

int holderIndex()
{
    static const int index = SSL_CTX_get_ex_new_index(0, nullptr, nullptr, nullptr, &freeHolder);
    return index;
}

/// Accepts every certificate: trust is decided later, before a request is sent.
int certificateShown(X509_STORE_CTX* store, void*)
{
    auto* const connection = static_cast<SSL*>(X509_STORE_CTX_get_ex_data(store, SSL_get_ex_data_X509_STORE_CTX_idx()));
    auto* const holder = static_cast<Holder*>(SSL_CTX_get_ex_data(SSL_get_SSL_CTX(connection), holderIndex()));
    if (holder != nullptr) {
        const Holder hold = *holder;
        hold->reached = true;
        hold->reachedAt = HandshakeHold::Clock::now();
        while (!hold->released && ASYNC_get_current_job() != nullptr) {
            ASYNC_pause_job();
        }
        SSL_clear_mode(connection, SSL_MODE_ASYNC);
    }
    return 1;
}

} // namespace

CURLcode HandshakeHold::secureConnection(CURL*, void* context, void* beginning)
{
    auto& begun = *static_cast<HandshakeBeginning*>(beginning);
    begun.at = Clock::now();
    auto* const settings = static_cast<SSL_CTX*>(context);
    // Kept connections are mostly idle, and there may be thousands: OpenSSL must not keep buffers for them.
    SSL_CTX_set_mode(settings, SSL_MODE_RELEASE_BUFFERS);
    SSL_CTX_set_cert_verify_callback(settings, &certificateShown, nullptr);
    if (begun.hold != nullptr && isPossible) {
        SSL_CTX_set_mode(settings, SSL_MODE_ASYNC);
        auto holder = std::make_unique<Holder>(begun.hold->shared_from_this());
        if (SSL_CTX_set_ex_data(settings, holderIndex(), holder.get()) != 1) {
            return CURLE_OUT_OF_MEMORY;
        }
        static_cast<void>(holder.release()); // the connection owns the holder from here on
    }
    return CURLE_OK;
}

} // namespace lodestar
