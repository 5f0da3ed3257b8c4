// SPDX-License-Identifier: Apache-2.0
#include "Application/Passcode.h"

#include "Application/KeptState.h"
#include "Feedback/VireoLogger.h"
#include "Platform/Error.h"

#include <utility>
#include <vector>

namespace lodestar
{
namespace
{

constexpr auto fileName = "Shared/Application/Passcode";
constexpr auto service = "Login";
constexpr auto account = "Admin";

/// The key of what is kept while the keychain still holds a passcode that was discarded.
constexpr auto discardKey = "discardPasscode";
/// The key of the code of the failure that switched the lock off.
constexpr auto lockOffKey = "lockOff";

/// The state of the whole process.
struct Readings {
    bool exists = false;
    std::optional<Error> existsFailure;
    int recomputations = 0; ///< how many are under way
    std::vector<std::function<void()>> whenKnown;
    /// By kind of prompt, the readers that share a reading under way. A write resets both: later reads must see its
    /// text.
    std::shared_ptr<std::vector<Passcode::Read>> waiting[2];
};

Readings& readings()
{
    static auto& state = *new Readings;
    return state;
}

bool isToBeDiscarded()
{
    return KeptState::shared().boolForKey(discardKey);
}

void write(const std::string& passcode, Passcode::Prompt prompt, Keychain::Written answer)
{
    for (auto& shared : readings().waiting) {
        shared.reset();
    }
    Keychain::standard().writePassword(
        passcode, service, account, prompt, [answer = std::move(answer)](const Result<void>& written) {
            if (written) {
                KeptState::shared().removeObjectForKey(discardKey);
            } else {
                LODESTAR_LOG(fileName, "+[Passcode store:]", "The passcode cannot be written: {}",
                             description(written.error()));
            }
            answer(written);
        });
}

void deliver(const std::vector<Passcode::Read>& readers, const Result<std::string>& result)
{
    std::optional<Error> failure;
    std::string passcode;
    if (!result) {
        failure = result.error();
        LODESTAR_LOG(fileName, "+[Passcode stored]", "The passcode cannot be read: {}", description(*failure));
    } else if (!isToBeDiscarded()) { // the passcode may have been discarded while it was read
        passcode = result.value();
    }
    for (const Passcode::Read& reader : readers) {
        reader(passcode, failure);
    }
}

} // namespace

void Passcode::read(Prompt prompt, Read answer)
{
    if (isToBeDiscarded()) {
        write({}, prompt, [answer = std::move(answer)](const Result<void>& emptied) {
            answer({}, emptied ? std::nullopt : std::optional<Error>(emptied.error()));
        });
        return;
    }
    auto& shared = readings().waiting[prompt == Prompt::Allowed ? 1 : 0];
    if (shared) {
        shared->push_back(std::move(answer));
        return;
    }
    const auto readers = std::make_shared<std::vector<Read>>();
    readers->push_back(std::move(answer));
    shared = readers;
    Keychain::standard().readPassword(service, account, prompt, [&shared, readers](const Result<std::string>& result) {
        if (shared == readers) {
            shared.reset();
        }
        deliver(*readers, result);
    });
}

void Passcode::store(const std::string& passcode, Keychain::Written answer)
{
    write(passcode, Prompt::Allowed, std::move(answer));
}

void Passcode::discard()
{
    KeptState::shared().setBool(true, discardKey);
    write({}, Prompt::No, [](const Result<void>&) {});
}

bool Passcode::exists()
{
    return readings().exists;
}

void Passcode::recomputeExists(Prompt prompt)
{
    ++readings().recomputations;
    read(prompt, [](const std::string& passcode, const std::optional<Error>& failure) {
        Readings& state = readings();
        state.exists = !passcode.empty();
        state.existsFailure = failure;
        if (--state.recomputations == 0) {
            for (const auto& function : std::exchange(state.whenKnown, {})) {
                function();
            }
        }
    });
}

const std::optional<Error>& Passcode::existsFailure()
{
    return readings().existsFailure;
}

void Passcode::whenExistsIsKnown(std::function<void()> function)
{
    if (readings().recomputations == 0) {
        function();
    } else {
        readings().whenKnown.push_back(std::move(function));
    }
}

QString Passcode::words(const Error& failure)
{
    switch (failure.code) {
    case Keychain::locked:
        return tr("The system's keychain is locked");
    case Keychain::absent:
        return tr("No keychain is running on this system");
    case Keychain::timedOut:
        return tr("The system's keychain does not answer");
    case Keychain::notAText:
        return tr("The system's keychain cannot keep this text");
    default:
        return tr("The system's keychain reported an error");
    }
}

void Passcode::rememberLockOff(const Error& failure)
{
    KeptState::shared().setString(std::to_string(failure.code), lockOffKey);
}

void Passcode::forgetLockOff()
{
    KeptState::shared().removeObjectForKey(lockOffKey);
}

QString Passcode::lockOffWords()
{
    switch (QString::fromStdString(KeptState::shared().stringForKey(lockOffKey).value_or("")).toInt()) {
    case 0:
        return {};
    case Keychain::locked:
        return tr("The passcode is not asked for any more: the system's keychain was locked.");
    case Keychain::absent:
        return tr("The passcode is not asked for any more: no keychain was running.");
    case Keychain::timedOut:
        return tr("The passcode is not asked for any more: the system's keychain did not answer.");
    default:
        return tr("The passcode is not asked for any more: the system's keychain could not be read.");
    }
}

} // namespace lodestar
