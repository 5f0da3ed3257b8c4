// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>

namespace lodestar
{

/// A move-only `void()` callable, run at most once. Callables of up to `inlineSize` bytes are stored in place, so that
/// queueing a small block allocates nothing.
class Task
{
public:
    static constexpr std::size_t inlineSize = 48;
    static constexpr std::size_t inlineAlignment = alignof(std::max_align_t);

    Task() = default;
    template <typename F, typename = std::enable_if_t<!std::is_same_v<std::decay_t<F>, Task> &&
                                                      std::is_invocable_v<std::decay_t<F>&>>>
    Task(F&& function)
    {
        using Function = std::decay_t<F>;
        if constexpr (fitsInline<Function>()) {
            ::new (storage()) Function(std::forward<F>(function));
            m_operations = &inlineOperations<Function>;
        } else {
            ::new (storage()) Function*(new Function(std::forward<F>(function)));
            m_operations = &heapOperations<Function>;
        }
    }
    Task(Task&& other) noexcept { take(other); }
    Task& operator=(Task&& other) noexcept
    {
        if (this != &other) {
            reset();
            take(other);
        }
        return *this;
    }
    Task(const Task&) = delete;
    Task& operator=(const Task&) = delete;
    ~Task() { reset(); }

    explicit operator bool() const { return m_operations != nullptr; }
    void operator()() { m_operations->invoke(storage()); }
    /// Destroys the callable and what it captured.
    void reset()
    {
        if (m_operations != nullptr) {
            std::exchange(m_operations, nullptr)->destroy(storage());
        }
    }

private:
    struct Operations {
        void (*invoke)(void*);
        void (*move)(void* from, void* to) noexcept;
        void (*destroy)(void*) noexcept;
    };
    template <typename F>
    static constexpr bool fitsInline()
    {
        constexpr bool fits = sizeof(F) <= inlineSize;
        constexpr bool aligned = alignof(F) <= inlineAlignment;
        return fits && aligned && std::is_nothrow_move_constructible_v<F>;
    }
    template <typename F>
    static constexpr Operations inlineOperations = {
        [](void* at) { (*static_cast<F*>(at))(); },
        [](void* from, void* to) noexcept {
            ::new (to) F(std::move(*static_cast<F*>(from)));
            static_cast<F*>(from)->~F();
        },
        [](void* at) noexcept { static_cast<F*>(at)->~F(); },
    };
    template <typename F>
    static constexpr Operations heapOperations = {
        [](void* at) { (**static_cast<F**>(at))(); },
        [](void* from, void* to) noexcept { ::new (to) F*(*static_cast<F**>(from)); },
        [](void* at) noexcept { delete *static_cast<F**>(at); },
    };

    void* storage() { return m_storage; }
    void take(Task& other) noexcept
    {
        m_operations = std::exchange(other.m_operations, nullptr);
        if (m_operations != nullptr) {
            m_operations->move(other.storage(), storage());
        }
    }

    const Operations* m_operations = nullptr;
    alignas(inlineAlignment) std::byte m_storage[inlineSize];
};

} // namespace lodestar
