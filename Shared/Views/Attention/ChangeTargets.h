// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Fleet/Change.h"
#include "Inventory/Feed.h"
#include "XML/XMLElement.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace lodestar
{

class ViewController;

/// Finds again what changes are about: the console among the registered ones, the object in the console's present
/// feeds. A feed is looked through once, for the first change that needs it. Main thread.
class ChangeTargets
{
public:
    /// Null when the console is not registered (any more).
    CorvelRef consoleOf(const Change& change);
    /// No element when the console's feeds do not have the object (any more).
    XMLElement objectOf(const Change& change);
    /// Whether `open` opens something.
    bool leadsOn(const Change& change);
    /// Opens the object's details, or the connection of a console that changed itself. Returns whether there was
    /// something to open.
    bool open(const Change& change, const ViewController& from);
    /// Forgets what was found at consoles that have come, gone or been read since. Returns whether there are any.
    bool follow();

private:
    struct Objects {
        std::shared_ptr<const FeedDictionary> feeds; ///< in which they are
        std::unordered_map<std::string, XMLElement> byIdentity{};
    };
    using ConsolesByAddress = std::map<std::string, CorvelRef>;
    static ConsolesByAddress registeredConsoles();
    const Objects& objectsOf(const Corvel& corvel, const std::string& type);

    std::optional<ConsolesByAddress> m_consoles; ///< none before the first change asks
    /// Shared only for the sake of `freedElsewhere`.
    std::map<std::pair<const Corvel*, std::string>, std::shared_ptr<const Objects>> m_objects;
};

} // namespace lodestar
