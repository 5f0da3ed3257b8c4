// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "CommandLine/Loop.h"
#include "Platform/Result.h"

#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace lodestar
{

/// This process's hold on a data folder: the same files, in the same order and under the same lock as the application
/// has them. One in the process. Main thread. Its end writes what waits.
class Session
{
public:
    /// Fails with a sentence for a person. An empty folder is the application's own.
    static Result<std::unique_ptr<Session>> open(const std::string& folder);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Loop& loop() { return m_loop; }
    /// The registered consoles with these names or addresses, in their order; all for none. Fails for a name that no
    /// console has.
    Result<std::vector<CorvelRef>> consoles(const std::vector<std::string>& named = {}) const;
    /// Runs until everything that was read is compared and kept, and says so when the history was damaged. Fails when a
    /// signal came.
    Result<void> awaitHistory();
    /// Stores what changed of the consoles.
    Result<void> save();

private:
    explicit Session(std::string folder);
    void tellOfDamage();

    const std::string m_folder;
    ino_t m_damagedFile; ///< the history that was set aside; 0 for none
    Loop m_loop;
};

/// What a person calls the console: its name, or its address when it has none.
std::string calledName(const Corvel& corvel);

} // namespace lodestar
