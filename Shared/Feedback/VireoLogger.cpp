// SPDX-License-Identifier: Apache-2.0
#include "Feedback/VireoLogger.h"

#include "Feedback/CrashCapture.h"
#include "Feedback/CrashModules.h"
#include "Feedback/LogText.h"
#include "Feedback/LogWriter.h"
#include "Feedback/Redaction.h"
#include "Feedback/ReportSender.h"
#include "Platform/Queues/OwnThread.h"
#include "Platform/UtcStamp.h"

#include <fmt/format.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cxxabi.h>
#include <exception>
#include <future>
#include <iterator>
#include <list>
#include <mutex>
#include <optional>
#include <thread>
#include <typeinfo>
#include <unistd.h>
#include <utility>

#if __has_include(<execinfo.h>)
#include <execinfo.h>
#endif

namespace lodestar
{

namespace
{

#ifdef NDEBUG
constexpr bool copiesToStandardError = false;
#else
constexpr bool copiesToStandardError = true;
#endif

constexpr std::string_view ownFile = "Shared/Feedback/VireoLogger";

std::function<void()>& presenter()
{
    static auto& function = *new std::function<void()>;
    return function;
}

/// Never destroyed: a thread may terminate the process while the process is already ending.
struct SecretsProvider {
    std::mutex mutex;
    std::function<std::vector<std::string>()> function;
};

SecretsProvider& secretsProvider()
{
    static auto& provider = *new SecretsProvider;
    return provider;
}

/// The functions that receive every line. Never destroyed: threads log until the very end.
struct Listeners {
    std::mutex mutex; ///< held while the functions run
    std::list<std::function<void(const VireoLogger::Entry&)>> functions;
};

Listeners& listeners()
{
    static auto& all = *new Listeners;
    return all;
}

/// One line: time, level, tag, thread, place, method, message, in the order in which a reader scans.
std::string formatted(const VireoLogger::Entry& entry)
{
    std::string line;
    line.reserve(160 + entry.message.size() + entry.stacktrace.size() * 15);
    appendUtcStamp(line, std::chrono::system_clock::now());
    fmt::format_to(std::back_inserter(line), " {} {} [{}] {}:{} {} ", entry.level, entry.tag, OwnThread::number(),
                   entry.fileName, entry.line, entry.method);
    appendLogText(line, entry.message);
    return line;
}

void appendStack(std::string& line, std::span<void* const> stacktrace)
{
    if (stacktrace.empty()) {
        return;
    }
    line += " {";
    for (void* const address : stacktrace) {
        fmt::format_to(std::back_inserter(line), "{}{:x}", line.back() == '{' ? "" : " ",
                       reinterpret_cast<std::uintptr_t>(address));
    }
    line += '}';
}

/// Addresses in the log mean something only together with the address at which the program was loaded in that run.
std::string fileHeader()
{
    const std::vector<LoadedModule> modules = loadedModules();
    const std::uintptr_t base = modules.empty() ? 0 : modules.front().base;
    std::string header;
    appendUtcStamp(header, std::chrono::system_clock::now());
    fmt::format_to(std::back_inserter(header), " process {}, program loaded at {:x}\n", ::getpid(), base);
    return header;
}

/// The text without secrets; none when the secrets are not to be had within a second. A separate thread fetches them:
/// nothing has been unwound, so the calling thread may hold a lock that the secrets need.
std::optional<std::string> withoutSecrets(const std::string& text,
                                          const std::function<std::vector<std::string>()>& secrets)
{
    if (!secrets) {
        return redacted(text, {});
    }
    std::promise<std::optional<std::string>> promise;
    auto clean = promise.get_future();
    std::thread([promise = std::move(promise), text, secrets]() mutable {
        const OwnThread thread("lodestar-end");
        try {
            promise.set_value(redacted(text, secrets()));
        } catch (...) {
            promise.set_value(std::nullopt);
        }
    }).detach();
    constexpr std::chrono::seconds patience(1);
    return clean.wait_for(patience) == std::future_status::ready ? clean.get() : std::nullopt;
}

/// None for an exception without a description.
std::optional<std::string> wordsInFlight()
{
    try {
        throw;
    } catch (const std::exception& exception) {
        return exception.what();
    } catch (...) {
        return std::nullopt;
    }
}

std::string typeInFlight()
{
    int status = 0;
    const std::type_info* type = abi::__cxa_current_exception_type();
    char* demangled = type == nullptr ? nullptr : abi::__cxa_demangle(type->name(), nullptr, nullptr, &status);
    std::string name = demangled != nullptr ? demangled : type != nullptr ? type->name() : "unknown type";
    std::free(demangled);
    return name;
}

/// Type and description of the exception that ends the process, for the log and the crash file. Secrets are removed
/// from the description, since both files may be read long before a report is made of them.
std::string exceptionText(const std::function<std::vector<std::string>()>& secrets)
{
    if (!std::current_exception()) {
        return "terminated without an exception";
    }
    std::string text = typeInFlight();
    const std::optional<std::string> words = wordsInFlight();
    if (!words) {
        return text + " (no description)";
    }
    try {
        const std::optional<std::string> clean = withoutSecrets(*words, secrets);
        return text + (clean ? ": " + *clean : " (its description might tell a secret)");
    } catch (...) {
        return text; // no memory or no thread for removing the secrets
    }
}

} // namespace

void VireoLogger::write(const Entry& entry)
{
    // Logging never breaks its caller: when memory or anything else is missing, only the line is lost.
    try {
        {
            const std::lock_guard lock(listeners().mutex);
            for (const auto& listener : listeners().functions) {
                listener(entry);
            }
        }
        LogWriter& writer = LogWriter::shared();
        const bool copies = copiesToStandardError && writer.mayCopyToStandardError;
        if (!copies && !writer.isOpen()) {
            return;
        }
        std::string text = formatted(entry);
        if (copies) {
            std::fprintf(stderr, "%s\n", text.c_str());
        }
        appendStack(text, entry.stacktrace);
        text += '\n';
        writer.append(text);
    } catch (...) {
        return;
    }
}

VireoLogger::Settings& VireoLogger::settings()
{
    static Settings settings;
    return settings;
}

void VireoLogger::startSession(std::string_view applicationKey)
{
    // The key is a credential: the log may tell whether there is a key, never the key itself.
    LODESTAR_LOG(ownFile, "+[VireoLogger startSession:]",
                 "session started {} an application key, mode {}, {} on shake, named {}",
                 applicationKey.empty() ? "without" : "with", settings().mode,
                 settings().reportOnShake ? "reports" : "no report", feedbackSessionIdentifier());
    if (feedbackAddress().empty()) {
        return;
    }
    static const OperationQueue queue;
    startFeedbackSession(applicationKey, settings().mode, feedbackAddress(), queue, [](const Result<void>& started) {
        if (!started) {
            LODESTAR_LOG(ownFile, "+[VireoLogger startSession:]",
                         "the feedback service knows nothing of the session: {}", description(started.error()));
        }
    });
}

void VireoLogger::uncaughtExceptionHandler()
{
    static std::atomic<bool> running = false;
    if (!running.exchange(true)) {
        try {
            std::function<std::vector<std::string>()> secrets;
            {
                const std::lock_guard lock(secretsProvider().mutex);
                secrets = secretsProvider().function;
            }
            const std::string description = exceptionText(secrets);
            CrashCapture::noteException(description);
            LODESTAR_LOG(ownFile, "+[VireoLogger uncaughtExceptionHandler]", "uncaught exception: {}", description);
            flush();
        } catch (...) {
            std::abort();
        }
    }
    std::abort();
}

void VireoLogger::feedback()
{
    if (presenter()) {
        presenter()();
    } else {
        LODESTAR_LOG(ownFile, "+[VireoLogger feedback]", "no screen to present the feedback on");
    }
}

void VireoLogger::setFeedbackPresenter(std::function<void()> presenter_)
{
    presenter() = std::move(presenter_);
}

void VireoLogger::setSecretsProvider(std::function<std::vector<std::string>()> provider)
{
    const std::lock_guard lock(secretsProvider().mutex);
    secretsProvider().function.swap(provider);
}

bool VireoLogger::openLogFolder(const std::string& folder)
{
    return LogWriter::shared().open(folder, "lodestar.log", fileHeader());
}

std::shared_ptr<void> VireoLogger::addListener(std::function<void(const Entry&)> listener)
{
    const std::lock_guard lock(listeners().mutex);
    const auto added = listeners().functions.insert(listeners().functions.end(), std::move(listener));
    return {&*added, [added](void*) {
                const std::lock_guard removing(listeners().mutex);
                listeners().functions.erase(added);
            }};
}

void VireoLogger::forget()
{
    LogWriter::shared().forget();
}

void VireoLogger::flush()
{
    LogWriter::shared().flush();
}

[[gnu::noinline]] std::vector<void*> callStackReturnAddresses()
{
#if __has_include(<execinfo.h>)
    constexpr int most = 32;
    void* addresses[most + 1];
    const int count = ::backtrace(addresses, most + 1);
    // The first address lies in this function, so it is left out.
    return count <= 1 ? std::vector<void*>() : std::vector<void*>(addresses + 1, addresses + count);
#else
    return {};
#endif
}

} // namespace lodestar
