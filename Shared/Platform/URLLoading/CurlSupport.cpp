// SPDX-License-Identifier: Apache-2.0
#include "Platform/URLLoading/CurlSupport.h"

#ifdef LODESTAR_CURL_IN_MODULE
#include "Platform/OwnModule.h"

#include <dlfcn.h>
#endif

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <sys/resource.h>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace lodestar
{

namespace
{

using CurlURL = std::unique_ptr<CURLU, decltype(CurlModule::urlCleanup)>;

CurlURL parsedURL(const std::string& url)
{
    CurlURL handle(curl().url(), curl().urlCleanup);
    if (handle != nullptr && curl().urlSet(handle.get(), CURLUPART_URL, url.c_str(), 0) != CURLUE_OK) {
        handle.reset();
    }
    return handle;
}

std::optional<std::string> urlPart(const CurlURL& url, CURLUPart part, unsigned int flags = 0)
{
    char* text = nullptr;
    if (curl().urlGet(url.get(), part, &text, flags) != CURLUE_OK) {
        return std::nullopt;
    }
    std::string result(text);
    curl().free(text);
    return result;
}

/// Replaces line breaks. Session keys come from servers; with a line break in its value, a server could add a header
/// field of its choice.
std::string onOneLine(std::string text)
{
    std::ranges::replace_if(
        text, [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    return text;
}

const CurlModule* loadedModule()
{
#ifdef LODESTAR_CURL_IN_MODULE
    auto* const function = functionOfOwnModule("lodestar-transfers", "lodestar_curl_module");
    if (function == nullptr) {
        const char* const reason = ::dlerror();
        std::fprintf(stderr, "lodestar-transfers.so: %s\n", reason != nullptr ? reason : "not found");
        return nullptr;
    }
    return reinterpret_cast<decltype(&lodestar_curl_module)>(function)();
#else
    return lodestar_curl_module();
#endif
}

} // namespace

const CurlModule& curl()
{
    static const CurlModule* const module = [] {
        const CurlModule* const loaded = loadedModule();
        if (loaded == nullptr || !loaded->prepare()) {
            std::fputs("Transfers are not possible\n", stderr);
            std::abort();
        }
        return loaded;
    }();
    return *module;
}

void prepareProcessForTransfers()
{
    static std::once_flag once;
    std::call_once(once, [] {
#ifdef M_ARENA_MAX
        // Bodies are filled on one thread and freed on others: with an arena for each thread, one thread would keep
        // memory that others need.
        mallopt(M_ARENA_MAX, 2);
        // Large blocks are mapped one by one, so a feed's body goes back to the system when it is freed, wherever the
        // parsed feed lies.
        mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
        rlimit files{};
        if (getrlimit(RLIMIT_NOFILE, &files) == 0 && files.rlim_cur < files.rlim_max) {
            files.rlim_cur = files.rlim_max;
            setrlimit(RLIMIT_NOFILE, &files);
        }
        struct sigaction action = {};
        if (sigaction(SIGPIPE, nullptr, &action) == 0 && action.sa_handler == SIG_DFL) {
            action.sa_handler = SIG_IGN;
            sigaction(SIGPIPE, &action, nullptr);
        }
    });
}

std::optional<Origin> Origin::ofURL(const std::string& url)
{
    const CurlURL handle = parsedURL(url);
    if (handle == nullptr) {
        return std::nullopt;
    }
    const auto scheme = urlPart(handle, CURLUPART_SCHEME);
    auto host = urlPart(handle, CURLUPART_HOST);
    const auto port = urlPart(handle, CURLUPART_PORT, CURLU_DEFAULT_PORT);
    if (!scheme || !host || !port) {
        return std::nullopt;
    }
    std::ranges::transform(*host, host->begin(), &lowered);
    if (host->size() > 2 && host->front() == '[' && host->back() == ']') {
        *host = host->substr(1, host->size() - 2);
    }
    return Origin{*scheme, *host, std::stoi(*port)};
}

std::optional<std::string> resolvedURL(const std::string& base, const std::string& reference)
{
    const CurlURL handle = parsedURL(base);
    if (handle == nullptr || curl().urlSet(handle.get(), CURLUPART_URL, reference.c_str(), 0) != CURLUE_OK) {
        return std::nullopt;
    }
    curl().urlSet(handle.get(), CURLUPART_FRAGMENT, nullptr, 0);
    return urlPart(handle, CURLUPART_URL);
}

std::string requestTarget(const std::string& url)
{
    const CurlURL handle = parsedURL(url);
    const auto path = handle != nullptr ? urlPart(handle, CURLUPART_PATH) : std::nullopt;
    const auto query = handle != nullptr ? urlPart(handle, CURLUPART_QUERY) : std::nullopt;
    return path.value_or("/") + (query ? "?" + *query : "");
}

CurlList curlHeaders(const URLRequest& request)
{
    CurlList list;
    const auto append = [&list](const std::string& line) {
        if (curl_slist* const longer = curl().slistAppend(list.get(), line.c_str()); longer != nullptr) {
            static_cast<void>(list.release());
            list.reset(longer);
        }
    };
    for (const auto& [name, value] : request.headers.fields()) {
        // libcurl sends a field without a value when a semicolon follows the name.
        append(onOneLine(name) + (value.empty() ? ";" : ": " + onOneLine(value)));
    }
    for (const char* const name : {"Accept", "Content-Type", "Expect", "User-Agent"}) {
        if (!request.headers.value(name)) {
            append(std::string(name) + ":");
        }
    }
    if (!request.headers.value("Accept-Encoding")) {
        append("Accept-Encoding: gzip, deflate");
    }
    return list;
}

} // namespace lodestar
