// SPDX-License-Identifier: Apache-2.0
#include "Feedback/LogText.h"
#include "Feedback/VireoLogger.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <thread>

namespace lodestar
{

using testing::HasSubstr;
using testing::Not;

namespace
{

constexpr std::string_view here = "Tests/Feedback/VireoLoggerTests";

std::string escaped(std::string_view message)
{
    std::string line;
    appendLogText(line, message);
    return line;
}

} // namespace

TEST(LogText, LetsNoMessageLookLikeAnotherLineOrAnotherMessage)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"plain text, 100 % {} \"quoted\"", "plain text, 100 % {} \"quoted\""},
        {"Kühlung 冷却 😀", "Kühlung 冷却 😀"},
        {"a\r\n2026-01-01T00:00:00.000Z 2 0 forged", "a\\r\\n2026-01-01T00:00:00.000Z 2 0 forged"},
        {"a\\nb", "a\\\\nb"}, // a written backslash does not read as an escaped line feed
        {std::string_view("nul\0tab\tesc\x1b[2Jdel\x7f", 19), "nul\\x00tab\\tesc\\x1b[2Jdel\\x7f"},
        {"next\u0085line\u2028separator\u202eturned",
         "next\\xc2\\x85line\\xe2\\x80\\xa8separator\\xe2\\x80\\xaeturned"},
        {"\xff \xc0\xaf \xed\xa0\x80 \xf5\x80\x80\x80", "\\xff \\xc0\\xaf \\xed\\xa0\\x80 \\xf5\\x80\\x80\\x80"},
        {"cut \xe2\x82", "cut \\xe2\\x82"},
    };
    for (const auto& [message, expected] : cases) {
        EXPECT_EQ(escaped(message), expected);
    }
    EXPECT_EQ(escaped(std::string(maximumLogMessage, 'x')).size(), maximumLogMessage);
    EXPECT_THAT(escaped(std::string(maximumLogMessage + 5, 'x')), testing::EndsWith("xx (5 more bytes)"));
}

TEST(VireoLogger, WritesEveryPartOfACallToTheLogFile)
{
    const ScratchFolder scratch;
    ASSERT_TRUE(VireoLogger::openLogFolder(scratch.path().string()));
    EXPECT_FALSE(VireoLogger::openLogFolder("/dev/null/logs"));
    void* const stack[] = {reinterpret_cast<void*>(0xbeef), reinterpret_cast<void*>(0xf00d)};
    VireoLogger::logWithLevel(3, 7, 42, "Shared/Controllers/REST/RESTHandler", "-[RESTHandler login:checkToken:]",
                              stack, "Corvel: {}\n{}", "first", 2);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    std::string log;
    while (log.find("beef") == std::string::npos) { // without a flush
        ASSERT_LT(std::chrono::steady_clock::now(), deadline);
        log = scratch.read("lodestar.log");
    }
    EXPECT_THAT(log, HasSubstr("program loaded at "));
    EXPECT_THAT(log, testing::ContainsRegex("\n[0-9-]{10}T[0-9:]{8}\\.[0-9]{3}Z 3 7 \\[[0-9]+\\] "
                                            "Shared/Controllers/REST/RESTHandler:42 "
                                            "-\\[RESTHandler login:checkToken:\\] "
                                            "Corvel: first\\\\n2 \\{beef f00d\\}\n$"));
}

TEST(VireoLogger, KeepsAllLinesOfManyThreadsWholeAndInTheirOrder)
{
    const ScratchFolder scratch;
    ASSERT_TRUE(VireoLogger::openLogFolder(scratch.path().string()));
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread] {
            for (int line = 0; line < 250; ++line) {
                VireoLogger::logWithLevel(2, 0, 1, here, "method", {}, "thread {} line {}.", thread, line);
            }
        });
    }
    threads.clear(); // when they have ended
    VireoLogger::flush();
    const std::string log = scratch.read("lodestar.log");
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 1001); // and the header
    for (int thread = 0; thread < 4; ++thread) {
        std::size_t position = 0;
        for (int line = 0; line < 250 && position != std::string::npos; ++line) {
            position = log.find(fmt::format("method thread {} line {}.\n", thread, line), position);
        }
        EXPECT_NE(position, std::string::npos) << thread;
    }
}

TEST(VireoLogger, SaysThatASessionStartedButNeverItsKey)
{
    std::vector<std::string> heard;
    const auto listener = VireoLogger::addListener([&](const auto& entry) { heard.emplace_back(entry.message); });
    VireoLogger::settings().reportOnShake = true;
    VireoLogger::startSession("5ecret-key");
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_THAT(heard.front(), HasSubstr("session started"));
    EXPECT_THAT(heard.front(), Not(HasSubstr("5ecret")));
    VireoLogger::settings() = {};
}
} // namespace lodestar
