// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/RXPromiseTypes.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar
{

/// The one-shot result of an operation: fulfilled with a value, rejected with an error, or cancelled; once, whoever
/// comes first, and for good. A handle: copies are the same promise. A handle that was moved from may only be assigned
/// or destroyed. `T` is copyable, or void; a result that may be no value is `std::optional`.
///
/// Chains. `then` and its kin register a success handler (taking the value, nothing for void) and a failure handler
/// (taking the error, also for a cancelled promise) and return a derived promise, which settles with the outcome:
///  - what the matching handler returned: `R` or nothing fulfils, `Error` rejects, `Result<R>` does either, and with
///    `RXPromise<R>` the derived promise settles later, as that one does;
///  - with no matching handler (`nullptr`), this promise's own result, unchanged;
///  - if this promise was cancelled, the derived one is cancelled with the outcome's error. An outcome that is no error
///    becomes one whose reason is its text, if it is text.
/// Both handlers must agree on `R`; returning nothing counts as `std::nullopt` where `R` is optional.
///
/// Who runs where. Settling and registering are allowed on any thread. Handlers never run on the stack that settles or
/// registers: they are handed to their context when the promise settles, or at once if it has. Handlers of one promise
/// run in the order in which they were registered, whatever their contexts: the next is handed to its context when the
/// one before has returned, and so may not be waited for by it. A handler that throws ends the process.
///
/// Who keeps what alive. A promise keeps its handlers and so the promises derived from it; a derived promise does not
/// keep its parent. Whoever is to settle a promise therefore holds it, and everything behind it may be let go: once it
/// settles, all handlers still run. A promise that is let go unsettled takes its handlers and their captures with it,
/// and what was derived from it stays pending. Captures are destroyed as soon as the handler has run, or is known to
/// never run. A handler that captures its own unsettled promise is a cycle, broken by settling only.
template <typename T>
class RXPromise
{
public:
    using Value = T;

    /// Pending.
    RXPromise() : m_core(promise::Ref<Core>::adopt(new Core(ExecutionContext::defaultContext()))) {}

    void fulfillWithValue(promise::Stored<T> value) const requires(!std::is_void_v<T>)
    {
        const auto core = m_core; // what owns this handle may go as soon as others see the state
        core->fulfil(std::move(value));
    }
    void fulfillWithValue() const requires std::is_void_v<T>
    {
        const auto core = m_core;
        core->fulfil({});
    }
    /// Keeps the error as it is.
    void rejectWithReason(Error error) const
    {
        const auto core = m_core;
        core->settleWithError(promise::State::Rejected, std::move(error));
    }
    /// With an error of domain "RXPromise", code -1000, whose failure reason is the text.
    void rejectWithReason(std::string_view reason) const { rejectWithReason(promise::errorWithReason(reason)); }
    void rejectWithReason(const char* reason) const { rejectWithReason(std::string_view(reason)); }
    /// As with the text "".
    void rejectWithReason() const { rejectWithReason(std::string_view()); }
    /// Cancels this promise and, through the handlers, what is derived from it.
    void cancel() const
    {
        const auto core = m_core;
        core->settleWithError(promise::State::Cancelled, promise::errorWithReason("cancelled"));
    }

    /// Handlers on the default concurrent queue.
    template <typename Success, typename Failure = std::nullptr_t>
    auto then(Success success, Failure failure = nullptr) const
    {
        return thenOn(ExecutionContext::defaultContext(), std::move(success), std::move(failure));
    }
    /// Handlers on the main thread.
    template <typename Success, typename Failure = std::nullptr_t>
    auto thenOnMain(Success success, Failure failure = nullptr) const
    {
        return thenOn(ExecutionContext::mainThread(), std::move(success), std::move(failure));
    }
    /// Handlers on a queue, a thread or where an object context is used.
    template <typename Success, typename Failure = std::nullptr_t>
    auto thenOn(ExecutionContext context, Success success, Failure failure = nullptr) const
    {
        using Derived = promise::DerivedCore<T, Success, Failure>;
        auto derived =
            promise::Ref<Derived>::adopt(new Derived(std::move(context), std::move(success), std::move(failure)));
        RXPromise<typename Derived::Value> result{promise::Ref<typename Derived::Base>(*derived)};
        m_core->registerDerived(promise::Ref<promise::Core>::adopt(derived.detach()));
        return result;
    }

    /// Fulfilled with the values in the order of the inputs once all are fulfilled, at once when there are none.
    /// Rejected with the error of the first input that is rejected or cancelled.
    static RXPromise<std::vector<T>> all(const std::vector<RXPromise>& inputs) requires(!std::is_void_v<T>)
    {
        RXPromise<std::vector<T>> result{
            promise::Ref<promise::ValueCore<std::vector<T>>>::adopt(new promise::AllCore<T>(inputs.size()))};
        auto& all = static_cast<promise::AllCore<T>&>(*result.m_core);
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            all.addInput(i, *inputs[i].m_core);
        }
        return result;
    }

    bool isPending() const { return m_core->state() == promise::State::Pending; }
    bool isFulfilled() const { return m_core->state() == promise::State::Fulfilled; }
    bool isRejected() const { return m_core->state() == promise::State::Rejected; }
    bool isCancelled() const { return m_core->state() == promise::State::Cancelled; }
    /// None while pending; the error of a cancelled promise.
    std::optional<Result<T>> result() const { return m_core->result(); }

    /// "RXPromise.handler_queue-%p" with the promise's identity; empty before anything was registered.
    std::string handlerQueueLabel() const { return m_core->handlerQueueLabel(); }
    /// Whether this promise was returned by `then` or its kin of the other.
    template <typename U>
    bool isDerivedFrom(const RXPromise<U>& parent) const
    {
        return m_core->isDerivedFrom(*parent.m_core);
    }

    friend bool operator==(const RXPromise& a, const RXPromise& b) { return a.m_core.get() == b.m_core.get(); }

private:
    template <typename U>
    friend class RXPromise;
    template <typename U>
    friend class promise::ValueCore;
    using Core = promise::ValueCore<T>;

    explicit RXPromise(promise::Ref<Core> core) : m_core(std::move(core)) {}

    promise::Ref<Core> m_core;
};

} // namespace lodestar
