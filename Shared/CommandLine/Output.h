// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine/Terminal.h"
#include "Fleet/Csv.h"
#include "Platform/Result.h"

#include <string_view>

namespace lodestar
{

/// Standard output, which this takes for itself: the client's own lines of the transport, which a script could not tell
/// from an answer, go nowhere from then on. Each call writes at once; after a failure nothing more is written.
class Output
{
public:
    Output();
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    int descriptor() const { return m_descriptor; }
    const Terminal& terminal() const { return m_terminal; }
    void write(std::string_view text);
    /// The table as comma-separated values: whole, byte for byte, except that a terminal is shown no control
    /// characters.
    void writeCsv(const Table& table);
    /// Why not everything was written; fails with `commandOutputClosed` when nobody reads any more.
    const Result<void>& result() const { return m_result; }

private:
    const Terminal m_terminal;
    const int m_descriptor;
    Result<void> m_result;
};

} // namespace lodestar
