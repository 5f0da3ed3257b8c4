// SPDX-License-Identifier: Apache-2.0
// What libcurl calls of a transfer.
#include "Platform/URLLoading/Transfer.h"

namespace lodestar
{

void Transfer::setCallbacks()
{
    CURL* const easy = m_connection.easy.get();
    curl().easySetopt(easy, CURLOPT_PRIVATE, this);
    curl().easySetopt(easy, CURLOPT_PREREQFUNCTION, &Transfer::prerequest);
    curl().easySetopt(easy, CURLOPT_PREREQDATA, this);
    curl().easySetopt(easy, CURLOPT_HEADERFUNCTION, &Transfer::header);
    curl().easySetopt(easy, CURLOPT_HEADERDATA, this);
    curl().easySetopt(easy, CURLOPT_WRITEFUNCTION, &Transfer::body);
    curl().easySetopt(easy, CURLOPT_WRITEDATA, this);
    curl().easySetopt(easy, CURLOPT_NOPROGRESS, 0L);
    curl().easySetopt(easy, CURLOPT_XFERINFOFUNCTION, &Transfer::progress);
    curl().easySetopt(easy, CURLOPT_XFERINFODATA, this);
}

/// No exception may pass through libcurl. The only one that can occur is a lack of memory for bytes from a server.
template <typename Work>
bool Transfer::guarded(Work work)
{
    try {
        return work();
    } catch (const std::exception&) {
        refuse(URLErrorCode::DataLengthExceedsMaximum, "out of memory");
        return false;
    }
}

int Transfer::prerequest(void* self, char*, char*, int, int)
{
    auto& transfer = *static_cast<Transfer*>(self);
    return transfer.guarded([&] { return transfer.connectionReady(); }) ? CURL_PREREQFUNC_OK : CURL_PREREQFUNC_ABORT;
}

std::size_t Transfer::header(char* bytes, std::size_t size, std::size_t count, void* self)
{
    auto& transfer = *static_cast<Transfer*>(self);
    return transfer.guarded([&] { return transfer.headerLine({bytes, size * count}); }) ? size * count : 0;
}

std::size_t Transfer::body(char* bytes, std::size_t size, std::size_t count, void* self)
{
    auto& transfer = *static_cast<Transfer*>(self);
    if (transfer.guarded([&] { return transfer.bodyBytes({bytes, size * count}); })) {
        return size * count;
    }
    return transfer.m_paused ? CURL_WRITEFUNC_PAUSE : 0;
}

int Transfer::progress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t sent)
{
    auto& transfer = *static_cast<Transfer*>(self);
    const auto goesOn = [&] {
        if (transfer.m_request.bodySent) {
            transfer.m_request.bodySent(static_cast<std::size_t>(sent));
        }
        transfer.noteCloseNotice();
        return transfer.framingIsBounded();
    };
    return transfer.guarded(goesOn) ? 0 : 1;
}

} // namespace lodestar
