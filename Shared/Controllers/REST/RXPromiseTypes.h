// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/RXPromiseCore.h"
#include "Platform/Result.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace lodestar
{

template <typename T>
class RXPromise;

/// The typed half of `RXPromise`: values and handlers. Users of promises need nothing from here.
namespace promise
{

/// The type in which a `T` is stored.
template <typename T>
using Stored = std::conditional_t<std::is_void_v<T>, std::monostate, T>;

template <typename T>
inline constexpr bool isOptional = false;
template <typename T>
inline constexpr bool isOptional<std::optional<T>> = true;
template <typename T>
inline constexpr bool isPromise = false;
template <typename T>
inline constexpr bool isPromise<RXPromise<T>> = true;
template <typename T>
inline constexpr bool isResult = false;
template <typename T>
inline constexpr bool isResult<Result<T>> = true;

/// Marks for handlers that do not determine the derived promise's type.
struct Absent {
};
struct ErrorOnly {
};

/// The type that a handler's return type stands for.
template <typename Returned>
struct Unwrap {
    using Type = Returned;
};
template <>
struct Unwrap<Error> {
    using Type = ErrorOnly;
};
template <typename T>
struct Unwrap<Result<T>> {
    using Type = T;
};
template <typename T>
struct Unwrap<RXPromise<T>> {
    using Type = T;
};

template <typename Handler, typename... Arguments>
struct HandlerOutcome {
    static_assert(std::is_invocable_v<Handler&, Arguments...>,
                  "A success handler takes the promise's value (nothing for void), a failure handler an Error");
    using Returned = std::decay_t<std::invoke_result_t<Handler&, Arguments...>>;
    using Type = typename Unwrap<Returned>::Type;
};
template <typename... Arguments>
struct HandlerOutcome<std::nullptr_t, Arguments...> {
    using Returned = Absent;
    using Type = Absent;
};
template <typename Handler>
struct HandlerOutcome<Handler, void> : HandlerOutcome<Handler> {
};
template <>
struct HandlerOutcome<std::nullptr_t, void> {
    using Returned = Absent;
    using Type = Absent;
};

/// Whether a handler's outcome can settle a promise of `R`.
template <typename Outcome, typename R>
constexpr bool agrees()
{
    using Type = typename Outcome::Type;
    if constexpr (std::is_same_v<Type, R> || std::is_same_v<Type, ErrorOnly>) {
        return true;
    } else if constexpr (std::is_void_v<Type>) {
        return isOptional<R> && !isPromise<typename Outcome::Returned>;
    } else if constexpr (std::is_void_v<R> || isPromise<typename Outcome::Returned>) {
        return false;
    } else {
        return std::is_convertible_v<Type, R>;
    }
}

/// The derived promise's type.
template <typename T, typename Success, typename Failure>
struct Derivation {
    using SuccessOutcome = HandlerOutcome<Success, std::conditional_t<std::is_void_v<T>, void, const Stored<T>&>>;
    using FailureOutcome = HandlerOutcome<Failure, const Error&>;
    template <typename Type, typename Otherwise>
    using IfValue =
        std::conditional_t<std::is_same_v<Type, Absent> || std::is_same_v<Type, ErrorOnly>, Otherwise, Type>;

    using Type = std::conditional_t<std::is_same_v<Success, std::nullptr_t>, T,
                                    IfValue<typename SuccessOutcome::Type, IfValue<typename FailureOutcome::Type, T>>>;
    static_assert(std::is_same_v<Failure, std::nullptr_t> || agrees<FailureOutcome, Type>(),
                  "Both handlers must agree on the type of the derived promise (an absent success handler passes the "
                  "promise's own value on)");
};

/// A promise of `T`.
template <typename T>
class ValueCore : public Core
{
public:
    using Value = T;
    static_assert(std::is_copy_constructible_v<Stored<T>>, "Every handler may want the value");

    explicit ValueCore(ExecutionContext context) : Core(std::move(context)) {}
    ~ValueCore() override
    {
        if (settledState() == State::Fulfilled) {
            std::destroy_at(&m_value);
        }
    }

    void fulfil(Stored<T> value)
    {
        settle(State::Fulfilled, [&] { std::construct_at(&m_value, std::move(value)); });
    }
    /// Call it only when the promise is known to be fulfilled.
    const Stored<T>& value() const { return m_value; }
    std::optional<Result<T>> result() const
    {
        switch (state()) {
        case State::Pending:
            return std::nullopt;
        case State::Fulfilled:
            if constexpr (std::is_void_v<T>) {
                return Result<T>();
            } else {
                return Result<T>(m_value);
            }
        default:
            return Result<T>(*error());
        }
    }

protected:
    /// Settles with a handler's outcome.
    template <typename Outcome>
    void resolve(State parentState, Outcome outcome)
    {
        if constexpr (isResult<Outcome>) {
            if (!outcome.ok()) {
                resolve(parentState, outcome.error());
            } else if constexpr (std::is_same_v<Outcome, Result<void>>) {
                resolve(parentState, std::monostate());
            } else {
                resolve(parentState, std::move(outcome).value());
            }
        } else if constexpr (std::is_same_v<Outcome, Error>) {
            settleWithError(parentState == State::Cancelled ? State::Cancelled : State::Rejected, std::move(outcome));
        } else if (parentState == State::Cancelled) {
            settleWithError(State::Cancelled, errorWithReason(text(outcome)));
        } else if constexpr (isPromise<Outcome>) {
            bind(*outcome.m_core);
        } else if constexpr (std::is_same_v<Outcome, std::monostate>) {
            fulfil({});
        } else {
            fulfil(std::move(outcome));
        }
    }

    void adoptValue(const Core& other) override { fulfil(static_cast<const ValueCore&>(other).m_value); }

private:
    template <typename Outcome>
    static std::string_view text(const Outcome& outcome)
    {
        if constexpr (std::is_convertible_v<const Outcome&, std::string_view>) {
            return outcome;
        } else {
            return {};
        }
    }

    union {
        Stored<T> m_value; ///< exists once fulfilled
    };
};

/// The promise of a handler's outcome, derived from a promise of `T`.
template <typename T, typename Success, typename Failure>
class DerivedCore final : public ValueCore<typename Derivation<T, Success, Failure>::Type>
{
public:
    using Types = Derivation<T, Success, Failure>;
    using Base = ValueCore<typename Types::Type>;

    DerivedCore(ExecutionContext context, Success success, Failure failure)
        : Base(std::move(context)), m_handlers(std::in_place, std::move(success), std::move(failure))
    {
    }

private:
    struct Handlers {
        Handlers(Success s, Failure f) : success(std::move(s)), failure(std::move(f)) {}
        [[no_unique_address]] Success success;
        [[no_unique_address]] Failure failure;
    };

    void runHandler(Core& settledParent) override
    {
        const auto& parent = static_cast<const ValueCore<T>&>(settledParent);
        const State state = parent.settledState();
        if (state != State::Fulfilled) {
            if constexpr (std::is_same_v<Failure, std::nullptr_t>) {
                dropHandlers();
                this->settleWithError(state, parent.error());
            } else {
                conclude<typename Types::FailureOutcome::Returned>(
                    state, [&]() -> decltype(auto) { return m_handlers->failure(*parent.error()); });
            }
        } else if constexpr (std::is_same_v<Success, std::nullptr_t>) {
            dropHandlers();
            this->fulfil(parent.value());
        } else {
            conclude<typename Types::SuccessOutcome::Returned>(state, [&]() -> decltype(auto) {
                if constexpr (std::is_void_v<T>) {
                    return m_handlers->success();
                } else {
                    return m_handlers->success(parent.value());
                }
            });
        }
    }

    template <typename Returned, typename Call>
    void conclude(State parentState, Call call)
    {
        if constexpr (std::is_void_v<Returned>) {
            call();
            dropHandlers();
            this->resolve(parentState, std::monostate());
        } else {
            Returned outcome = call();
            dropHandlers();
            this->resolve(parentState, std::move(outcome));
        }
    }

    void dropHandlers() noexcept override { m_handlers.reset(); }

    std::optional<Handlers> m_handlers;
};

/// A promise of the values of many promises.
template <typename T>
class AllCore final : public ValueCore<std::vector<T>>
{
public:
    explicit AllCore(std::size_t count)
        : ValueCore<std::vector<T>>(ExecutionContext::defaultContext()),
          m_inputs(new Input[count]),
          m_slots(count),
          m_missing(count)
    {
        if (count == 0) {
            this->fulfil({});
        }
    }

    /// Call once for each index.
    void addInput(std::size_t index, Core& input)
    {
        Input& node = m_inputs[index];
        node.all = this;
        node.index = index;
        this->retain();
        input.addNode(node);
    }

private:
    /// Takes the input's result on the thread that settles the input: the only user code that runs is the value's copy
    /// constructor.
    struct Input final : Node {
        void parentSettled(Core& parent) override
        {
            all->inputSettled(index, static_cast<const ValueCore<T>&>(parent));
            all->release();
        }
        void parentGone() override { all->release(); }

        AllCore* all = nullptr;
        std::size_t index = 0;
    };
    using Slots = std::vector<std::optional<T>>;

    void inputSettled(std::size_t index, const ValueCore<T>& input)
    {
        if (input.settledState() != State::Fulfilled) {
            this->settleWithError(State::Rejected, input.error());
            // Frees the other inputs' values now: an input that settles late, or never, must not keep them in memory.
            Slots slots;
            SharedSyncQueue::sync([&] { slots.swap(m_slots); });
            return;
        }
        std::optional<T> value(input.value());
        const bool complete = SharedSyncQueue::sync([&] {
            if (m_slots.empty()) {
                return false;
            }
            m_slots[index] = std::move(value);
            return --m_missing == 0;
        });
        if (complete) {
            fulfilWithSlots();
        }
    }

    void fulfilWithSlots()
    {
        std::vector<T> values;
        values.reserve(m_slots.size());
        for (std::optional<T>& slot : m_slots) {
            values.push_back(std::move(*slot));
        }
        m_slots.clear();
        this->fulfil(std::move(values));
    }

    std::unique_ptr<Input[]> m_inputs;
    Slots m_slots; ///< guarded by the sync queue until no value is missing; empty once rejected
    std::size_t m_missing;
};

} // namespace promise
} // namespace lodestar
