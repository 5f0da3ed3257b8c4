// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace lodestar
{

/// Makes Qt's event loop drain `MainQueue::shared()` for as long as it lives, on the thread that made it, which becomes
/// the queue's main thread. To be made after and destroyed before the application object. Blocks that are still queued
/// then stay queued.
///
/// A block may run a nested event loop: the blocks behind it run there.
class MainLoop
{
public:
    MainLoop();
    ~MainLoop();
    MainLoop(const MainLoop&) = delete;
    MainLoop& operator=(const MainLoop&) = delete;

private:
    class Receiver;
    std::unique_ptr<Receiver> m_receiver;
};

} // namespace lodestar
