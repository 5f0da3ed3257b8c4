// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"

#include <cassert>
#include <utility>
#include <variant>

namespace lodestar
{

/// A value or an error, never both and never neither. `T` may not be `Error`.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_state(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : m_state(std::in_place_index<1>, std::move(error)) {}

    bool ok() const { return m_state.index() == 0; }
    explicit operator bool() const { return ok(); }

    /// Call it only when `ok()`.
    const T& value() const&
    {
        assert(ok());
        return *std::get_if<0>(&m_state);
    }
    T& value() &
    {
        assert(ok());
        return *std::get_if<0>(&m_state);
    }
    T&& value() &&
    {
        assert(ok());
        return std::move(*std::get_if<0>(&m_state));
    }
    /// Call it only when not `ok()`.
    const Error& error() const
    {
        assert(!ok());
        return *std::get_if<1>(&m_state);
    }

private:
    std::variant<T, Error> m_state;
};

/// Success without a value, or an error.
template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Error error) : m_failed(true), m_error(std::move(error)) {}

    bool ok() const { return !m_failed; }
    explicit operator bool() const { return ok(); }
    const Error& error() const
    {
        assert(m_failed);
        return m_error;
    }

private:
    bool m_failed = false;
    Error m_error;
};

} // namespace lodestar
