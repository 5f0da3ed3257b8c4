// SPDX-License-Identifier: Apache-2.0
#include "Feedback/LogTail.h"
#include "Feedback/Redaction.h"
#include "Feedback/ShakeDetector.h"
#include "Tests/Support/ScratchFolder.h"

#include <fmt/core.h>
#include <gmock/gmock.h>

#include <cmath>
#include <unistd.h>

namespace lodestar
{

namespace
{

/// How many shakes there are in so many seconds of a motion along x and y, at 100 samples a second.
template <typename Motion>
int shakes(double seconds, Motion motion)
{
    ShakeDetector detector;
    int count = 0;
    for (int index = 0; index < static_cast<int>(seconds * 100); ++index) {
        const auto [x, y] = motion(index / 100.0);
        count += detector.add({x, y, 9.81, std::chrono::milliseconds(index * 10)}) ? 1 : 0;
    }
    return count;
}

double wave(double time, double hertz, double strength)
{
    return strength * std::sin(2 * M_PI * hertz * time);
}

} // namespace

TEST(RedactionTest, SecretsGoInEveryDisguise)
{
    const std::vector<std::string> secrets = {"p<&s s\\1", "p<&s s\\1-longer", "abc"};
    EXPECT_EQ(redacted("a p<&s s\\1-longer b p<&s s\\1, abc", secrets), "a [removed] b [removed], abc");
    EXPECT_EQ(redacted(R"(logged p<&s s\\1.)", secrets), "logged [removed].");
    EXPECT_EQ(redacted("?q=p%3C%26s%20s%5C1&r", secrets), "?q=[removed]&r");
    EXPECT_EQ(redacted("<a>p&lt;&amp;s s\\1</a>", secrets), "<a>[removed]</a>");
    // Keys and passwords that nobody knows of, by the names that they travel under.
    EXPECT_EQ(redacted("X-API-Session: k3y==, on\nX-API-Session", {}), "X-API-Session: [removed], on\nX-API-Session");
    EXPECT_EQ(redacted("<X-API-Session kb=\"CUR\">key\nmore</X-API-Session>", {}),
              "<X-API-Session kb=\"CUR\">[removed]</X-API-Session>");
    EXPECT_EQ(redacted("<Password kb=\"CUR\">a b</Password>", {}), "<Password kb=\"CUR\">[removed]</Password>");
    const std::string prose = "Password field: the X-API-Session header, 100 % of it";
    EXPECT_EQ(redacted(prose, {"", "abc"}), prose);
}

TEST(LogTailTest, LinesAreWholeAcrossFilesAndARunsOwnLinesAreLeftOut)
{
    ScratchFolder folder;
    std::ofstream(folder.file("lodestar.log.1")) << "first\nsecond\n";
    std::ofstream(folder.file("lodestar.log")) << "third\nfourth\n";
    const std::string path = folder.path();
    EXPECT_EQ(logTail(path, 1000), "first\nsecond\nthird\nfourth\n");
    EXPECT_EQ(logTail(path, 20), "second\nthird\nfourth\n");
    EXPECT_EQ(logTail(path, 19), "third\nfourth\n");
    EXPECT_EQ(logTail(path, 13), "third\nfourth\n");
    EXPECT_EQ(logTail(path, 3), "");
    EXPECT_EQ(logTail(folder.file("none"), 100), "");
    std::ofstream(folder.file("lodestar.log"), std::ios::app)
        << fmt::format("now process {}, program loaded at 5\nfifth\n", ::getpid());
    EXPECT_EQ(logTailBeforeThisRun(path, 13), "third\nfourth\n");
}

TEST(ShakeDetectorTest, AShakeIsToldFromWalkingTurningAndDropping)
{
    using Pair = std::pair<double, double>;
    EXPECT_EQ(shakes(1.2, [](double t) { return Pair{wave(t, 4, 22), 0}; }), 1);
    EXPECT_EQ(shakes(1.2, [](double t) { return Pair{0, wave(t, 3, 25)}; }), 1);
    EXPECT_GE(shakes(6, [](double t) { return Pair{wave(t, 4, 22), 0}; }), 2) << "again after a pause";
    EXPECT_EQ(shakes(10, [](double t) { return Pair{wave(t, 2, 6), wave(t, 4, 4)}; }), 0) << "walking";
    EXPECT_EQ(shakes(4, [](double t) { return Pair{wave(t, 0.2, 9.81), 0}; }), 0) << "turning in the hand";
    EXPECT_EQ(shakes(4, [](double t) { return Pair{t > 1 && t < 1.05 ? 60 : 0, 0}; }), 0) << "one knock";
    EXPECT_EQ(shakes(8, [](double t) { return Pair{wave(t, 0.6, 20), 0}; }), 0) << "a swing";
}

} // namespace lodestar
