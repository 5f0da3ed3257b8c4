// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/Fault.h"
#include "Simulator/FeedWriter.h"
#include "Simulator/Http.h"
#include "Simulator/Inventory.h"
#include "Simulator/Leaf.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace lodestar::simulator
{

/// An inventory in the form in which it is served. Consoles share it.
struct ServedInventory {
    Inventory inventory;
    /// With blanks, by type.
    std::map<std::string, std::string, std::less<>> feeds;
    /// Single values in JSON's quotes, under "identifier/property".
    std::unordered_map<std::string, std::string> quickValues;

    ServedInventory(Inventory served, std::size_t feedBytes);
};

/// One console: its state and its answers, but no sockets.
class Console
{
public:
    Console(const Settings& settings, int index, std::string address, std::shared_ptr<const ServedInventory> inventory);

    int index() const { return m_index; }
    const std::string& address() const { return m_address; }
    const Inventory& inventory() const { return m_served->inventory; }
    /// Lets the function change what this console says from now on, in feeds and look-ups.
    void changeInventory(const std::function<void(Inventory&)>& change);

    /// The answer to the request; `faults` are those that strike the request. A redirect to another host leads to
    /// `nextAddress`.
    Response answer(const Request& request, const std::vector<Fault>& faults, const std::string& nextAddress);

    /// Makes every session key invalid.
    void expireSessions() { m_sessions.clear(); }
    RequestKind kindOf(const Request& request) const;
    /// Serves the text in place of the console's own feed from now on. The type may also be "Metrics" or
    /// "MetricsDocument".
    void setFeed(const std::string& type, std::string text);
    void resetFeed(const std::string& type) { m_ownFeeds.erase(type); }

    /// The certificate for new connections; the first call makes it.
    std::shared_ptr<const Leaf> leaf();
    /// Makes another certificate for new connections.
    void changeLeaf(Leaf::Kind kind);

private:
    Response logon(const Request& request);
    bool hasSession(const Request& request) const;
    Draft answerOf(const Request& request, const RequestKind& kind, const std::vector<Fault>& faults);
    Response quick(const std::string& path) const;
    Response metrics(const Request& request, const RequestKind& kind, const std::vector<Fault>& faults) const;
    void compress(Draft& draft);

    const Settings& m_settings;
    int m_index;
    std::string m_address;
    std::shared_ptr<const ServedInventory> m_served;
    BlankValues m_blanks;
    std::unordered_set<std::string> m_sessions;
    std::uint64_t m_logons = 0;
    std::map<std::string, std::shared_ptr<const std::string>> m_ownFeeds;
    std::map<std::string, std::shared_ptr<const std::string>, std::less<>> m_compressed;
    std::shared_ptr<const Leaf> m_leaf;
};

} // namespace lodestar::simulator
