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
        /// Whether screens show a button for the feedback screen, for devices that are not shaken.
        bool offersEntry = false;
    };
    /// One logged line, as a listener receives it.
    struct Entry {
        int level;
        int tag;
        int line;
        std::string_view fileName; ///< such as "Shared/Controllers/REST/RESTHandler"
        std::string_view method;   ///< such as "-[RESTHandler login:checkToken:]"
        std::span<void* const> stacktrace;
        std::string_view message;
    };

    template <typename... Args>
    static void logWithLevel(int level, int tag, int line, std::string_view fileName, std::string_view method,
                             std::span<void* const> stacktrace, fmt::format_string<Args...> format, Args&&... args)
    {
        write({level, tag, line, fileName, method, stacktrace, fmt::format(format, std::forward<Args>(args)...)});
    }

    /// The settings. Change them in place, on the main thread, before a session starts.
    static Settings& settings();
    /// Starts a new feedback session with the application's key, in the mode of the settings. A build with an address
    /// announces the session to the service there and does not wait for an answer. Main thread.
    static void startSession(std::string_view applicationKey);
    /// For `std::set_terminate`: logs the exception in flight without its secrets, notes it for the crash report and
    /// aborts.
    [[noreturn]] static void uncaughtExceptionHandler();
    /// Sets the function that gives the secrets which an exception's description might contain. The function is called
    /// on any thread and may take locks. An empty function removes it: descriptions then lose only text that looks like
    /// a secret.
    static void setSecretsProvider(std::function<std::vector<std::string>()> provider);
    /// Shows the feedback screen; without a presenter only logs a line. Main thread.
    static void feedback();
    /// Sets the function that `feedback` calls; an empty function removes it. Main thread.
    static void setFeedbackPresenter(std::function<void()> presenter);

    /// Writes lines to `folder`/lodestar.log from now on, rotated by size, files 0600 in a folder 0700. Without this
    /// call lines go only to listeners and, in debug builds, to standard error. A further call changes to its folder.
    /// Returns whether the folder can be written; when it cannot, logging goes on as before the call.
    static bool openLogFolder(const std::string& folder);
    /// Calls the function for every line, on the thread that logs the line, one line at a time, until the returned
    /// token is destroyed. After the token's destruction the function does not run any more. The message is unescaped,
    /// as it was logged. The function must neither log nor end its own token. For tests.
    [[nodiscard]] static std::shared_ptr<void> addListener(std::function<void(const Entry&)> listener);
    /// Empties the log: the current file, the rotated files and the lines kept in memory for a crash. Logging goes on.
    static void forget();
    /// Writes buffered lines now. Otherwise they are written in the background within a fraction of a second, and at
    /// exit.
    static void flush();

private:
    static void write(const Entry& entry);
};

/// The return addresses of the calling thread's stack, innermost first, at most 32.
std::vector<void*> callStackReturnAddresses();

} // namespace lodestar

/// The call in the form that every caller needs: level 2, tag 0, with this line and this stack.
#define LODESTAR_LOG(fileName, method, ...)                                                                            \
    ::lodestar::VireoLogger::logWithLevel(2, 0, __LINE__, fileName, method, ::lodestar::callStackReturnAddresses(),    \
                                          __VA_ARGS__)
