// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/SystemKeychain.h"

#include "Application/Adapters/SecretService.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/Queues/OwnThread.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QThread>
#include <qt6keychain/keychain.h>

#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace lodestar
{

namespace
{

Error makeError(int code, std::string text, std::string reason = {})
{
    return {"Keychain", code, std::move(text), std::move(reason), nullptr};
}

Error lockedError(std::string reason = {})
{
    return makeError(Keychain::locked, "The keychain is locked.", std::move(reason));
}

/// One request. The main thread, which may give the request up, shares it with the keychain's thread, where the request
/// may end later or never.
struct Call {
    Call(SecretQuestion theQuestion, std::function<QKeychain::Job*()> theMaker,
         std::function<void(Result<std::string>)> theAnswer)
        : question(std::move(theQuestion)), makeJob(std::move(theMaker)), answer(std::move(theAnswer))
    {
    }

    const SecretQuestion question;
    const std::function<QKeychain::Job*()> makeJob;
    const std::function<void(Result<std::string>)> answer; ///< called on the main thread

    std::mutex mutex;
    std::optional<Result<std::string>> result;
    bool asksThePerson = false;
};

/// The answer, if the access already settles it. Null when the service must be asked, which may bring up a prompt.
std::optional<Result<std::string>> answerWithoutJob(const SecretQuestion& question, bool reads, SecretAccess access)
{
    switch (access) {
    case SecretAccess::NoService:
        return makeError(Keychain::absent, "No keychain is running.");
    case SecretAccess::NoItem:
        return question.writes ? std::nullopt : std::optional<Result<std::string>>(std::string());
    case SecretAccess::Locked:
        return question.mayPrompt ? std::nullopt : std::optional<Result<std::string>>(lockedError());
    case SecretAccess::Unknown:
        return reads || question.mayPrompt ? std::nullopt : std::optional<Result<std::string>>(lockedError());
    case SecretAccess::Free:
        break;
    }
    return std::nullopt;
}

Result<std::string> resultOf(QKeychain::Job* job, SecretAccess access)
{
    const auto* const read = qobject_cast<QKeychain::ReadPasswordJob*>(job);
    if (job->error() == QKeychain::NoError) {
        return read != nullptr ? read->textData().toStdString() : std::string();
    }
    if (access == SecretAccess::Locked) {
        // Nobody unlocked the keychain. The library reports such an item as missing.
        return lockedError(job->errorString().toStdString());
    }
    if (read != nullptr && job->error() == QKeychain::EntryNotFound) {
        return std::string();
    }
    return makeError(job->error(), job->errorString().toStdString());
}

} // namespace

/// Lives on the main thread; only `start` and `settle` run on another.
struct SystemKeychain::State : std::enable_shared_from_this<State> {
    explicit State(std::chrono::milliseconds theDeadline);
    ~State();
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    void ask(SecretQuestion question, std::function<QKeychain::Job*()> makeJob,
             std::function<void(Result<std::string>)> answer);
    void startNext();
    static void start(const std::weak_ptr<State>& state, const std::shared_ptr<Call>& call,
                      std::chrono::milliseconds limit);
    void timeIsUp(const std::shared_ptr<Call>& call);
    void ended();
    /// Any thread. The state may be destroyed already.
    static void settle(const std::weak_ptr<State>& state, Call& call, Result<std::string> result);

    const std::chrono::milliseconds deadline;
    bool hasBegun = false;
    std::deque<std::shared_ptr<Call>> waiting;
    std::shared_ptr<Call> current; ///< the request that the service has; the library runs one job at a time
    bool givenUp = false;          ///< whether `current` has been answered although its job has not ended
    std::unique_ptr<QThread> thread = std::make_unique<QThread>();
    std::unique_ptr<QObject> onThread =
        std::make_unique<QObject>(); ///< lives on the thread; jobs are started in its name
};

/// On the keychain's thread.
void SystemKeychain::State::start(const std::weak_ptr<State>& state, const std::shared_ptr<Call>& call,
                                  std::chrono::milliseconds limit)
{
    const SecretAccess access = secretAccess(call->question, limit);
    auto* const job = call->makeJob();
    const bool reads = qobject_cast<QKeychain::ReadPasswordJob*>(job) != nullptr;
    if (auto answer = answerWithoutJob(call->question, reads, access)) {
        delete job;
        settle(state, *call, std::move(*answer));
        return;
    }
    {
        const std::lock_guard lock(call->mutex);
        call->asksThePerson = access == SecretAccess::Locked;
    }
    QObject::connect(job, &QKeychain::Job::finished, job, [state, call, access](QKeychain::Job* finished) {
        settle(state, *call, resultOf(finished, access));
    });
    job->setAutoDelete(true);
    // Without a service the library must not fall back to a plain file.
    job->setInsecureFallback(false);
    job->start();
}

SystemKeychain::State::State(std::chrono::milliseconds theDeadline) : deadline(theDeadline)
{
    thread->setObjectName(QStringLiteral("lodestar-keychain"));
    onThread->moveToThread(thread.get());
    QObject::connect(
        thread.get(), &QThread::started, thread.get(),
        [] { static thread_local const OwnThread own("lodestar-keych"); }, Qt::DirectConnection);
}

SystemKeychain::State::~State()
{
    thread->quit();
    if (thread->wait(QDeadlineTimer(deadline))) {
        return;
    }
    // The thread is stuck inside the library, perhaps for good. Leak it: Qt ends a process that destroys a running
    // thread.
    static_cast<void>(thread.release());
    static_cast<void>(onThread.release());
}

void SystemKeychain::State::ask(SecretQuestion question, std::function<QKeychain::Job*()> makeJob,
                                std::function<void(Result<std::string>)> answer)
{
    if (givenUp) {
        answer(makeError(timedOut, "The keychain service has not answered an earlier request."));
        return;
    }
    waiting.push_back(std::make_shared<Call>(std::move(question), std::move(makeJob), std::move(answer)));
    startNext();
}

void SystemKeychain::State::startNext()
{
    if (!hasBegun || current || waiting.empty()) {
        return;
    }
    if (!thread->isRunning()) {
        thread->start();
    }
    current = std::move(waiting.front());
    waiting.pop_front();
    MainQueue::shared().asyncAfter(deadline, [state = weak_from_this(), call = current] {
        if (const auto self = state.lock()) {
            self->timeIsUp(call);
        }
    });
    // A signal carries the call to the keychain's thread: the analyser takes the functor of `invokeMethod` for leaked.
    const QObject sender;
    QObject::connect(
        &sender, &QObject::destroyed, onThread.get(),
        [state = weak_from_this(), call = current, limit = deadline] { start(state, call, limit); },
        Qt::QueuedConnection);
}

void SystemKeychain::State::timeIsUp(const std::shared_ptr<Call>& call)
{
    if (call != current || givenUp) {
        return;
    }
    {
        const std::lock_guard lock(call->mutex);
        if (call->result || call->asksThePerson) {
            return;
        }
    }
    givenUp = true;
    const auto unanswered = std::exchange(waiting, {});
    call->answer(makeError(timedOut, "The keychain service does not answer."));
    for (const auto& later : unanswered) {
        later->answer(makeError(timedOut, "The keychain service has not answered an earlier request."));
    }
}

void SystemKeychain::State::ended()
{
    const auto call = std::exchange(current, nullptr);
    if (!std::exchange(givenUp, false)) {
        call->answer(std::move(*call->result));
    }
    startNext();
}

void SystemKeychain::State::settle(const std::weak_ptr<State>& state, Call& call, Result<std::string> result)
{
    {
        const std::lock_guard lock(call.mutex);
        call.result = std::move(result);
    }
    MainQueue::shared().async([state] {
        if (const auto self = state.lock()) {
            self->ended();
        }
    });
}

SystemKeychain::SystemKeychain(std::chrono::milliseconds deadline) : m_state(std::make_shared<State>(deadline)) {}

SystemKeychain::~SystemKeychain() = default;

void SystemKeychain::begin()
{
    m_state->hasBegun = true;
    m_state->startNext();
}

bool SystemKeychain::owesAnswer() const
{
    return m_state->givenUp;
}

void SystemKeychain::readPassword(const std::string& service, const std::string& account, Prompt prompt, Read answer)
{
    const QString name = QString::fromStdString(account);
    const QString place = QString::fromStdString(service);
    m_state->ask(
        {.service = place, .account = name, .writes = false, .mayPrompt = prompt == Prompt::Allowed},
        [place, name] {
            auto* const job = new QKeychain::ReadPasswordJob(place);
            job->setKey(name);
            return job;
        },
        std::move(answer));
}

void SystemKeychain::writePassword(const std::string& password, const std::string& service, const std::string& account,
                                   Prompt prompt, Written answer)
{
    // The service would keep only what precedes the null character, and report success.
    if (password.find('\0') != std::string::npos) {
        answer(makeError(notAText, "The keychain service keeps no text with a null character."));
        return;
    }
    const QString name = QString::fromStdString(account);
    const QString place = QString::fromStdString(service);
    m_state->ask(
        {.service = place, .account = name, .writes = !password.empty(), .mayPrompt = prompt == Prompt::Allowed},
        [place, name, text = QString::fromStdString(password)] {
            auto* const job = new QKeychain::WritePasswordJob(place);
            job->setKey(name);
            job->setTextData(text);
            return job;
        },
        [answer = std::move(answer)](const Result<std::string>& result) {
            answer(result ? Result<void>() : Result<void>(result.error()));
        });
}

} // namespace lodestar
