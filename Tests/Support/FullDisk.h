// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace lodestar::test
{

/// While it lives, a write that would make a file larger than this fails as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const struct rlimit limit = {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    struct rlimit m_before = {};
};

} // namespace lodestar::test
