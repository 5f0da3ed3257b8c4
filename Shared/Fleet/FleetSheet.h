// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Fleet/Csv.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{
/// @file
/// A fleet sheet: comma-separated values whose first line names the columns "name", "address" and "user" (in any
/// order and case). Never holds a password.

/// What a row of a sheet is.
enum class SheetRowKind {
    New,
    RegisteredAlready, ///< left alone
    NoAddress,
    NoUser,
    BadAddress,  ///< neither a host name nor a number, as one with a blank, a port or a path
    SameAddress, ///< as an earlier row
};
struct SheetRow {
    std::size_t line = 0; ///< as a spreadsheet counts: the first line is 1
    std::string name;     ///< the address when the sheet has no name
    std::string address;
    std::string user;
    SheetRowKind kind = SheetRowKind::New;
    std::size_t sameAs = 0; ///< with `SameAddress`: the line of the earlier row
    /// Neither new nor registered.
    bool isUnusable() const { return kind != SheetRowKind::New && kind != SheetRowKind::RegisteredAlready; }
};
struct FleetSheet {
    std::vector<SheetRow> rows;
    std::vector<std::string> unknownColumns; ///< titles that are not used
    /// Titles that speak of passwords. Their cells are not read, and a person should be told so.
    std::vector<std::string> passwordColumns;

    std::size_t count(SheetRowKind kind) const;
    std::size_t unusable() const; ///< how many rows
    /// The users of the new rows, each once, in the order of the sheet.
    std::vector<std::string> users() const;
    /// Those of all rows, also of rows that are registered or cannot be used.
    std::vector<std::string> allUsers() const;
};

inline constexpr std::string_view sheetErrorDomain = "FleetSheet";
enum SheetFailure {
    sheetNoColumns = 1, ///< no first line with name, address and user
};

/// Reads a sheet and compares it with the addresses that are registered; addresses are the same when they are equal
/// letter by letter, as everywhere. Blanks around a cell are left out. Fails with the errors of `readCsv`, too. Pure.
Result<FleetSheet> readFleetSheet(std::string_view bytes, const std::vector<std::string>& registeredAddresses);
/// The addresses that no new console may have: those of the working list. Main thread.
std::vector<std::string> registeredAddresses();
/// The consoles of the working list as a sheet. Without the demo console and without secrets. Main thread.
Table fleetSheetOf(const std::vector<CorvelRef>& consoles);

/// The rows that cannot be used, as a sheet to be mended and read again. After the columns of a sheet come "line" and
/// "problem", which is "no_address", "no_user", "bad_address" or "same_address".
Table tableOfUnusable(const FleetSheet& sheet);

/// Tries consoles and then adds all good ones or none. Until `add` nothing of them is in the store, in the defaults, in
/// the readings or in the history, so that a process that ends meanwhile leaves nothing either. Main thread; one at a
/// time. Made with `std::make_shared`.
class FleetImport : public std::enable_shared_from_this<FleetImport>
{
public:
    enum class State {
        Waiting,
        Verifying, ///< the logon is under way
        Gathering, ///< the feeds are
        Verified,
        Refused, ///< wrong user or password
        NoAnswer,
        NoSuchAddress,
        Failed ///< anything else
    };
    struct Row {
        SheetRow sheet;
        State state = State::Waiting;
        std::optional<Error> error = {}; ///< of a row that was tried and is not verified
        std::size_t missingFeeds = 0;    ///< of a verified row
        std::string version = {};        ///< of a verified row; empty when the console did not tell it
    };

    /// The new rows of a sheet, with the password of each user.
    /// A feed that is not there after its time-out is missing, as one that the console refuses: a person waits for the
    /// end of all, and the first refresh reads it.
    FleetImport(const FleetSheet& sheet, const std::map<std::string, std::string>& passwords,
                std::chrono::seconds feedTimeout = std::chrono::seconds(60));
    ~FleetImport();
    FleetImport(const FleetImport&) = delete;
    FleetImport& operator=(const FleetImport&) = delete;

    const std::vector<Row>& rows() const;
    std::size_t tried() const;
    std::size_t verified() const;
    bool isRunning() const;
    /// How long the trying will still take, smoothed and rounded; none while that cannot be told.
    std::optional<std::chrono::seconds> timeLeft() const;

    /// Tries the consoles side by side, as a refresh does. `changed` is called after each change, also after the last.
    void verify(std::function<void()> changed);
    /// Tries those once more that were tried and are not verified, with other passwords where they are given.
    void verifyAgain(const std::map<std::string, std::string>& passwords, std::function<void()> changed);
    /// Ends the trying. What was tried is forgotten, and no console is asked anything more.
    void stop();
    /// Adds all verified consoles to the working list and saves once. On a failed save none is added. A console whose
    /// address was registered meanwhile is left alone.
    Result<void> add();
    /// The rows that are not verified, as a sheet.
    Table notVerified() const;

private:
    struct Trying;
    const std::shared_ptr<Trying> m_trying;
};

} // namespace lodestar
