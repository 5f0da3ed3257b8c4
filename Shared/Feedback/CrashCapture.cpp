// SPDX-License-Identifier: Apache-2.0
#include "Feedback/CrashCapture.h"

#include "Feedback/CrashModules.h"
#include "Feedback/LogText.h"
#include "Feedback/LogWriter.h"
#include "Feedback/ReportSender.h"
#include "Platform/PrivateFile.h"

#include <fmt/core.h>

#include <array>
#include <atomic>
#include <bit>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <execinfo.h>
#include <fcntl.h>
#include <random>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <ucontext.h>
#include <unistd.h>

namespace lodestar
{

namespace
{

constexpr std::array<int, 6> crashSignals = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGABRT};
constexpr int mostFrames = 64;
/// Room reserved on the disk, for crashes that happen because the disk is full.
constexpr off_t reservedBytes = 64L << 10;
/// Seconds after which an alarm ends a handler that hangs.
constexpr unsigned handlerSeconds = 10;

/// Everything that the handler touches. All but the exception is filled before the handler is installed.
struct State {
    std::atomic<int> descriptor = -1;
    std::atomic<pid_t> reporter = 0; ///< the thread that is writing the crash file
    std::array<struct sigaction, crashSignals.size()> previous = {};
    char exception[4096] = {};
    std::atomic<std::size_t> exceptionLength = 0;
    const LastLines* lastLines = nullptr;
};
State state;

alignas(16) char alternateStack[64 << 10];

/// Formats text without the library's formatting, which may allocate or lock.
class SafeWriter
{
public:
    explicit SafeWriter(int descriptor) : m_descriptor(descriptor) {}
    /// A write that fails is ignored: the crash then stays unrecorded.
    void text(const char* bytes, std::size_t count) { writeFully(m_descriptor, {bytes, count}); }
    void text(const char* words) { text(words, std::strlen(words)); }
    void number(std::uintptr_t value, unsigned base)
    {
        char digits[24];
        std::size_t at = sizeof digits;
        do {
            digits[--at] = "0123456789abcdef"[value % base];
            value /= base;
        } while (value > 0);
        text(digits + at, sizeof digits - at);
    }
    void line(const char* name, std::uintptr_t value, unsigned base)
    {
        text(name);
        number(value, base);
        text("\n");
    }

private:
    int m_descriptor;
};

/// The place of the crash; `link` is the return address where the processor has it in a register, else 0.
struct Place {
    std::uintptr_t counter = 0;
    std::uintptr_t stack = 0;
    std::uintptr_t link = 0;
};

Place placeOf(const void* context)
{
    const auto& machine = static_cast<const ucontext_t*>(context)->uc_mcontext;
#if defined(__x86_64__)
    return {static_cast<std::uintptr_t>(machine.gregs[REG_RIP]), static_cast<std::uintptr_t>(machine.gregs[REG_RSP]),
            0};
#elif defined(__aarch64__)
    return {machine.pc, machine.sp, machine.regs[30]};
#else
    (void)machine;
    return {};
#endif
}

void writeReport(SafeWriter& out, int signal, const siginfo_t* info, const Place& place)
{
    out.line("signal ", static_cast<std::uintptr_t>(signal), 10);
    // Negative codes mean that a process sent the signal; they are written as 0.
    out.line("code ", static_cast<std::uintptr_t>(info->si_code > 0 ? info->si_code : 0), 10);
    out.line("time ", static_cast<std::uintptr_t>(std::time(nullptr)), 10);
    out.line("thread ", static_cast<std::uintptr_t>(::gettid()), 10);
    if (signal == SIGSEGV || signal == SIGBUS) {
        out.line("address ", reinterpret_cast<std::uintptr_t>(info->si_addr), 16);
    }
    if (const std::size_t length = state.exceptionLength.load(std::memory_order_acquire); length > 0) {
        out.text("exception ");
        out.text(state.exception, length);
        out.text("\n");
    }
    out.line("counter ", place.counter, 16);
    state.lastLines->read([&out](const char* bytes, std::size_t count) { out.text(bytes, count); });
    out.text("\nframes\n");
    // From here on the handler reads memory that the crash may have damaged; all lines above are in the file already.
    void* frames[mostFrames];
    const int count = ::backtrace(frames, mostFrames);
    for (int index = 0; index < count; ++index) {
        out.line("frame ", reinterpret_cast<std::uintptr_t>(frames[index]), 16);
    }
    if (place.counter == 0) {
        // After a call through a null pointer only the return address shows the caller.
        const std::uintptr_t caller = place.link != 0 ? place.link : *std::bit_cast<const std::uintptr_t*>(place.stack);
        out.line("caller ", caller, 16);
    }
    out.text("end\n");
}

/// Lets the signal happen as if this handler did not exist.
void giveBack(int signal, const siginfo_t* info, const struct sigaction& handler)
{
    ::sigaction(signal, &handler, nullptr);
    // A fault comes again by itself when its instruction runs again; every other signal must be sent again. It stays
    // blocked until this handler has returned.
    const bool isFault = info->si_code > 0 && signal != SIGTRAP && signal != SIGABRT;
    if (!isFault) {
        ::raise(signal);
    }
}

void handleCrash(int signal, siginfo_t* info, void* context)
{
    const int interrupted = errno;
    struct sigaction byDefault = {};
    byDefault.sa_handler = SIG_DFL;
    pid_t reporter = 0;
    if (!state.reporter.compare_exchange_strong(reporter, ::gettid())) {
        if (reporter != ::gettid()) {
            // Another thread is writing its crash and will end the process; two crashes in one file would spoil both.
            const struct timespec patience = {handlerSeconds, 0};
            ::nanosleep(&patience, nullptr);
        }
        giveBack(signal, info, byDefault);
        return;
    }
    ::sigaction(SIGALRM, &byDefault, nullptr);
    ::alarm(handlerSeconds);
    byDefault.sa_handler = SIG_IGN;
    // Exceeding a limit on file sizes must count as a full disk, not end the process.
    ::sigaction(SIGXFSZ, &byDefault, nullptr);
    if (const int descriptor = state.descriptor.load(std::memory_order_acquire); descriptor >= 0) {
        SafeWriter out(descriptor);
        writeReport(out, signal, info, placeOf(context));
    }
    ::alarm(0);
    std::size_t index = 0;
    while (crashSignals[index] != signal) {
        ++index;
    }
    giveBack(signal, info, state.previous[index]);
    errno = interrupted;
}

Result<int> openFile(const std::string& folder)
{
    if (const Result<void> made = makePrivateFolder(folder, FolderThere::Tightened); !made) {
        return made.error();
    }
    const std::string path = fmt::format("{}/crash-{}-{:08x}", folder, ::getpid(), std::random_device()());
    const int descriptor =
        ::open(path.c_str(), O_RDWR | O_APPEND | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        return fileError("Crashes will go unrecorded", errno);
    }
    // Locked until the process ends: another instance that starts meanwhile must not take the file for a dead run's.
    ::flock(descriptor, LOCK_EX | LOCK_NB);
    // Not every disk can reserve; then nothing is reserved.
    ::fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, reservedBytes);
    return descriptor;
}

void installHandlers()
{
    stack_t stack = {};
    stack.ss_sp = alternateStack;
    stack.ss_size = sizeof alternateStack;
    ::sigaltstack(&stack, nullptr);
    struct sigaction action = {};
    action.sa_sigaction = &handleCrash;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    ::sigemptyset(&action.sa_mask);
    for (std::size_t index = 0; index < crashSignals.size(); ++index) {
        ::sigaction(crashSignals[index], &action, &state.previous[index]);
    }
}

} // namespace

Result<void> CrashCapture::install(const std::string& folder, std::string_view version)
{
    const Result<int> opened = openFile(folder);
    if (!opened) {
        return opened.error();
    }
    std::string header = fmt::format("crash file 1\nprocess {}\nversion ", ::getpid());
    appendLogText(header, version);
    header += "\nsession ";
    appendLogText(header, feedbackSessionIdentifier());
    header += '\n';
    if (writeFully(opened.value(), header) < header.size()) {
        const int code = errno;
        ::close(opened.value());
        return fileError("Crashes will go unrecorded", code);
    }
    const bool isFirst = state.lastLines == nullptr;
    state.lastLines = &LogWriter::shared().lastLines();
    // The file of an earlier call stays open: a thread that is writing to its descriptor must not hit another file.
    state.descriptor.store(opened.value(), std::memory_order_release);
    void* first[1];
    ::backtrace(first, 1); // loads the unwinder now, because loading must not happen in the handler
    if (isFirst) {
        installHandlers();
    }
    return {};
}

void CrashCapture::recordModules()
{
    static std::set<std::pair<std::uintptr_t, std::string>> recorded;
    const int descriptor = state.descriptor.load(std::memory_order_acquire);
    if (descriptor < 0) {
        return;
    }
    std::string lines;
    for (const LoadedModule& module : loadedModules()) {
        if (recorded.emplace(module.base, module.path).second) {
            lines += fmt::format("module {:x} {:x} {:x} {} ", module.base, module.first, module.end,
                                 module.buildId.empty() ? "-" : module.buildId);
            appendLogText(lines, module.path);
            lines += '\n';
        }
    }
    // One write, since a crash on another thread appends to the same file. On a full disk names are lost, but no
    // addresses.
    [[maybe_unused]] const ssize_t written = ::write(descriptor, lines.data(), lines.size());
}

void CrashCapture::noteException(std::string_view text) noexcept
{
    try {
        std::string line;
        appendLogText(line, text.substr(0, sizeof state.exception / 4)); // escaping makes one byte into up to four
        std::memcpy(state.exception, line.data(), line.size());
        state.exceptionLength.store(line.size(), std::memory_order_release);
    } catch (...) {
        return; // no memory for the text; the crash file then has only addresses
    }
}

} // namespace lodestar
