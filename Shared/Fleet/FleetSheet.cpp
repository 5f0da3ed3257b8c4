// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FleetSheet.h"

#include "Controllers/REST/RESTHandler.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace lodestar
{
namespace
{

enum Column : std::size_t { Name, Address, User, ColumnCount };
constexpr std::array<std::string_view, ColumnCount> titles = {"name", "address", "user"};
/// A title with one of these speaks of a password.
constexpr std::array<std::string_view, 4> secrets = {"pass", "pwd", "secret", "kennwort"};
/// A host name is shorter; a number in brackets, too.
constexpr std::size_t longestAddress = 255;

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n\v\f";
    const std::size_t begin = text.find_first_not_of(blanks);
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::string lowered(std::string_view text)
{
    std::string result(text);
    std::ranges::transform(result, result.begin(),
                           [](unsigned char each) { return static_cast<char>(std::tolower(each)); });
    return result;
}

/// Whether the text can stand between "https://" and the port: letters, digits, ".", "-" and "_", letters of other
/// languages, or a number of the longer kind in brackets. Anything else would make another address of it.
bool isAddress(std::string_view text)
{
    if (text.empty() || text.size() > longestAddress) {
        return false;
    }
    if (text.starts_with('[')) {
        return text.size() > 3 && text.find(']') == text.size() - 1 &&
               std::ranges::all_of(text.substr(1, text.size() - 2), [](unsigned char each) {
                   return std::isxdigit(each) != 0 || each == ':' || each == '.';
               });
    }
    return std::ranges::all_of(text, [](unsigned char each) {
        return std::isalnum(each) != 0 || each >= 0x80 || each == '.' || each == '-' || each == '_';
    });
}

std::string problemOf(SheetRowKind kind)
{
    switch (kind) {
    case SheetRowKind::New:
    case SheetRowKind::RegisteredAlready:
        break;
    case SheetRowKind::NoAddress:
        return "no_address";
    case SheetRowKind::NoUser:
        return "no_user";
    case SheetRowKind::BadAddress:
        return "bad_address";
    case SheetRowKind::SameAddress:
        return "same_address";
    }
    return {};
}

/// Where the columns of a sheet stand. Of two columns with one title the first is used.
struct Columns {
    std::array<std::optional<std::size_t>, ColumnCount> places;

    bool areWhole() const
    {
        return std::ranges::all_of(places, [](const auto& place) { return place.has_value(); });
    }

    std::string_view cell(const std::vector<std::string>& row, Column column) const
    {
        const std::size_t place = places.at(column).value_or(row.size());
        return place < row.size() ? trimmed(row[place]) : std::string_view();
    }
};

Columns findColumns(const std::vector<std::string>& line, FleetSheet& sheet)
{
    Columns columns;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const std::string_view title = trimmed(line[i]);
        const std::string plain = lowered(title);
        const auto known = static_cast<std::size_t>(std::ranges::find(titles, plain) - titles.begin());
        if (known < ColumnCount && !columns.places.at(known)) {
            columns.places.at(known) = i;
        } else if (std::ranges::any_of(secrets, [&plain](auto word) { return plain.find(word) != plain.npos; })) {
            sheet.passwordColumns.emplace_back(title);
        } else if (!title.empty()) {
            sheet.unknownColumns.emplace_back(title);
        }
    }
    return columns;
}

/// Tells what the rows of one sheet are, in their order.
class Judge
{
public:
    explicit Judge(const std::vector<std::string>& registered) : m_registered(registered.begin(), registered.end()) {}

    void judge(SheetRow& row)
    {
        if (row.address.empty()) {
            row.kind = SheetRowKind::NoAddress;
        } else if (!isAddress(row.address)) {
            row.kind = SheetRowKind::BadAddress;
        } else if (m_registered.contains(row.address)) {
            row.kind = SheetRowKind::RegisteredAlready;
        } else if (row.user.empty()) {
            row.kind = SheetRowKind::NoUser;
        } else if (const auto [first, isNew] = m_lines.emplace(row.address, row.line); !isNew) {
            row.kind = SheetRowKind::SameAddress;
            row.sameAs = first->second;
        }
    }

private:
    const std::unordered_set<std::string> m_registered;
    std::unordered_map<std::string, std::size_t> m_lines;
};

std::vector<std::string> usersOf(const std::vector<SheetRow>& rows, bool (*counts)(const SheetRow&))
{
    std::vector<std::string> users;
    std::unordered_set<std::string_view> known;
    for (const SheetRow& row : rows) {
        if (counts(row) && known.insert(row.user).second) {
            users.push_back(row.user);
        }
    }
    return users;
}

} // namespace

std::size_t FleetSheet::count(SheetRowKind kind) const
{
    return static_cast<std::size_t>(std::ranges::count(rows, kind, &SheetRow::kind));
}

std::size_t FleetSheet::unusable() const
{
    return static_cast<std::size_t>(std::ranges::count_if(rows, &SheetRow::isUnusable));
}

std::vector<std::string> FleetSheet::users() const
{
    return usersOf(rows, [](const SheetRow& row) { return row.kind == SheetRowKind::New; });
}

std::vector<std::string> FleetSheet::allUsers() const
{
    return usersOf(rows, [](const SheetRow& row) { return !row.user.empty(); });
}

Result<FleetSheet> readFleetSheet(std::string_view bytes, const std::vector<std::string>& registeredAddresses)
{
    std::vector<std::size_t> lines;
    const Result<Table> table = readCsv(bytes, &lines);
    if (!table) {
        return table.error();
    }
    FleetSheet sheet;
    const Columns columns = findColumns(table.value().titles, sheet);
    if (!columns.areWhole()) {
        return Error{
            std::string(sheetErrorDomain), sheetNoColumns, {}, "no first line with name, address and user", nullptr};
    }
    Judge judge(registeredAddresses);
    sheet.rows.reserve(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::vector<std::string>& cells = table.value().rows[i];
        SheetRow row;
        row.line = lines[i];
        row.address = columns.cell(cells, Address);
        row.user = columns.cell(cells, User);
        row.name = columns.cell(cells, Name);
        // Spreadsheets like to write lines of empty cells after the last row.
        if (row.address.empty() && row.user.empty() && row.name.empty()) {
            continue;
        }
        if (row.name.empty()) {
            row.name = row.address;
        }
        judge.judge(row);
        sheet.rows.push_back(std::move(row));
    }
    return sheet;
}

std::vector<std::string> registeredAddresses()
{
    std::vector<std::string> addresses;
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
        addresses.push_back(corvel->address().value_or(""));
    }
    return addresses;
}

Table fleetSheetOf(const std::vector<CorvelRef>& consoles)
{
    Table table{{titles.begin(), titles.end()}, {}};
    for (const CorvelRef& corvel : consoles) {
        if (corvel->demo() != 1) {
            table.rows.push_back(
                {corvel->name().value_or(""), corvel->address().value_or(""), corvel->username().value_or("")});
        }
    }
    return table;
}

Table tableOfUnusable(const FleetSheet& sheet)
{
    Table table{{titles.begin(), titles.end()}, {}};
    table.titles.insert(table.titles.end(), {"line", "problem"});
    for (const SheetRow& row : sheet.rows) {
        if (row.isUnusable()) {
            table.rows.push_back({row.name, row.address, row.user, std::to_string(row.line), problemOf(row.kind)});
        }
    }
    return table;
}

} // namespace lodestar
