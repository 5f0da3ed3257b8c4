// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/Feed.h"
#include "XML/XMLElement.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lodestar
{

/// The text, or "(null)" for none, as rows, log lines and addresses show it.
inline std::string shownText(const std::optional<std::string>& text)
{
    return text.value_or("(null)");
}

/// What a console says of one of its objects: a cheap value over an element of a feed. A field that the console leaves
/// out is none; a record of no element has no fields. Any thread.
class Record
{
public:
    Record() = default;
    explicit Record(XMLElement element) : m_element(std::move(element)) {}

    bool exists() const { return m_element.exists(); }
    explicit operator bool() const { return exists(); }
    /// What the fields are read from.
    const XMLElement& element() const { return m_element; }

    friend bool operator==(const Record&, const Record&) = default;

protected:
    std::optional<std::string> text(std::string_view name) const { return m_element.child(name).text(); }
    std::optional<std::string> text(std::initializer_list<std::string_view> path) const
    {
        return m_element.path(path).text();
    }

private:
    XMLElement m_element;
};

/// What identifies a machine to its maker.
class MachineIdentity : public Record
{
public:
    using Record::Record;
    std::optional<std::string> serialNumber() const { return text("SerialNumber"); }
    std::optional<std::string> machineType() const { return text("MachineType"); }
    std::optional<std::string> model() const { return text("Model"); }
};

/// The record in an entry of a feed; none in an entry of another type.
template <typename Kind>
Kind recordOfEntry(const XMLElement& entry)
{
    return Kind(contentOf(entry, Kind::type));
}

/// The records of a feed, in its order. Entries of other types are left out; "NA" has none.
template <typename Kind>
std::vector<Kind> recordsOf(const Feed& feed)
{
    std::vector<Kind> records;
    for (const XMLElement& entry : feed.entries()) {
        if (Kind record = recordOfEntry<Kind>(entry)) {
            records.push_back(std::move(record));
        }
    }
    return records;
}

} // namespace lodestar
