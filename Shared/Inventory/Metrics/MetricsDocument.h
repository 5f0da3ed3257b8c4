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

/// Domain of the errors for a text that is no metrics document; the codes are the parser's.
inline constexpr std::string_view metricsErrorDomain = "MetricsDocument";

/// A value inside a metrics document, or none: reading something that is missing or has another type yields none. A
/// cheap value, which does not keep its document alive. Any thread.
class MetricsValue
{
public:
    MetricsValue() = default;

    /// False when the document lacks the value; true for a JSON null.
    bool exists() const { return m_handle.document != nullptr; }
    bool isNull() const;
    /// An object's member of that name; the first when there are several.
    MetricsValue member(std::string_view name) const;
    MetricsValue path(std::initializer_list<std::string_view> names) const;
    /// An array's first element.
    MetricsValue first() const;
    /// An array's elements; none for an empty array or anything else.
    std::vector<MetricsValue> elements() const;
    /// A JSON text as unescaped UTF-8, valid as long as the document.
    std::optional<std::string_view> text() const;
    /// Any number, negative ones included; none for texts and truth values.
    std::optional<double> number() const;

private:
    friend class MetricsDocument;

    /// Has the layout of the parser's own handle, so that this header need not include the parser's very large one.
    struct Handle {
        const void* document = nullptr;
        std::size_t place = 0;
    };
    explicit MetricsValue(Handle handle) : m_handle(handle) {}

    Handle m_handle;
};

/// A parsed metrics document, which its copies share. A document made without `parse` is empty: nothing can be read
/// from it. Takes up to ten bytes of memory for each byte of the text. Any thread.
class MetricsDocument
{
public:
    MetricsDocument() = default;

    /// Fails when the text is not JSON in UTF-8 with an object or an array at its top, or has more than `largest`
    /// bytes. A number beyond double precision does not fail the document: that number reads as a text.
    static Result<MetricsDocument> parse(const std::string& text);
    static constexpr std::size_t largest = std::size_t{64} * 1024 * 1024;

    /// The document must outlive every value read from it.
    MetricsValue root() const&;
    MetricsValue root() const&& = delete;

private:
    struct Tree;
    std::shared_ptr<const Tree> m_tree;
};

} // namespace lodestar
