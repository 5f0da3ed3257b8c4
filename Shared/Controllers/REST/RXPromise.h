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

/// The one-shot result of an operation. It is fulfilled with a value, rejected with an error, or cancelled; the first
/// of these counts for good. A handle: copies are the same promise. A moved-from handle may only be assigned or
/// destroyed. `T` is copyable, or void; for a result that may be missing use `std::optional`.
///
/// Chains. `then` and its kin register a success handler (it takes the value, or nothing for void) and a failure
/// handler (it takes the error, also for a cancelled promise). They return a derived promise, which settles as follows:
///  - With the matching handler's result: `R` or nothing fulfils, `Error` rejects, `Result<R>` does either. After an
///    `RXPromise<R>` the derived promise settles later, with that promise's outcome.
///  - Without a matching handler (`nullptr`): with this promise's own outcome, unchanged.
///  - If this promise was cancelled, the derived promise is cancelled with the outcome's error. An outcome that is no
///    error becomes an error; the error's reason is the outcome's text, if it is text.
/// Both handlers must agree on `R`; returning nothing counts as `std::nullopt` where `R` is optional.
///
/// Who runs where. Any thread may settle and register. Handlers never run on the stack that settles or registers: they
/// are handed to their context when the promise settles, or at once if it has settled. Handlers of one promise run in
/// the order of registration, whatever their contexts: a handler is handed to its context when the one before has
/// returned. So a handler must not wait for a later one. A handler that throws ends the process.
///
/// Who keeps what alive. A promise keeps its handlers, and so the promises derived from it; a derived promise does not
/// keep its parent. Code that will settle a promise must hold it, and may release everything derived from it: once the
/// promise settles, all handlers still run. When a promise is released unsettled, its handlers and their captures are
/// destroyed, and the promises derived from it stay pending. Captures are destroyed as soon as the handler has run or
/// can no longer run. A handler that captures its own unsettled promise makes a cycle, which only settling breaks.
template <typename T>
class RXPromise
{
public:
    using Value = T;

    /// Makes a pending promise.
    RXPromise() : m_core(promise::Ref<Core>::adopt(new Core(ExecutionContext::defaultContext()))) {}

    void fulfillWithValue(promise::Stored<T> value) const requires(!std::is_void_v<T>)
    {
        // A copy of the handle: another thread may destroy this handle's owner as soon as it sees the new state.
        const auto core = m_core;
        core->fulfil(std::move(value));
    }
    void fulfillWithValue() const requires std::is_void_v<T>
    {
        const auto core = m_core;
        core->fulfil({});
    }
    /// Rejects with the error, unchanged.
    void rejectWithReason(Error error) const
    {
        const auto core = m_core;
        core->settleWithError(promise::State::Rejected, std::move(error));
    }
    /// Rejects with an error of domain "RXPromise" and code -1000, with the text as its failure reason.
    void rejectWithReason(std::string_view reason) const { rejectWithReason(promise::errorWithReason(reason)); }
    void rejectWithReason(const char* reason) const { rejectWithReason(std::string_view(reason)); }
    /// Rejects as with the text "".
    void rejectWithReason() const { rejectWithReason(std::string_view()); }
    /// Cancels this promise and, through the handlers, the promises derived from it.
    void cancel() const
    {
        const auto core = m_core;
        core->settleWithError(promise::State::Cancelled, promise::errorWithReason("cancelled"));
    }

    /// The handlers run on the default concurrent queue.
    template <typename Success, typename Failure = std::nullptr_t>
    auto then(Success success, Failure failure = nullptr) const
    {
        return thenOn(ExecutionContext::defaultContext(), std::move(success), std::move(failure));
    }
    /// The handlers run on the main thread.
    template <typename Success, typename Failure = std::nullptr_t>
    auto thenOnMain(Success success, Failure failure = nullptr) const
    {
        return thenOn(ExecutionContext::mainThread(), std::move(success), std::move(failure));
    }
    /// The handlers run on the given queue or thread, or on the object context's thread.
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

    /// Fulfilled with the values in the order of the inputs once all are fulfilled; at once when there are no inputs.
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
    /// None while pending. A cancelled promise gives its error.
    std::optional<Result<T>> result() const { return m_core->result(); }

    /// "RXPromise.handler_queue-%p" with the promise's identity; empty until a handler is registered.
    std::string handlerQueueLabel() const { return m_core->handlerQueueLabel(); }
    /// Whether a call of `then` or its kin on `parent` returned this promise.
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
