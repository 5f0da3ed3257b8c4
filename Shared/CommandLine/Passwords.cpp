// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Passwords.h"

#include "CommandLine/Failure.h"
#include "CommandLine/Loop.h"
#include "CommandLine/PlainText.h"
#include "CommandLine/Texts.h"
#include "Platform/PrivateFile.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace lodestar
{
namespace
{

using Texts::say;

constexpr std::size_t longest = 4096;

/// Reads up to a line's end, byte by byte: what follows may be for somebody else.
Result<std::string> readLine(int descriptor)
{
    std::string line;
    for (char letter = 0;;) {
        const ssize_t count = ::read(descriptor, &letter, 1);
        if (count < 0 && errno == EINTR && Loop::signal() == 0) {
            continue;
        }
        if (Loop::signal() != 0) {
            return interrupted();
        }
        if (count < 0) {
            return fileError(say(TEXT("CommandLine", "The password cannot be read")), errno);
        }
        if (count == 0 || letter == '\n') {
            break;
        }
        // Its rest would be the next user's password.
        if (line.size() == longest) {
            return failure(say(TEXT("CommandLine", "The password is too long.")));
        }
        line += letter;
    }
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return line;
}

Result<std::string> readPassword(int descriptor)
{
    Result<std::string> line = readLine(descriptor);
    return line && line.value().empty()
               ? Result<std::string>(failure(say(TEXT("CommandLine", "There is no password."))))
               : line;
}

/// A terminal that does not show what is typed, as long as this lives.
class SilentTerminal
{
public:
    SilentTerminal() : m_descriptor(::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY))
    {
        if (m_descriptor >= 0 && ::tcgetattr(m_descriptor, &m_before) == 0) {
            termios silent = m_before;
            silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
            silent.c_lflag |= ICANON | ISIG;
            // These keys would end or halt the process before it could make the terminal as it was.
            silent.c_cc[VQUIT] = silent.c_cc[VSUSP] = _POSIX_VDISABLE;
            m_isSilent = ::tcsetattr(m_descriptor, TCSAFLUSH, &silent) == 0;
        }
    }
    ~SilentTerminal()
    {
        if (m_isSilent) {
            ::tcsetattr(m_descriptor, TCSAFLUSH, &m_before);
            writeFully(m_descriptor, "\n"); // the person's own was not shown
        }
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    SilentTerminal(const SilentTerminal&) = delete;
    SilentTerminal& operator=(const SilentTerminal&) = delete;

    bool isSilent() const { return m_isSilent; }
    Result<std::string> ask(const std::string& words) const
    {
        writeFully(m_descriptor, plainText(words) + ": ");
        return readPassword(m_descriptor);
    }

private:
    const int m_descriptor;
    termios m_before{};
    bool m_isSilent = false;
};

} // namespace

Result<std::string> Passwords::next(const std::string& words) const
{
    if (m_descriptor) {
        return readPassword(*m_descriptor);
    }
    const SilentTerminal terminal;
    return terminal.isSilent() ? terminal.ask(words)
                               : Result<std::string>(failure(
                                     say(TEXT("CommandLine", "There is no terminal to ask for the password. Give "
                                                             "--password-fd N to read it from descriptor N."))));
}

Result<void> Passwords::skip() const
{
    if (!m_descriptor) {
        return {};
    }
    const Result<std::string> line = readLine(*m_descriptor);
    return line ? Result<void>() : Result<void>(line.error());
}

} // namespace lodestar
