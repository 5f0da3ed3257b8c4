// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ExceptionText.h"

#include "Feedback/Redaction.h"
#include "Platform/Queues/OwnThread.h"

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <cxxabi.h>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <typeinfo>

namespace lodestar
{

namespace
{

constexpr std::chrono::seconds patience(1);

/// Shared with the thread that fills it, because the caller may stop waiting.
struct Answer {
    std::mutex mutex;
    std::condition_variable given;
    bool isGiven = false;
    std::optional<std::string> text;
};

/// The text without secrets; none when the secrets are not to be had in time.
std::optional<std::string> withoutSecrets(const std::string& text,
                                          const std::function<std::vector<std::string>()>& secrets)
{
    if (!secrets) {
        return redacted(text, {});
    }
    const auto answer = std::make_shared<Answer>();
    std::thread([answer, text, secrets] {
        const OwnThread thread("lodestar-end");
        std::optional<std::string> clean;
        try {
            clean = redacted(text, secrets());
        } catch (...) {
            clean.reset();
        }
        const std::lock_guard lock(answer->mutex);
        answer->text = std::move(clean);
        answer->isGiven = true;
        answer->given.notify_all();
    }).detach();
    std::unique_lock lock(answer->mutex);
    answer->given.wait_for(lock, patience, [&] { return answer->isGiven; });
    return answer->text;
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

} // namespace

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

} // namespace lodestar
