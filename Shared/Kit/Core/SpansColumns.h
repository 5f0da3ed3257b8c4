// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace lodestar
{

/// A screen that takes the whole width of its stack, where others stand side by side: its content needs the room, or is
/// no choice among things to look at.
class SpansColumns
{
public:
    SpansColumns() = default;
    SpansColumns(const SpansColumns&) = delete;
    SpansColumns& operator=(const SpansColumns&) = delete;
    virtual ~SpansColumns() = default;

    /// Whether it does so now. A screen whose answer changes tells its stack by `columnsDidChange`.
    virtual bool spansColumns() const { return true; }
};

} // namespace lodestar
