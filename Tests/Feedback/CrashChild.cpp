// SPDX-License-Identifier: Apache-2.0
// The program that the crash tests let die: CrashChild FOLDER WHAT. "collect" is its next start.
#include "Feedback/CrashCapture.h"
#include "Feedback/CrashCollector.h"
#include "Feedback/VireoLogger.h"
#include "Platform/Queues/DispatchQueue.h"

#include <csignal>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <mutex>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

using namespace lodestar;

namespace
{

volatile int zero = 0;

[[gnu::noinline]] int overflow(int depth)
{
    volatile char room[4096] = {};
    room[depth % 4096] = 1;
    return depth < 0 ? 0 : overflow(depth + 1) + room[0];
}

/// Wrecks the stack pointer first, so that the handler itself crashes on the way up the stack.
void crashWithoutStack()
{
#if defined(__x86_64__)
    asm volatile("mov $64, %%rsp\n mov 0, %%rax" ::: "memory");
#elif defined(__aarch64__)
    asm volatile("mov x0, #64\n mov sp, x0\n ldr x0, [sp]" ::: "memory");
#endif
}

void crashOnTwoThreads()
{
    std::thread other([] { ::raise(SIGSEGV); });
    ::raise(SIGBUS);
    other.join();
}

[[gnu::noinline]] void callNowhere()
{
    void (*volatile nowhere)() = nullptr;
    nowhere();
    zero = 1; // the call must not become a jump, which leaves no frame
}

void overflowInThePool()
{
    DispatchQueue::globalBackground().async([] { zero = overflow(zero); });
    ::sleep(60);
}

const std::string secret = "hunter2-swordfish";
std::mutex guardOfSecrets;

std::vector<std::string> secretsInUse()
{
    const std::lock_guard lock(guardOfSecrets);
    return {secret};
}

void throwWithASecret()
{
    throw std::runtime_error("the password is " + secret);
}

/// Whoever ends holds the lock behind which the secrets are: nothing is unwound on the way to the handler.
void throwWithTheLockHeld() noexcept
{
    const std::lock_guard lock(guardOfSecrets);
    throwWithASecret();
}

/// Lives as long as the file that it makes.
void waitUntilTold(const std::string& folder)
{
    const std::string file = folder + "/waiting";
    std::ofstream(file) << "alive";
    while (std::filesystem::exists(file)) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

} // namespace

/// Found by its name in the report.
[[gnu::noinline]] void crashHere(const std::string& folder, const std::string& what)
{
    const std::map<std::string, std::function<void()>> ways = {
        {"segv", [] { zero = *reinterpret_cast<volatile int*>(zero + 16); }},
        {"bus", [] { ::raise(SIGBUS); }},
        {"null-call", &callNowhere},
        {"overflow", [] { zero = overflow(zero); }},
        {"pool-overflow", &overflowInThePool},
        {"no-stack", &crashWithoutStack},
        {"two-threads", &crashOnTwoThreads},
        {"exception", &throwWithASecret},
        {"exception-locked", &throwWithTheLockHeld},
        {"full-disk",
         [] {
             const struct rlimit nothingMore = {16, 16};
             ::setrlimit(RLIMIT_FSIZE, &nothingMore);
             ::raise(SIGSEGV);
         }},
        {"killed", [] { ::raise(SIGKILL); }},
        {"end", [] {}},
        {"wait", [&folder] { waitUntilTold(folder); }},
    };
    ways.at(what)();
}

int main(int argc, char** argv)
{
    if (argc < 3) {
        return 2;
    }
    const std::string folder = argv[1];
    const std::string what = argv[2];
    VireoLogger::openLogFolder(folder + "/Logs");
    if (what == "collect") {
        const CrashSources sources = {folder + "/Crashes", folder + "/Logs", {secret}};
        return collectCrashes(sources, ReportStore(folder + "/Reports")) + 100;
    }
    const struct rlimit noCore = {0, 0};
    ::setrlimit(RLIMIT_CORE, &noCore);
    VireoLogger::setSecretsProvider(&secretsInUse);
    std::set_terminate(&VireoLogger::uncaughtExceptionHandler);
    if (!CrashCapture::install(folder + "/Crashes", "9.8.7")) {
        return 3;
    }
    CrashCapture::recordModules();
    LODESTAR_LOG("Tests/Feedback/CrashChild", "main", "last words before {}", what);
    crashHere(folder, what);
    return 0;
}
