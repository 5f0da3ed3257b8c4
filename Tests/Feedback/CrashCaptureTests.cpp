// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportStore.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <thread>

namespace lodestar
{

using testing::HasSubstr;
using testing::Not;

namespace
{

namespace fs = std::filesystem;

/// Runs and deaths of the child program in one data folder.
class CrashCaptureTest : public testing::Test
{
protected:
    /// The wait status of the run.
    int run(const std::string& what) const
    {
        // A sanitizer's own handlers would turn the deaths looked for into exits of theirs.
        const std::string ownSignals = "handle_segv=0:handle_sigbus=0:handle_sigfpe=0:handle_sigill=0:handle_abort=0:"
                                       "handle_sigtrap=0:";
        return std::system(("ASAN_OPTIONS=" + ownSignals + "detect_leaks=0:detect_stack_use_after_return=0 " +
                            "TSAN_OPTIONS=" + ownSignals + "report_signal_unsafe=0 exec " CRASH_CHILD " " +
                            m_folder.path().string() + " " + what)
                               .c_str());
    }

    /// The signal that ended the run; 0 for none.
    int signalOf(const std::string& what) const
    {
        const int status = run(what);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

    /// How many reports the next start made; negative when it ended otherwise.
    int collect() const
    {
        const int status = run("collect");
        return WIFEXITED(status) ? WEXITSTATUS(status) - 100 : -1;
    }

    /// The one report that the next start makes, taken out of the store.
    ReportBundle collectOne() const
    {
        EXPECT_EQ(collect(), 1);
        const std::vector<Report> reports = m_store.unanswered();
        const auto bundle = m_store.read(reports.empty() ? "" : reports.front().identifier);
        EXPECT_TRUE(bundle && m_store.remove(bundle.value().identifier).ok());
        return bundle ? bundle.value() : ReportBundle();
    }

    std::size_t crashFiles() const
    {
        const fs::directory_iterator files(m_folder.path() / "Crashes");
        return static_cast<std::size_t>(std::distance(fs::begin(files), fs::end(files)));
    }

    ScratchFolder m_folder;
    ReportStore m_store{m_folder.file("Reports")};
};

} // namespace

TEST_F(CrashCaptureTest, EverySignalEndsTheProcessAsItWouldHaveAndLeavesAReport)
{
    struct Way {
        std::string what;
        int signal;
        std::string function = "crashHere";
    };
    const std::vector<Way> ways = {{"segv", SIGSEGV},
                                   {"bus", SIGBUS},
                                   // A call that leads nowhere is told by the function that made it.
                                   {"null-call", SIGSEGV, "callNowhere"},
                                   // Unwinding fails in the handler: the rest stands in the file by then.
                                   {"no-stack", SIGSEGV, "crashWithoutStack"},
                                   {"overflow", SIGSEGV, "overflow"},
                                   {"pool-overflow", SIGSEGV, "overflow"}};
    for (const auto& [what, signal, function] : ways) {
        SCOPED_TRACE(what);
        fs::remove_all(m_folder.path() / "Logs");
        EXPECT_EQ(signalOf(what), signal);
        const ReportBundle crash = collectOne();
        EXPECT_EQ(crash.kind, Report::Kind::Crash);
        EXPECT_EQ(crash.version, "9.8.7");
        EXPECT_THAT(crash.session, testing::SizeIs(16));
        EXPECT_THAT(crash.note, HasSubstr(std::string("SIG") + ::sigabbrev_np(signal)));
        EXPECT_THAT(crash.crash, HasSubstr(function));
        EXPECT_THAT(crash.crash, HasSubstr("CrashChild+0x"));
        EXPECT_THAT(crash.log, HasSubstr("last words before " + what + " {"));
        EXPECT_THAT(crash.log, Not(HasSubstr("of a crash"))); // a line of the next start
    }
    EXPECT_THAT(signalOf("two-threads"), testing::AnyOf(SIGSEGV, SIGBUS));
    EXPECT_THAT(collectOne().note, testing::AnyOf(HasSubstr("SIGSEGV"), HasSubstr("SIGBUS")));
    EXPECT_EQ(crashFiles(), 0U);
    EXPECT_EQ(collect(), 0);
}

TEST_F(CrashCaptureTest, AnUncaughtExceptionIsToldWithItsTypeAndNeverWithASecret)
{
    const std::string ways[][3] = {
        {"exception", "std::runtime_error: the password is [removed]", "throwWithASecret"},
        {"exception-locked", "std::runtime_error (its description might tell a secret)", "throwWithTheLockHeld"}};
    for (const auto& [what, told, function] : ways) {
        SCOPED_TRACE(what);
        EXPECT_EQ(signalOf(what), SIGABRT);
        // What lies there until the next start makes a report of it, which may be never.
        const std::string crashFile = m_folder.read(fs::directory_iterator(m_folder.path() / "Crashes")->path());
        EXPECT_THAT(crashFile, HasSubstr(told));
        EXPECT_THAT(crashFile, Not(HasSubstr("hunter2")));
        EXPECT_THAT(m_folder.read("Logs/lodestar.log"), AllOf(HasSubstr(told), Not(HasSubstr("hunter2"))));
        const ReportBundle crash = collectOne();
        EXPECT_THAT(crash.note, HasSubstr(told));
        EXPECT_THAT(crash.crash, HasSubstr(function));
    }
}

TEST_F(CrashCaptureTest, RunsThatDidNotCrashLeaveNoReport)
{
    EXPECT_EQ(signalOf("killed"), SIGKILL);
    std::thread living([this] { EXPECT_EQ(run("wait"), 0); });
    while (!fs::exists(m_folder.file("waiting"))) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    EXPECT_EQ(crashFiles(), 2U);
    EXPECT_EQ(collect(), 0);
    EXPECT_EQ(crashFiles(), 1U) << "the file of the run that lives stays";
    fs::remove(m_folder.file("waiting"));
    living.join();
    EXPECT_EQ(collect(), 0);
    EXPECT_EQ(crashFiles(), 0U);

    // What was logged last is written at the end, without waiting for the thread that writes.
    EXPECT_EQ(run("end"), 0);
    EXPECT_THAT(m_folder.read("Logs/lodestar.log"), HasSubstr("last words before end"));

    // A disk that takes nothing more changes nothing about how the process ends.
    EXPECT_EQ(signalOf("full-disk"), SIGSEGV);
    EXPECT_EQ(collect(), 0);
}

TEST_F(CrashCaptureTest, AReportThatCannotBeKeptIsKeptLaterAndBadFilesStopNothing)
{
    EXPECT_EQ(signalOf("segv"), SIGSEGV);
    fs::create_directories(m_folder.path() / "Crashes");
    std::ofstream(m_folder.file("Reports")) << "in the way";
    EXPECT_EQ(collect(), 0);
    EXPECT_EQ(crashFiles(), 1U);
    fs::remove(m_folder.file("Reports"));
    // Naming the functions has crashed on this one; the other two are no crash files at all.
    const fs::path crash = fs::directory_iterator(m_folder.path() / "Crashes")->path();
    fs::rename(crash, crash.string() + ".reading");
    std::ofstream(m_folder.file("Crashes/crash-1-0")) << std::string(3000, '\0');
    std::ofstream(m_folder.file("Crashes/crash-1-1")) << "signal 11\nframe zzz\nmodule 5\nmodule 9 8 7";
    fs::create_symlink("/etc/passwd", m_folder.file("Crashes/crash-1-2"));
    EXPECT_EQ(collect(), 2);
    std::string all;
    for (const Report& report : m_store.list()) {
        all += m_store.read(report.identifier).value().crash;
    }
    EXPECT_THAT(all, HasSubstr("CrashChild+0x"));
    EXPECT_THAT(all, Not(HasSubstr("crashHere")));
    EXPECT_THAT(all, Not(HasSubstr("root")));
    EXPECT_EQ(collect(), 0);
}

} // namespace lodestar
