// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Toasts.h"
#include "Tests/Views/ReadingFixture.h"
#include "Views/Connection/ConnectionViewController.h"

#include <QClipboard>
#include <QGuiApplication>

namespace lodestar::testing
{
namespace
{

class ConnectionTest : public ReadingTest
{
protected:
    ConnectionTest() : corvel(addCorvel("Harbour B", "b.example")), screen(open<ConnectionViewController>(corvel)) {}

    /// The sections' titles; the verdict has none.
    std::string titles() const
    {
        QStringList titles;
        for (const ConnectionSection& section : screen->sections()) {
            titles << section.title;
        }
        return titles.join('|').toStdString();
    }
    const ConnectionSection& section(const QString& title) const
    {
        const auto found = std::ranges::find(screen->sections(), title, &ConnectionSection::title);
        if (found == screen->sections().end()) {
            ADD_FAILURE() << "no section " << title.toStdString();
            return screen->sections().front();
        }
        return *found;
    }
    std::vector<std::string> rows(const QString& title) const
    {
        std::vector<std::string> rows;
        for (const ConnectionRow& row : section(title).rows) {
            rows.push_back(row.spoken().toStdString());
        }
        return rows;
    }
    std::string verdict() const { return rows("").front(); }

    CorvelRef corvel;
    std::shared_ptr<ConnectionViewController> screen;
};

TEST_F(ConnectionTest, AConsoleThatAnsweredInFullShowsWhereTheTimeWent)
{
    EXPECT_EQ(header(*screen), "Connection/Harbour B");
    EXPECT_EQ(verdict(), "Not tried yet");
    EXPECT_EQ(rows("Last success"), std::vector<std::string>{"Read in full, never"});

    report(corvel, complete());
    EXPECT_EQ(verdict(), "Online, Everything was read 2 min ago, in 0.94\u00a0s.");
    EXPECT_EQ(titles(), "|Last attempt|Feeds|Certificate");
    EXPECT_TRUE(section("").refreshes);
    EXPECT_THAT(rows("Last attempt"), ElementsAre("Name, 192.0.2.12, 4 ms", "Connect, port 12443, 12 ms",
                                                  "TLS, 1.3, certificate as before, 31 ms",
                                                  "Session check, 200, key accepted, 48 ms", "Logon, not needed"));
    const ConnectionSection& attempt = section("Last attempt");
    EXPECT_EQ(attempt.detail, "today, 09:41");
    EXPECT_EQ(attempt.partsNames, "name, connect, TLS, session, feeds");
    EXPECT_EQ(attempt.partsSum, "0.94\u00a0s");
    ASSERT_EQ(attempt.parts.size(), 5);
    EXPECT_NEAR(attempt.parts.back(), 0.9, 0.01);
    EXPECT_EQ(section("Feeds").detail, "6 of 6");
    EXPECT_EQ(rows("Feeds")[1], "Managed Systems, 200, 1 entry, 214 KB, 96 ms");
    EXPECT_THAT(rows("Certificate"),
                ElementsAre("Subject, corvel-b.harbour.example", "Issuer, itself", "Valid, 1 Sept 2025 to 25 Jul 2027",
                            StartsWith("SHA-256 fingerprint, 5B0E 41C7 0000 0000 0000 0000 0000 0000\n0000 "),
                            "Compared with last time, unchanged since 3 Mar",
                            StartsWith("Trust, Not vouched for by this device’s authorities.")));
    // The clock alone moves the age, and only what was seen ages.
    int changes = 0;
    QObject::connect(screen.get(), &ConnectionViewController::sectionsChanged, [&] { ++changes; });
    AgeClock::setNow(morning + 1s);
    EXPECT_EQ(changes, 0);
    AgeClock::setNow(morning + 2h);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(verdict(), "Online, Everything was read at 09:41, in 0.94\u00a0s.");

    Reading given = complete();
    stage(given, StageKind::Name).result = StageResult::NotNeeded;
    stage(given, StageKind::Name).duration = {};
    report(corvel, given);
    EXPECT_EQ(rows("Last attempt")[0], "Name, address given");
    stage(given, StageKind::Connect).result = StageResult::NotNeeded;
    report(corvel, given);
    EXPECT_EQ(rows("Last attempt")[0], "Name, not needed") << "the connection was kept";
}

TEST_F(ConnectionTest, MissingFeedsComeFirstWithWhatMayBeTried)
{
    Reading reading = without({ObjectType::LogicalPartition, ObjectType::Group});
    FeedReading& groups = feed(reading, ObjectType::Group);
    groups.error = urlError(URLErrorCode::TimedOut);
    groups.duration = 60s;
    groups.readAt = morning - 12h;
    report(corvel, reading);
    EXPECT_EQ(verdict(), "Online, 2 of 6 feeds missing, Partitions and resource groups could not be read. "
                         "The rest is 2 min old.");
    EXPECT_EQ(titles(), "|Feeds|What to try|Last attempt|Certificate|Last success");
    EXPECT_EQ(section("Feeds").detail, "4 of 6");
    EXPECT_EQ(rows("Feeds")[0], "Logical Partitions, 500, the console failed to answer, 96 ms");
    EXPECT_EQ(rows("Feeds")[1], "Resource Groups, no answer within 60 s (-1001), 60.0 s");
    EXPECT_EQ(section("Feeds").rows[1].mark, Role::State::Incomplete);
    EXPECT_EQ(section("Feeds").rows[2].mark, Role::State::Good);
    EXPECT_EQ(section("Feeds").foot, "Partitions were last read at 09:13, resource groups yesterday 21:43.");
    EXPECT_EQ(rows("What to try").size(), 2U);
    EXPECT_TRUE(section("Last attempt").parts.empty());
}

TEST_F(ConnectionTest, EachFailureNamesItsStageAndLeavesTheLaterOnesUnreached)
{
    const struct {
        StageKind stage;
        Error error;
        const char* plate;
    } failures[] = {
        {StageKind::Name, urlError(URLErrorCode::CannotFindHost), "Name not found (-1003)"},
        {StageKind::Connect, urlError(URLErrorCode::TimedOut), "Nothing within 10 s (-1001)"},
        {StageKind::TLS, urlError(URLErrorCode::SecureConnectionFailed), "No secure connection (-1200)"},
        {StageKind::SessionCheck, statusError(503), "The console failed to answer (503)"},
        {StageKind::Logon, statusError(401), "Wrong user or password (401)"},
    };
    for (const auto& failure : failures) {
        SCOPED_TRACE(failure.plate);
        Readings::shared().forgetAll();
        report(corvel, failedAt(failure.stage, failure.error));
        EXPECT_THAT(verdict(), StartsWith("Offline since 09:41, "));
        EXPECT_THAT(titles(), StartsWith("|What to try|Last attempt|"));
        const QList<ConnectionRow>& stages = section("Last attempt").rows;
        ASSERT_EQ(stages.size(), 6);
        const auto at = static_cast<qsizetype>(failure.stage);
        for (qsizetype i = 0; i < stages.size(); ++i) {
            EXPECT_EQ(stages[i].failure, i == at ? failure.plate : "");
            EXPECT_EQ(stages[i].detail == "not reached", i > at);
        }
    }
}

TEST_F(ConnectionTest, ACertificateThatChangedWithinTheAttemptIsShownBesideTheOneBefore)
{
    Reading reading = failedAt(StageKind::Logon, urlError(URLErrorCode::ServerCertificateUntrusted), 6h + 45min);
    stage(reading, StageKind::SessionCheck).status = 401;
    CertificateReading& certificate = *reading.certificate;
    certificate.atSessionCheck = certificate.shown;
    certificate.atSessionCheckSince = certificate.since;
    certificate.shown.fingerprint = {0xC9, 0x1A};
    certificate.shown.subject = "evil\u202E\n\x1B[31mname";
    certificate.shown.validUntil = morning - 24h * 9;
    certificate.compared = CertificateChange::Changed;
    reading.lastComplete = morning - 7h;
    reading.lastCompleteDuration = 1200ms;
    reading.versionThen = "V3R1.9.0.SP2";
    report(corvel, reading);
    EXPECT_EQ(rows("Last attempt")[3], "Session check, 401, key ended, 48 ms");
    EXPECT_EQ(section("Last attempt").rows[4].failure, "Not the certificate of the session check (-1202)");
    EXPECT_THAT(section("Certificate").detail.toStdString(), StartsWith("changed today, "));
    const std::vector<std::string> facts = rows("Certificate");
    EXPECT_THAT(facts, ElementsAre(StartsWith("At the logon, new, C91A 0000"),
                                   StartsWith("At the session check, known since 3 Mar, 5B0E 41C7"),
                                   "Subject, evil [31mname", "Issuer, itself", EndsWith(", ended 3 Mar"),
                                   StartsWith("Trust, The new one is neither vouched for")));

    screen->copyAll();
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith("Connection\nHarbour B\nOffline since "));
    for (const std::string& fact : facts) {
        EXPECT_TRUE(copied.contains(QString::fromStdString(fact))) << fact;
    }
    EXPECT_FALSE(copied.contains("secret") || copied.contains("oversight"));
    EXPECT_THAT(Toasts::shared().text().toStdString(), MatchesRegex("Copied [0-9]+ rows"));
}

TEST_F(ConnectionTest, ARefreshIsFollowedAndADeletedConsoleKeepsWhatTheScreenShows)
{
    corvel->setDemo(true);
    Readings::shared().begin(corvel);
    drain();
    EXPECT_TRUE(screen->isUpdating());
    EXPECT_FALSE(screen->isRefreshable());
    report(corvel, failedAt(StageKind::Connect, urlError(URLErrorCode::CannotConnectToHost)));
    EXPECT_TRUE(screen->isRefreshable());
    screen->refresh();
    drain();
    ASSERT_TRUE(runUntil([&] { return QString::fromStdString(verdict()).startsWith("Online"); }));
    EXPECT_TRUE(corvel->isOnline && corvel->completedFetch);

    const std::string before = verdict();
    deleteCorvelAtIndex(0);
    drain();
    AgeClock::setNow(morning);
    EXPECT_EQ(verdict(), before);
    EXPECT_FALSE(screen->isRefreshable());
    screen->refresh();
    EXPECT_FALSE(Readings::shared().of(*corvel)->isUpdating);
}

} // namespace
} // namespace lodestar::testing
