// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Fleet/Change.h"
#include "XML/XMLElement.h"

#include <map>
#include <memory>
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
    /// Forgets what was found. To be called when the list of consoles or their feeds may have changed.
    void forget();

private:
    using Objects = std::unordered_map<std::string, XMLElement>;
    const Objects& objectsOf(const Corvel& corvel, const std::string& type);

    std::map<std::string, CorvelRef> m_consoles; ///< by address
    std::map<std::pair<const Corvel*, std::string>, Objects> m_objects;
};

} // namespace lodestar
