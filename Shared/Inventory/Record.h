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

/// The text as rows, log lines and addresses show it; "(null)" for none.
inline std::string shownText(const std::optional<std::string>& text)
{
    return text.value_or("(null)");
}

/// What a console reports about one of its objects. A cheap value over an element of a feed. A field that the console
/// leaves out is none; a record without an element has no fields. Any thread.
class Record
{
public:
    Record() = default;
    explicit Record(XMLElement element) : m_element(std::move(element)) {}

    bool exists() const { return m_element.exists(); }
    explicit operator bool() const { return exists(); }
    /// The element from which the fields are read.
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

/// The numbers by which a maker identifies a machine.
class MachineIdentity : public Record
{
public:
    using Record::Record;
    std::optional<std::string> serialNumber() const { return text("SerialNumber"); }
    std::optional<std::string> machineType() const { return text("MachineType"); }
    std::optional<std::string> model() const { return text("Model"); }
};

/// The record in a feed's entry; none when the entry holds another type.
template <typename Kind>
Kind recordOfEntry(const XMLElement& entry)
{
    return Kind(contentOf(entry, Kind::type));
}

/// The feed's records in the feed's order, without entries of other types; none when the feed is "NA".
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
