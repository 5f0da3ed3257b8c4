// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Output.h"

#include "CommandLine/Failure.h"
#include "CommandLine/PlainText.h"
#include "CommandLine/Texts.h"
#include "Platform/PrivateFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace lodestar
{
namespace
{

/// Another descriptor for what standard output leads to; what is written to the first goes nowhere then.
int takeStandardOutput()
{
    const int taken = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (nowhere >= 0) {
        ::dup2(nowhere, STDOUT_FILENO);
        ::close(nowhere);
    }
    return taken;
}

} // namespace

Output::Output() : m_terminal(Terminal::of(STDOUT_FILENO)), m_descriptor(takeStandardOutput()) {}

Output::~Output()
{
    ::close(m_descriptor);
}

void Output::write(std::string_view text)
{
    if (!m_result) {
        return;
    }
    errno = 0;
    if (writeFully(m_descriptor, text) == text.size()) {
        return;
    }
    const int error = errno;
    m_result = error == EPIPE ? failure({}, commandOutputClosed)
                              : fileError(Texts::say(TEXT("CommandLine", "The output cannot be written")), error);
}

void Output::writeCsv(const Table& table)
{
    if (!m_terminal.isTerminal) {
        write(csvOf(table));
        return;
    }
    Table plain = table;
    for (auto& row : plain.rows) {
        for (std::string& cell : row) {
            cell = plainText(cell);
        }
    }
    write(csvOf(plain));
}

} // namespace lodestar
