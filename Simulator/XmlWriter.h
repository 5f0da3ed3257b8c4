// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar::simulator
{

/// Writes XML elements into a text.
class XmlWriter
{
public:
    using Attributes = std::vector<std::pair<std::string_view, std::string>>;

    void open(std::string name, const Attributes& attributes = {});
    void close();
    /// Writes an element with a text, which is escaped.
    void text(std::string_view name, std::string_view value, const Attributes& attributes = {});
    /// Does what `text` does, or nothing without a value.
    void textIfAny(std::string_view name, const std::optional<std::string>& value);
    void number(std::string_view name, long long value) { text(name, std::to_string(value)); }
    void empty(std::string_view name, const Attributes& attributes = {});
    /// Writes the markup as it stands.
    void raw(std::string_view markup);

    std::size_t size() const { return m_out.size(); }
    /// The text written so far. Every element must be closed.
    std::string take() { return std::move(m_out); }

private:
    void startTag(std::string_view name, const Attributes& attributes);
    void escaped(std::string_view value);

    std::string m_out;
    std::vector<std::string> m_names;
};

} // namespace lodestar::simulator
