// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace lodestar
{

class WatchSurroundings;

/// The consoles that the watch leaves out because their certificate changed within an attempt: a further attempt would
/// take the new certificate and send it the password, which a person decides. Kept from run to run. Posts
/// "WatchDidChange". Main thread.
class WatchLeftOut
{
public:
    explicit WatchLeftOut(std::shared_ptr<WatchSurroundings> stage) : m_stage(std::move(stage)) {}

    /// Reads what the run before kept.
    void read();
    bool contains(const std::string& address) const { return m_addresses.contains(address); }
    std::vector<CorvelRef> consoles() const;
    /// Looks at all consoles' last refreshes.
    void notice();
    /// A console that answered a person's refresh is left out no longer.
    void didRefreshByHand(const Corvel& corvel);
    void keepOnly(const std::set<std::string>& addresses);

private:
    void set(std::set<std::string> addresses);

    const std::shared_ptr<WatchSurroundings> m_stage;
    std::set<std::string> m_addresses;
};

} // namespace lodestar
