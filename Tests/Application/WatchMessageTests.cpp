// SPDX-License-Identifier: Apache-2.0
// The words of messages, and messages in a real notification service: the program starts itself anew in a session bus
// and a display of its own.
#include "Application/Adapters/DBusMessageService.h"
#include "Application/Adapters/DBusNetworkState.h"
#include "Application/WatchMessages.h"
#include "Inventory/Feed.h"
#include "Tests/Support/OwnSession.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;
using testing::ElementsAre;
using Connectivity = NetworkState::Connectivity;

constexpr auto sessionVariable = "LODESTAR_TEST_MESSAGES";
const WallTime now(1'773'308'460s); // 12 March 2026, 09:41 UTC

/// Without the controls around each name and text of a console.
std::string shown(const Message& message)
{
    return QString::fromStdString(message.summary + " — " + message.body)
        .remove(QChar(0x2068))
        .remove(QChar(0x2069))
        .toStdString();
}

class News
{
public:
    News& worse(FindingRank rank, const std::string& name, const std::string& console = "Harbour B",
                const std::string& code = "", const std::string& state = "error")
    {
        auto corvel = std::make_shared<Corvel>();
        corvel->setName(console);
        corvel->setAddress(console);
        Finding finding;
        finding.rank = rank;
        finding.subject = rank == FindingRank::IOServerError ? FindingSubject::IOServer
                          : rank == FindingRank::ConsoleOffline || rank == FindingRank::FeedsMissing
                              ? FindingSubject::Console
                              : FindingSubject::System;
        finding.corvel = corvel;
        finding.console = console;
        finding.name = name;
        finding.state = state;
        finding.referenceCode = code;
        Change change;
        change.console = change.address = console;
        change.name = name;
        change.before = now - 400min;
        change.seen = now - 389min;
        news.worse.push_back(change);
        news.worseNow.push_back(finding);
        return *this;
    }
    News& better(ChangeKind kind, const std::string& name, const std::string& to, std::chrono::seconds lasted)
    {
        Change change;
        change.kind = kind;
        change.console = "Harbour B";
        change.name = name;
        change.to = to;
        change.lasted = lasted;
        news.better.push_back(change);
        return *this;
    }
    News& on(std::size_t consoles)
    {
        news.consoles = consoles;
        return *this;
    }
    News& remain(std::size_t things)
    {
        news.needAttention = things;
        return *this;
    }
    Message words(bool counts = false) const { return WatchMessages::of(news, counts, now); }

    WatchNews news;
};

using Rank = FindingRank;

TEST(WatchMessageTests, EveryMessageInItsWords)
{
    EXPECT_EQ(shown(News().worse(Rank::SystemErrorLit, "helios-03", "Harbour B", "X417-2208").on(1).words()),
              "helios-03 is in error — X417-2208. Harbour B, between 03:01 and 03:12");
    EXPECT_EQ(shown(News()
                        .worse(Rank::SystemError, "helios-03")
                        .worse(Rank::SystemError, "helios-04", "Harbour B", "", "incomplete")
                        .worse(Rank::IOServerError, "vios-harbour-2b")
                        .on(1)
                        .words()),
              "Harbour B: 3 things got worse — helios-03 and vios-harbour-2b in error, helios-04 incomplete");
    News many;
    many.worse(Rank::SystemError, "a").worse(Rank::SystemError, "b", "B").worse(Rank::SystemError, "c", "C");
    many.worse(Rank::ConsoleOffline, "D", "D").worse(Rank::ConsoleOffline, "E", "E");
    many.worse(Rank::OpenEvent, "1").worse(Rank::OpenEvent, "2").on(3);
    EXPECT_EQ(shown(many.words()),
              "7 things got worse on 3 consoles — 2 consoles offline, 3 systems in error, 2 new events");
    EXPECT_EQ(shown(many.words(true)), "3 consoles need attention — Open Lodestar to see more");

    News lost;
    lost.worse(Rank::ConsoleOffline, "Northfield Recovery Site", "Northfield Recovery Site").on(1);
    lost.news.worseNow[0].error = Error{std::string(urlErrorDomain), -1202, {}, {}, nullptr};
    EXPECT_EQ(shown(lost.words()), "Northfield Recovery Site is offline — Its certificate changed");
    EXPECT_EQ(shown(lost.words(true)), "1 console needs attention — Open Lodestar to see more");
    News opened;
    opened.worse(Rank::OpenEvent, "fan failed", "Harbour B", "X417").on(1);
    opened.news.worseNow[0].eventNumber = "1042";
    opened.news.worseNow[0].eventText = "Fan failed";
    opened.news.worseNow[0].callsHome = true;
    EXPECT_EQ(shown(opened.words()), "Harbour B: #1042 opened — Fan failed, X417, call home");
    News missing;
    missing.worse(Rank::FeedsMissing, "Harbour B").on(1);
    missing.news.worseNow[0].missing = {ObjectType::LogicalPartition};
    EXPECT_EQ(shown(missing.words()), "Harbour B: Partitions not read — Between 03:01 and 03:12");

    EXPECT_EQ(shown(News().better(ChangeKind::State, "helios-03", "operating", 42min).remain(7).words()),
              "helios-03 is operating again — Harbour B, after 42 min. 7 things remain");
    EXPECT_EQ(shown(News().better(ChangeKind::OnlineAgain, "Harbour B", "", 25min).words()),
              "Harbour B is online again — After 25 min");
    EXPECT_EQ(shown(News().worse(Rank::LEDLit, "x").better(ChangeKind::LEDOff, "y", "", 0s).on(1).words()),
              "x: LED on — Harbour B, between 03:01 and 03:12. 1 thing got better");
    EXPECT_EQ(shown(News().better(ChangeKind::LEDOff, "y", "", 0s).remain(2).words(true)),
              "2 things need attention — Open Lodestar to see more");
    many.news.ofTheNight = true;
    many.news.worseNow.resize(3);
    for (const bool counts : {false, true}) {
        EXPECT_EQ(shown(many.words(counts)), "In the night, 7 things got worse — 3 of them still need attention");
    }
    EXPECT_EQ(shown(WatchMessages::test()), "Lodestar can reach you — This is how a message looks");
}

TEST(WatchMessageTests, HostileNamesAreShortIsolatedAndNeverUnderAPasscode)
{
    const std::string hostile = "%1 %2 <b>\xD7\x90\xE2\x80\xAE\n\x1B[31m" + std::string(300, 'x');
    const std::vector<Rank> ranks = {
        Rank::SystemErrorLit, Rank::SystemError, Rank::IOServerError, Rank::PartitionError, Rank::ConsoleOffline,
        Rank::FeedsMissing,   Rank::Stopped,     Rank::LEDLit,        Rank::GroupError,     Rank::OpenEvent};
    std::vector<News> all(ranks.size() + 2);
    for (std::size_t place = 0; place < ranks.size(); ++place) {
        all[place].worse(ranks[place], hostile, hostile, hostile).on(1);
        all[place].news.worseNow[0].eventText = all[place].news.worseNow[0].eventNumber = hostile;
        all[ranks.size()].worse(ranks[place], hostile, hostile, hostile).on(1);
    }
    all.back().better(ChangeKind::State, hostile, hostile, 1min);
    for (const News& each : all) {
        const Message told = each.words();
        const QString text = QString::fromStdString(told.summary + told.body);
        EXPECT_LT(text.size(), 700);
        for (const QChar letter : text) {
            EXPECT_TRUE(letter.category() != QChar::Other_Control && letter.unicode() != 0x202E) << told.summary;
        }
        EXPECT_EQ(text.count(QChar(0x2068)), text.count(QChar(0x2069)));
        EXPECT_THAT(shown(each.words(true)), testing::Not(testing::HasSubstr("xx")));
    }
    EXPECT_EQ(DBusMessageService::plain("a\r\nb\t<i>\x7F&\"", 100, true), "a  b &lt;i&gt;&amp;&quot;");
    EXPECT_EQ(DBusMessageService::plain(std::string(9, 'a') + "\xF0\x9F\x94\x91 tail", 11, false),
              QString(9, 'a') + QChar(0x2026));
}

/// A network manager that says what a test tells it.
class Manager final : public QDBusVirtualObject
{
public:
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        return connection.send(message.createReply(QVariant::fromValue(properties)));
    }
    QVariantMap properties;
};

TEST(WatchMessageTests, TheNetworkIsWhatItsManagerSays)
{
    QDBusConnection desk = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "manager");
    DBusNetworkState network;
    std::vector<Connectivity> told;
    network.setChanged([&] { told.push_back(network.connectivity()); });
    network.follow(QDBusConnection::sessionBus());
    Manager manager;
    manager.properties = {{"State", 70U}, {"Metered", 3U}};
    const QString path = "/org/freedesktop/NetworkManager";
    desk.registerVirtualObject(path, &manager);
    ASSERT_TRUE(desk.registerService("org.freedesktop.NetworkManager"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 1; }));
    const auto change = [&](const QVariantMap& properties) {
        QDBusMessage changed = QDBusMessage::createSignal(path, "org.freedesktop.DBus.Properties", "PropertiesChanged");
        changed << "org.freedesktop.NetworkManager" << properties << QStringList();
        desk.send(changed);
    };
    change({{"Metered", 4U}});
    change({{"State", 20U}});
    change({{"State", 50U}});
    change({{"ActiveConnections", QStringList()}});
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 4; }));
    desk.unregisterService("org.freedesktop.NetworkManager");
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 5; }));
    EXPECT_THAT(told, ElementsAre(Connectivity::Metered, Connectivity::Free, Connectivity::Absent, Connectivity::Free,
                                  Connectivity::Unknown));
}

QByteArray control(const QStringList& arguments)
{
    QProcess tool;
    tool.start("dunstctl", arguments);
    EXPECT_TRUE(tool.waitForFinished(20'000));
    return tool.readAllStandardOutput();
}

/// The messages that are shown no more, newest first.
QJsonArray past()
{
    return QJsonDocument::fromJson(control({"history"})).object()["data"].toArray()[0].toArray();
}

int count(const QString& which)
{
    return control({"count", which}).trimmed().toInt();
}

TEST(WatchMessageTests, ARealServiceShowsReplacesAndOpensMessages)
{
    DBusMessageService service;
    int changes = 0;
    int taps = 0;
    service.setAvailabilityChanged([&] { ++changes; });
    service.setTapped([&] { ++taps; });
    service.follow(QDBusConnection::sessionBus());
    EXPECT_FALSE(QTest::qWaitFor([&] { return service.isAvailable(); }, 300)) << "no service is there yet";
    service.show({"dropped", ""});

    QProcess daemon;
    const auto start = [&](const char* settings) {
        daemon.start("dunst", {"-conf", qEnvironmentVariable(sessionVariable) + settings});
        return QTest::qWaitFor([&] { return service.isAvailable(); }, 20'000);
    };
    const auto isOneShown = [] { return QTest::qWaitFor([] { return count("displayed") == 1; }, 20'000); };
    ASSERT_TRUE(start("/markup"));
    EXPECT_EQ(changes, 1);
    service.show({"first", "one"});
    service.show({"skipped", "the number of the one before is not known yet"});
    service.show({"<b>second</b>", "<b>R&D</b>\nline"});
    ASSERT_TRUE(isOneShown());
    QTest::qWait(300);
    EXPECT_EQ(count("displayed"), 1) << "the newer replaces the older";
    control({"close"});
    const auto told = QTest::qWaitFor([] { return count("history") > 0; }, 20'000) ? past() : QJsonArray();
    ASSERT_EQ(told.size(), 1);
    const auto part = [](const QJsonValue& message, const char* name) {
        return message[QLatin1String(name)]["data"].toString().toStdString();
    };
    EXPECT_EQ(part(told[0], "appname"), "Lodestar");
    EXPECT_EQ(part(told[0], "summary"), "<b>second</b>");
    EXPECT_EQ(part(told[0], "body"), "&lt;b&gt;R&amp;D&lt;/b&gt; line") << "shown as text";

    service.show({"third", ""});
    ASSERT_TRUE(isOneShown());
    QTest::qWait(100); // a person is slower than the answer with the message's number
    control({"action"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return taps == 1; }, 20'000));

    daemon.kill();
    daemon.waitForFinished();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !service.isAvailable(); }, 20'000));
    ASSERT_TRUE(start("/plain"));
    service.show({"again", "<b>R&D</b>"});
    EXPECT_TRUE(isOneShown());
    control({"close"});
    EXPECT_EQ(part(past()[0], "body"), "<b>R&D</b>") << "this one reads no mark-up";
    daemon.kill();
    daemon.waitForFinished();
}

int runInSession(int argc, char** argv)
{
    const ScratchFolder scratch;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TZ", "UTC");
    environment.insert(sessionVariable, QString::fromStdString(scratch.path()));
    std::ofstream(scratch.file("markup")) << "[global]\nmarkup = full\n";
    std::ofstream(scratch.file("plain")) << "[global]\nmarkup = no\n";
    return test::runInOwnSession(argc, argv, scratch, environment, {"xvfb-run", "--auto-servernum"}, {});
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    return lodestar::test::mainInOwnSession(argc, argv, lodestar::sessionVariable, &lodestar::runInSession);
}
