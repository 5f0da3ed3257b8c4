// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// Domain of the errors with which a text is no metrics document; the codes are the parser's.
inline constexpr std::string_view metricsErrorDomain = "MetricsDocument";

/// A value inside a metrics document, or none: every read of what is not there, or is of another type, yields none. A
/// cheap value that does not keep its document alive. Any thread.
class MetricsValue
{
public:
    MetricsValue() = default;

    /// False for what is not in the document; a JSON null is there.
    bool exists() const { return m_handle.document != nullptr; }
    bool isNull() const;
    /// The member of that name of an object, the first when there are several.
    MetricsValue member(std::string_view name) const;
    MetricsValue path(std::initializer_list<std::string_view> names) const;
    /// The first element of an array.
    MetricsValue first() const;
    /// The elements of an array; none for an empty one and for anything else.
    std::vector<MetricsValue> elements() const;
    /// A text in UTF-8, unescaped. It lives as long as the document.
    std::optional<std::string_view> text() const;
    /// Any number, also a negative one. Texts and truth values are none.
    std::optional<double> number() const;

private:
    friend class MetricsDocument;

    /// The parser's own handle in its layout, so that its very large header stays out of this one.
    struct Handle {
        const void* document = nullptr;
        std::size_t place = 0;
    };
    explicit MetricsValue(Handle handle) : m_handle(handle) {}

    Handle m_handle;
};

/// A parsed metrics document, kept whole and shared by its copies. One that was made without parsing is empty: nothing
/// can be read from it. Holds up to ten bytes for each byte of the text. Any thread.
class MetricsDocument
{
public:
    MetricsDocument() = default;

    /// Fails for what is not JSON in UTF-8 with an object or an array at its top, and for more than `largest` bytes. A
    /// number beyond what double precision holds fails only itself: it reads as a text.
    static Result<MetricsDocument> parse(const std::string& text);
    static constexpr std::size_t largest = std::size_t{64} * 1024 * 1024;

    /// The document must outlive what is read from it.
    MetricsValue root() const&;
    MetricsValue root() const&& = delete;

private:
    struct Tree;
    std::shared_ptr<const Tree> m_tree;
};

} // namespace lodestar
