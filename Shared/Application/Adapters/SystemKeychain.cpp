// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/SystemKeychain.h"

#include "Platform/Queues/OwnThread.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QString>
#include <QThread>
#include <qt6keychain/keychain.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

namespace lodestar
{

namespace
{

Error makeError(int code, std::string text)
{
    return {"Keychain", code, std::move(text), {}, nullptr};
}

/// What a job left behind when it ended.
struct Answer {
    QKeychain::Error code;
    std::string text; ///< the password, or why there is none
};

/// One question to the service, shared by the caller, who may give up, and the job, which may end later or never.
struct Call {
    std::mutex mutex;
    std::condition_variable answered;
    std::optional<Answer> answer;
};

Answer answerOf(QKeychain::Job* job)
{
    if (job->error() != QKeychain::NoError) {
        return {job->error(), job->errorString().toStdString()};
    }
    const auto* const read = qobject_cast<QKeychain::ReadPasswordJob*>(job);
    return {QKeychain::NoError, read != nullptr ? read->textData().toStdString() : std::string()};
}

/// A question on its way to the thread that asks it.
class AskEvent final : public QEvent
{
public:
    AskEvent(std::shared_ptr<Call> theCall, std::function<QKeychain::Job*()> theMaker)
        : QEvent(eventType()), call(std::move(theCall)), makeJob(std::move(theMaker))
    {
    }
    static Type eventType()
    {
        static const int type = registerEventType();
        return static_cast<Type>(type);
    }

    const std::shared_ptr<Call> call;
    const std::function<QKeychain::Job*()> makeJob;
};

/// Starts the jobs, on the thread on which it lives.
class Starter final : public QObject
{
public:
    bool event(QEvent* event) override
    {
        if (event->type() != AskEvent::eventType()) {
            return QObject::event(event);
        }
        const auto& ask = static_cast<const AskEvent&>(*event);
        QKeychain::Job* const job = ask.makeJob();
        connect(job, &QKeychain::Job::finished, job, [call = ask.call](QKeychain::Job* finished) {
            const std::lock_guard lock(call->mutex);
            call->answer = answerOf(finished);
            call->answered.notify_all();
        });
        job->setAutoDelete(true);
        // Never a plain file in place of the service.
        job->setInsecureFallback(false);
        job->start();
        return true;
    }
};

} // namespace

/// The thread on which every job lives. The library runs one job at a time, so one that never ends blocks all others.
class SystemKeychain::Worker
{
public:
    explicit Worker(std::chrono::milliseconds deadline) : m_deadline(deadline)
    {
        m_thread->setObjectName(QStringLiteral("lodestar-keychain"));
        m_starter->moveToThread(m_thread.get());
        QObject::connect(
            m_thread.get(), &QThread::started, m_thread.get(),
            [] { static thread_local const OwnThread thread("lodestar-keych"); }, Qt::DirectConnection);
        m_thread->start();
    }
    ~Worker()
    {
        m_thread->quit();
        if (m_thread->wait(QDeadlineTimer(m_deadline))) {
            return;
        }
        // Stuck inside the library, for good perhaps: Qt ends a process that destroys a running thread.
        static_cast<void>(m_thread.release());
        static_cast<void>(m_starter.release());
    }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    Result<std::string> ask(std::function<QKeychain::Job*()> makeJob)
    {
        if (m_owed != nullptr) {
            const std::lock_guard lock(m_owed->mutex);
            if (!m_owed->answer) {
                return makeError(timedOut, "The keychain service has not answered an earlier request.");
            }
        }
        m_owed.reset();
        const auto call = std::make_shared<Call>();
        QCoreApplication::postEvent(m_starter.get(), new AskEvent(call, std::move(makeJob)));
        std::unique_lock lock(call->mutex);
        if (!call->answered.wait_for(lock, m_deadline, [&] { return call->answer.has_value(); })) {
            m_owed = call;
            return makeError(timedOut, "The keychain service does not answer.");
        }
        if (call->answer->code != QKeychain::NoError) {
            return makeError(call->answer->code, std::move(call->answer->text));
        }
        return std::move(call->answer->text);
    }

private:
    const std::chrono::milliseconds m_deadline;
    std::unique_ptr<QThread> m_thread = std::make_unique<QThread>();
    std::unique_ptr<Starter> m_starter = std::make_unique<Starter>();
    std::shared_ptr<Call> m_owed; ///< the call that was given up, until it is known to have ended
};

SystemKeychain::SystemKeychain(std::chrono::milliseconds deadline) : m_worker(std::make_unique<Worker>(deadline)) {}

SystemKeychain::~SystemKeychain() = default;

Result<std::string> SystemKeychain::password(const std::string& service, const std::string& account)
{
    auto answer = m_worker->ask([service, account] {
        auto* const job = new QKeychain::ReadPasswordJob(QString::fromStdString(service));
        job->setKey(QString::fromStdString(account));
        return job;
    });
    if (!answer && answer.error().code == QKeychain::EntryNotFound) {
        return std::string();
    }
    return answer;
}

Result<void> SystemKeychain::setPassword(const std::string& password, const std::string& service,
                                         const std::string& account)
{
    // The service would keep what stands before it, and call that a success.
    if (password.find('\0') != std::string::npos) {
        return makeError(notAText, "The keychain service keeps no text with a null character.");
    }
    const Result<std::string> answer = m_worker->ask([password, service, account] {
        auto* const job = new QKeychain::WritePasswordJob(QString::fromStdString(service));
        job->setKey(QString::fromStdString(account));
        job->setTextData(QString::fromStdString(password));
        return job;
    });
    return answer ? Result<void>() : Result<void>(answer.error());
}

} // namespace lodestar
