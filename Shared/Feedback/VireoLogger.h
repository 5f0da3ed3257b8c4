// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <fmt/core.h>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// The logger through which everything logs, and the entry to the feedback library. Thread-safe unless said otherwise.
/// Never pass a password, a session key or a body.
class VireoLogger
{
public:
    struct Settings {
        bool reportOnShake = false;
        int mode = 0;
        /// Screens offer a button for the feedback screen, on devices that are not shaken.
        bool offersEntry = false;
    };
    /// One line as it was logged; what a listener gets.
    struct Entry {
        int level;
        int tag;
        int line;
        std::string_view fileName; ///< as in "Shared/Controllers/REST/RESTHandler"
        std::string_view method;   ///< as in "-[RESTHandler login:checkToken:]"
        std::span<void* const> stacktrace;
        std::string_view message;
    };

    template <typename... Args>
    static void logWithLevel(int level, int tag, int line, std::string_view fileName, std::string_view method,
                             std::span<void* const> stacktrace, fmt::format_string<Args...> format, Args&&... args)
    {
        write({level, tag, line, fileName, method, stacktrace, fmt::format(format, std::forward<Args>(args)...)});
    }

    /// The settings, changed in place on the main thread before a session starts.
    static Settings& settings();
    /// Starts a new feedback session under the application's key, in the mode of the settings. A build that has an
    /// address announces it to the service there, and waits for nothing. Main thread.
    static void startSession(std::string_view applicationKey);
    /// Names this run of the program in the log and in reports. Any thread.
    static const std::string& sessionIdentifier();
    /// To be installed with `std::set_terminate`: logs the exception in flight without the secrets in it, notes it for
    /// the crash report and aborts.
    [[noreturn]] static void uncaughtExceptionHandler();
    /// The secrets that an exception's description might tell. The function is called on any thread; it may take locks.
    /// An empty function takes it away: descriptions are then told without what looks like a secret.
    static void setSecretsProvider(std::function<std::vector<std::string>()> provider);
    /// Presents the feedback screen; without a presenter only a line is logged. Main thread.
    static void feedback();
    /// What `feedback` calls; an empty function takes it away. Main thread.
    static void setFeedbackPresenter(std::function<void()> presenter);

    /// Lines go to `folder`/lodestar.log, rotated by size, files 0600 in a folder 0700. Without this call they go
    /// nowhere but to listeners and, in debug builds, to standard error. A second call moves on to its folder. Returns
    /// whether the folder can be written; when it cannot, logging goes on as before the call.
    static bool openLogFolder(const std::string& folder);
    /// Calls the function for every line, on the thread that logs it, one line at a time, until the returned token is
    /// destroyed: once that has returned the function does not run. The message comes as it was logged, unescaped.
    /// Lines that the function logs itself reach no listener. For tests and the debug console.
    [[nodiscard]] static std::shared_ptr<void> addListener(std::function<void(const Entry&)> listener);
    /// Empties the log: the file, those that were set aside, and what is kept in memory for a crash. Logging goes on.
    static void forget();
    /// Writes what is buffered. Lines are written in the background within a fraction of a second, and at exit.
    static void flush();

private:
    struct Line {
        int level;
        int tag;
        int line;
        std::string_view fileName;
        std::string_view method;
        std::span<void* const> stacktrace;
        std::string message;
    };
    static void write(const Line& line);
};

/// The return addresses of the calling thread's stack, innermost first, at most 32; none where the system cannot tell.
std::vector<void*> callStackReturnAddresses();

} // namespace lodestar

/// The call in the form that every caller wants: level 2, tag 0, with this line and this stack.
#define LODESTAR_LOG(fileName, method, ...)                                                                            \
    ::lodestar::VireoLogger::logWithLevel(2, 0, __LINE__, fileName, method, ::lodestar::callStackReturnAddresses(),    \
                                          __VA_ARGS__)
