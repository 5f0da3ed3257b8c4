// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Protocol.h"

#include "Simulator/Control.h"
#include "Simulator/Settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace lodestar::simulator
{
namespace
{

TEST(SimulatorProtocol, AddressesSkipTheEndsOfEveryBlock)
{
    EXPECT_EQ(addressAt("127.0.0.2", 0), "127.0.0.2");
    EXPECT_EQ(addressAt("127.0.0.2", 252), "127.0.0.254");
    EXPECT_EQ(addressAt("127.0.0.2", 253), "127.0.1.1");
    EXPECT_EQ(addressAt("127.0.0.2", 253 + 254), "127.0.2.1");
    EXPECT_EQ(addressAt("127.0.255.254", 1), "127.1.0.1");
    EXPECT_THROW(addressAt("127.255.255.254", 1), std::out_of_range);
    for (const char* base : {"128.0.0.1", "127.0.0.0", "127.0.0.255", "127.0.0", ""}) {
        EXPECT_THROW(addressAt(base, 0), std::invalid_argument) << base;
    }
}

TEST(SimulatorProtocol, WordsCarryAnyBytes)
{
    const std::string bytes("\0 \n%<\xC3\xA9>\x7F", 9);
    EXPECT_EQ(decodeWord(encodeWord(bytes)), bytes);
    EXPECT_EQ(encodeWord(bytes).find_first_of(" \n"), std::string::npos);
    EXPECT_EQ(decodeWord(encodeWord("")), "");
    EXPECT_THROW(decodeWord("a%4"), std::invalid_argument);
    EXPECT_THROW(decodeWord("a%zz"), std::invalid_argument);

    const RecordedRequest request{3, 12, 45, "PUT", "/a?b c", {"Host: x", "Empty:", "accept: a", "Accept:b"}, bytes};
    const RecordedRequest back = decodeRequest(splitWords(encodeRequest(request)));
    EXPECT_EQ(back.console, 3);
    EXPECT_EQ(back.connection, 12U);
    EXPECT_EQ(back.path, "/a?b c");
    EXPECT_EQ(back.headers, request.headers);
    EXPECT_EQ(back.body, bytes);
    EXPECT_EQ(back.header("ACCEPT"), "a");
    EXPECT_EQ(back.headerCount("Accept"), 2);
    EXPECT_EQ(back.header("empty"), "");
    EXPECT_EQ(back.header("Hos"), std::nullopt);
}

TEST(SimulatorProtocol, SettingsSurviveTheCommandLine)
{
    Settings settings;
    settings.consoles = 7;
    settings.systems = 0;
    settings.feedBytes = 200000;
    settings.samples = 12;
    settings.seed = 18446744073709551615U;
    settings.user = "--consoles";
    settings.password = "a&b <c>";
    settings.gzip = false;
    settings.recordCap = 5;
    settings.faults = {"refuseFeed:Group:3", "stallFeed"};
    const Settings back = parseArguments(argumentsOf(settings)).settings;
    EXPECT_EQ(argumentsOf(back), argumentsOf(settings));
    EXPECT_EQ(back.password, settings.password);
    EXPECT_EQ(back.faults, settings.faults);
    EXPECT_EQ(back.address, "");
    EXPECT_EQ(parseArguments({}).settings.address, "127.0.0.2");
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{"--consoles"}, {"--consoles", "x"}, {"--consoles", "-1"}, {"--what", "1"}}) {
        EXPECT_THROW(parseArguments(wrong), std::invalid_argument) << wrong.back();
    }
}

TEST(SimulatorProtocol, FaultsAreReadAndStrikeWhatTheySay)
{
    using Area = RequestKind::Area;
    const RequestKind group{Area::Feed, "Group"};
    const RequestKind check{Area::SessionCheck, {}};
    const RequestKind logon{Area::Logon, {}};
    const Fault everyFeed = Fault::parse("cutBody");
    EXPECT_TRUE(strikes(everyFeed, group));
    EXPECT_FALSE(strikes(everyFeed, check));
    EXPECT_FALSE(strikes(everyFeed, logon));
    const Fault one = Fault::parse("refuseFeed:ManagedSystem:14");
    EXPECT_EQ(one.console, 14);
    EXPECT_FALSE(strikes(one, group));
    EXPECT_TRUE(strikes(one, {Area::Feed, "ManagedSystem"}));
    EXPECT_EQ(Fault::parse("refuseFeed:14").console, 14);
    EXPECT_TRUE(strikes(Fault::parse("stallFeed:SessionCheck"), check));
    EXPECT_TRUE(strikes(Fault::parse("stallFeed:All"), logon));
    EXPECT_TRUE(strikes(Fault::parse("basicAuth"), logon));
    EXPECT_TRUE(strikes(Fault::parse("logonNotXML:json"), logon));
    EXPECT_FALSE(strikes(Fault::parse("logonNotXML"), group));
    for (const char* wrong : {"", "nonsense", "refuseFeed:Nothing", "refuseFeed:Group:1:2", "refuseFeed:Group:Quick",
                              "logonNotXML:Group", "cutBody:html"}) {
        EXPECT_THROW(Fault::parse(wrong), std::invalid_argument) << wrong;
    }
}

TEST(SimulatorProtocol, CommandsAreAnsweredWhateverTheyHold)
{
    EventLoop loop;
    Settings settings;
    settings.consoles = 2;
    Simulator simulator(loop, settings);
    Control control(loop, simulator);
    EXPECT_THAT(control.greeting(), testing::EndsWith("operator lantern-7-quay\nready\n"));
    EXPECT_EQ(control.feed("latency 5\nlat"), "ok\n");
    EXPECT_EQ(control.feed("ency 6\nclear\n"), "ok\nok\n");
    EXPECT_EQ(simulator.settings().latency, 6);
    for (const char* wrong : {"nonsense\n", "fault\n", "fault x\n", "stop 2\n", "start -1\n", "stop x\n",
                              "feed 0 Nothing x\n", "fault refuseFeed:9\n"}) {
        EXPECT_THAT(control.feed(wrong), testing::StartsWith("error ")) << wrong;
    }
    EXPECT_EQ(control.feed("\n"), "ok\n");
}

} // namespace
} // namespace lodestar::simulator
