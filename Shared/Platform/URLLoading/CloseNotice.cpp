// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/CloseNotice.h"

#include <openssl/ssl.h>

namespace lodestar
{

namespace
{

using Holder = std::shared_ptr<CloseNotice>;

void freeHolder(void*, void* holder, CRYPTO_EX_DATA*, int, long, void*)
{
    delete static_cast<Holder*>(holder);
}

int holderIndex()
{
    static const int index = SSL_get_ex_new_index(0, nullptr, nullptr, nullptr, &freeHolder);
    return index;
}

void alertSeen(const SSL* connection, int where, int value)
{
    constexpr int descriptionMask = 0xff;
    if ((where & SSL_CB_READ) == 0 || (where & SSL_CB_ALERT) == 0 || (value & descriptionMask) != SSL_AD_CLOSE_NOTIFY) {
        return;
    }
    if (auto* const holder = static_cast<Holder*>(SSL_get_ex_data(connection, holderIndex())); holder != nullptr) {
        (*holder)->received = true;
    }
}

} // namespace

std::shared_ptr<const CloseNotice> CloseNotice::ofConnection(ssl_st* connection)
{
    if (const auto* const known = static_cast<Holder*>(SSL_get_ex_data(connection, holderIndex())); known != nullptr) {
        return *known;
    }
    auto holder = std::make_unique<Holder>(std::make_shared<CloseNotice>());
    Holder notice = *holder;
    if (SSL_set_ex_data(connection, holderIndex(), holder.get()) != 1) {
        return nullptr;
    }
    static_cast<void>(holder.release()); // the connection owns the holder from here on
    SSL_set_info_callback(connection, &alertSeen);
    return notice;
}

} // namespace lodestar
