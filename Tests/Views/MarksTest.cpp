// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Watch.h"
#include "Kit/Core/Appearance.h"
#include "Kit/Core/Toasts.h"
#include "Tests/Views/ReadingFixture.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/ReadingMark.h"
#include "Views/Common/ReasonText.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/Corvels/CorvelMenu.h"
#include "Views/Dashboard/DashboardTableViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"

#include <QClipboard>
#include <QGuiApplication>

namespace lodestar::testing
{
namespace
{

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;
using namespace std::chrono_literals;

class MarksTest : public ReadingTest
{
protected:
    static WallTime at(year_month_day date, std::chrono::seconds time) { return sys_days(date) + time; }
};

TEST_F(MarksTest, AnAgeIsSaidInTheWordsOfItsSize)
{
    const struct {
        std::chrono::seconds ago;
        const char* text;
        const char* atRowEnd;
        const char* read;
    } ages[] = {
        {-121s, "12 Mar 2026", "12 Mar 2026", "read 12 Mar 2026"},
        {-120s, "just now", "just now", "read just now"},
        {59s, "just now", "just now", "read just now"},
        {60s, "1 min ago", "1 min ago", "read 1 min ago"},
        {60min - 1s, "59 min ago", "59 min ago", "read 59 min ago"},
        {60min, "08:43", "08:43", "read 1 h ago"},
        {9h + 43min, "00:00", "00:00", "read 9 h ago"},
        {9h + 43min + 1s, "yesterday 23:59", "yesterday", "read 9 h ago"},
        {24h, "yesterday 09:43", "yesterday", "read yesterday 09:43"},
        {6 * 24h + 9h + 43min, "Fri 00:00", "Fri", "read Fri 00:00"},
        {6 * 24h + 9h + 43min + 1s, "5 Mar", "5 Mar", "read 5 Mar"},
        {70 * 24h + 9h + 43min, "1 Jan", "1 Jan", "read 1 Jan"},
        {70 * 24h + 9h + 43min + 1s, "31 Dec 2025", "31 Dec 2025", "read 31 Dec 2025"},
    };
    for (const auto& age : ages) {
        const WallTime then = morning - age.ago;
        EXPECT_EQ(AgeText::of(then, morning), age.text);
        EXPECT_EQ(AgeText::atRowEnd(then, morning), age.atRowEnd);
        EXPECT_EQ(AgeText::readAgo(then, morning), age.read);
    }
    EXPECT_EQ(AgeText::of(morning - 9h - 53min, morning - 9h - 23min), "30 min ago") << "across midnight";
    EXPECT_EQ(AgeText::since({.time = morning - 2min}, morning), "since 09:41");
    EXPECT_EQ(AgeText::since({.time = morning - 12h, .exact = false}, morning), "at least since yesterday 21:43");
    EXPECT_FALSE(AgeText::isOld(morning - 1h, morning));
    EXPECT_TRUE(AgeText::isOld(morning - 1h - 1s, morning));
    EXPECT_FALSE(AgeText::isOld(morning + 24h, morning));
}

TEST_F(MarksTest, DaysAreThoseOfTheDevicesZoneAlsoWhereTheyHave23Or25Hours)
{
    setZone("Europe/Berlin");
    const WallTime spring = at(2026y / 3 / 29, 6h);
    EXPECT_EQ(AgeText::of(at(2026y / 3 / 29, 1h), spring), "03:00");
    EXPECT_EQ(AgeText::of(at(2026y / 3 / 27, 23h + 30min), spring), "yesterday 00:30");
    const WallTime autumn = at(2026y / 10 / 25, 22h + 30min);
    EXPECT_EQ(AgeText::of(at(2026y / 10 / 24, 22h + 10min), autumn), "00:10") << "more than 24 hours ago, and today";
    EXPECT_EQ(AgeText::of(at(2026y / 10 / 24, 21h + 45min), autumn), "yesterday 23:45");
    for (int offset = -11; offset <= 12; ++offset) {
        setZone("Etc/GMT" + QByteArray::number(-offset).prepend(offset <= 0 ? "+" : ""));
        const auto here = [&](WallTime time) { return time + std::chrono::hours(offset); };
        const WallTime then = morning - 5h;
        const bool today = std::chrono::floor<days>(here(then)) == std::chrono::floor<days>(here(morning));
        const auto hour = (here(then) - std::chrono::floor<days>(here(then))) / 1h;
        EXPECT_EQ(AgeText::of(then, morning),
                  QString("%1%2:43").arg(today ? "" : "yesterday ").arg(hour, 2, 10, QChar('0')))
            << offset;
    }
}

TEST_F(MarksTest, NamesOfConsolesAreShownAsOneLineOfText)
{
    EXPECT_EQ(isolated(""), "");
    EXPECT_EQ(isolated(QString::fromUtf8("a\u202Eb\r\nc\x1B[31m\u2069<b>\t\u0007")), "ab c[31m<b> ");
    const QString hebrew = QString::fromUtf8("\u05D0 (2)");
    EXPECT_EQ(isolated(hebrew), QChar(0x2068) + hebrew + QChar(0x2069));
    Appearance::shared().overrideMirrored(true);
    EXPECT_EQ(isolated("helios-01"), QChar(0x2068) + QString("helios-01") + QChar(0x2069));
    Appearance::shared().overrideMirrored({});

    EXPECT_EQ(feedsNotRead({ObjectType::Group}), "Resource groups not read");
    EXPECT_EQ(feedsNotRead({ObjectType::LogicalPartition, ObjectType::Group}), "Partitions and groups not read");
    EXPECT_EQ(feedsNotRead({4, ObjectType::Group}), "4 of 6 feeds not read");
    EXPECT_EQ(feedsNotRead({6, ObjectType::Group}), "Nothing of it could be read");
    const QStringList names = {"A", "B", "C", "D"};
    EXPECT_EQ(joinedList(names.mid(0, 2)), "A and B");
    EXPECT_EQ(joinedList(names.mid(0, 3)), "A, B and C");
    EXPECT_EQ(joinedList(names), "A, B and 2 more");
}

TEST_F(MarksTest, EveryReasonHasItsWordsItsStepsAndItsCode)
{
    Error noKey;
    noKey.domain = sessionKeyErrorDomain;
    const struct {
        Error error;
        const char* code;
        const char* reason;
        const char* verdict;
        int steps;
    } reasons[] = {
        {urlError(URLErrorCode::TimedOut), "-1001", "nothing within 10 s", "It did not answer within 10 s.", 3},
        {urlError(URLErrorCode::CannotFindHost), "-1003", "name not found", "Its name has no address.", 3},
        {urlError(URLErrorCode::CannotConnectToHost), "-1004", "connection refused",
         "Something is there, but refuses port 12443.", 2},
        {urlError(URLErrorCode::NetworkConnectionLost), "-1005", "connection broke off",
         "It broke off while answering.", 2},
        {urlError(URLErrorCode::TooManyRedirects), "-1007", "redirected too often",
         "It sent Lodestar from one address to the next.", 1},
        {urlError(URLErrorCode::BadServerResponse), "-1011", "answer not understood", "What it answered is not HTTP.",
         1},
        {urlError(URLErrorCode::DataLengthExceedsMaximum), "-1103", "answer too large",
         "It answered more than Lodestar takes.", 1},
        {urlError(URLErrorCode::SecureConnectionFailed), "-1200", "no secure connection",
         "It offers no secure connection that this device accepts.", 2},
        {urlError(URLErrorCode::ServerCertificateUntrusted), "-1202", "its certificate changed",
         "Its certificate changed in the middle of the attempt. No password was sent.", 3},
        {statusError(401), "401", "wrong user or password", "It refused the user or the password.", 2},
        {statusError(403), "403", "wrong user or password", "It refused the user or the password.", 2},
        {statusError(503), "503", "the console failed to answer (503)", "It answered with an error of its own.", 2},
        {statusError(418), "418", "answered 418", "It gave an answer that was not expected.", 1},
        {noKey, "", "no session key", "It accepted the logon but gave no key.", 2},
        {urlError(URLErrorCode::BadURL), "-1000", "The address is not valid.", "The address is not valid.", 2},
    };
    for (const auto& each : reasons) {
        EXPECT_EQ(reasonText(each.error), each.reason);
        EXPECT_EQ(reasonVerdict(each.error), each.verdict);
        EXPECT_EQ(reasonSteps(each.error).size(), each.steps) << each.reason;
        EXPECT_EQ(reasonCode(each.error), each.code);
    }
    EXPECT_EQ(feedSteps(urlError(URLErrorCode::TimedOut)), reasonSteps(statusError(500)))
        << "the network is not to blame where the console itself answered";
}

TEST_F(MarksTest, AMarkIsQuietUntilSomethingIsMissingOrOld)
{
    using State = Role::State;
    const struct {
        Reading reading;
        const char* text;
        State state;
        const char* spoken;
    } marks[] = {
        {Reading(), "", State::None, ""},
        {complete(), "2 min ago", State::None, "read 2 min ago"},
        {complete(2h), "read 2 h ago", State::Alert, "read 2 h ago"},
        {without({ObjectType::LogicalPartition}), "partitions missing", State::Incomplete, "partitions missing"},
        {without({ObjectType::LogicalPartition, ObjectType::Group}), "2 of 6 missing", State::Incomplete,
         "2 of 6 missing"},
        {failedAt(StageKind::Connect, urlError(URLErrorCode::TimedOut), 6h + 45min), "since 02:58", State::Offline,
         "offline since 02:58"},
    };
    for (const auto& mark : marks) {
        const ReadingMark shown = markOfConsole(mark.reading, morning);
        EXPECT_EQ(shown.text, mark.text);
        EXPECT_EQ(shown.state, mark.state) << mark.text;
        EXPECT_EQ(shown.spoken, mark.spoken);
    }
    const Reading partial = without({ObjectType::Group});
    EXPECT_EQ(markOfFeed(partial, ObjectType::Group, morning).text, "Resource groups not read");
    EXPECT_EQ(markOfFeed(partial, ObjectType::ManagedSystem, morning).text, "2 min ago");
    EXPECT_EQ(markOfFeed(Reading(), ObjectType::ManagedSystem, morning), ReadingMark());
}

TEST_F(MarksTest, RowsAndListsFollowReadingsAndTheClockWhileTheyAreSeen)
{
    const CorvelRef corvel = addFetched("ManagedSystem", system("helios-01", "operating"));
    auto list = makeController<CorvelListViewController>();
    list->tableView()->reloadData();
    push(list);
    ASSERT_TRUE(runUntil([&] { return Readings::shared().of(*corvel)->outcome == Reading::Outcome::Complete; }));
    drain();
    const auto rowMark = [&] {
        return list->markOf(cellAt<CorvelListCell>(*list, 0), list->marksTurn()).text.toStdString();
    };
    int turns = 0;
    QObject::connect(list.get(), &CorvelListViewController::marksChanged, [&] { ++turns; });
    report(corvel, complete());
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(rowMark(), "2 min ago");

    auto systems = makeController<MSListViewController>();
    systems->setCorvel(corvel);
    navigation->pushViewController(systems, Animated::No);
    EXPECT_EQ(systems->consoleName(), "Harbour A");
    EXPECT_EQ(systems->readingMark().text, "2 min ago");
    AgeClock::setNow(morning + 2h);
    EXPECT_EQ(systems->readingMark(), (ReadingMark{"read 2 h ago", Role::State::Alert, "read 2 h ago"}));
    EXPECT_EQ(turns, 1) << "nobody sees the rows";
    navigation->popViewController(Animated::No);
    EXPECT_EQ(turns, 2);
    EXPECT_EQ(rowMark(), "read 2 h ago");

    navigation->pushViewController(systems, Animated::No);
    deleteCorvelAtIndex(0);
    drain();
    EXPECT_EQ(systems->readingMark().text, "read 2 h ago");
}

TEST_F(MarksTest, TheDashboardTellsHowCompleteItsFiguresAreAndNotWhatWasReadLater)
{
    const std::vector<CorvelRef> corvels = {addCorvel("Harbour A", "a.example", true),
                                            addCorvel("Ridgeway", "r.example", true),
                                            addCorvel("Northfield", "n.example", true)};
    for (const CorvelRef& corvel : corvels) {
        corvel->completedFetch = true;
    }
    auto dashboard = push(makeController<DashboardTableViewController>());
    const DashboardMarks& marks = *dashboard->marks();
    ASSERT_TRUE(runUntil([&] { return !dashboard->corvelOnlineCount()->isHidden(); }));
    EXPECT_EQ(marks.answered(), ReadingMark());
    EXPECT_EQ(marks.foot(), "");

    report(corvels[0], complete());
    report(corvels[1], without({ObjectType::LogicalPartition}));
    report(corvels[2], failedAt(StageKind::Connect, urlError(URLErrorCode::TimedOut)));
    EXPECT_EQ(marks.answered(), ReadingMark()) << "the figures are still those of before";
    dashboard->createDashboard();
    EXPECT_EQ(marks.answered().text, "1 of 3 answered in full");
    EXPECT_EQ(marks.answered().state, Role::State::Incomplete);
    EXPECT_EQ(marks.partitions().text, "missing from 1 of 3") << "a console that is offline is said once";
    EXPECT_EQ(marks.systems(), ReadingMark());
    EXPECT_EQ(marks.foot(), "Read 09:41.");
    EXPECT_FALSE(marks.isOld());

    report(corvels[0], complete(0s));
    EXPECT_EQ(marks.foot(), "Read 09:41.");
    report(corvels[1], complete());
    report(corvels[2], complete());
    dashboard->createDashboard();
    EXPECT_EQ(marks.answered(), (ReadingMark{"3 of 3 answered in full", Role::State::None, "3 of 3 answered in full"}));
    EXPECT_EQ(marks.foot(), "Read 09:41 to 09:43.");
    AgeClock::setNow(morning + 2h);
    EXPECT_TRUE(marks.isOld());

    // The watch goes by the device's clock.
    AgeClock::setNow({});
    WatchSettings settings;
    settings.on = true;
    Watch::shared().setSettings(settings);
    Watch::shared().start();
    AgeClock::setNow({});
    EXPECT_THAT(marks.foot().toStdString(), EndsWith(". Next in 15 min."));
    AgeClock::setNow(std::chrono::system_clock::now() + 14min + 30s);
    EXPECT_THAT(marks.foot().toStdString(), EndsWith(". Next in 1 min."));
    Watch::shared().stop();
    Watch::shared().setSettings({});
    EXPECT_THAT(marks.foot().toStdString(), ::testing::Not(HasSubstr("Next")));
}

TEST_F(MarksTest, ARowsMenuSaysWhatIsWrongAndCopiesTheAddress)
{
    registerScenes(Scenes::connectionView);
    const CorvelRef corvel = addCorvel("Northfield\nRecovery Site", "n.example");
    report(corvel, failedAt(StageKind::Connect, urlError(URLErrorCode::TimedOut)));
    auto list = push(makeController<CorvelListViewController>());
    list->presentMenu(5);
    EXPECT_FALSE(list->rowMenu()->isPresented());
    list->presentMenu(0);
    EXPECT_EQ(list->rowMenu()->title(), "Northfield Recovery Site");
    std::vector<std::string> choices;
    for (const QVariant& choice : list->rowMenu()->choices()) {
        const auto value = choice.value<MenuChoice>();
        choices.push_back((value.title + "/" + value.detail).toStdString());
    }
    EXPECT_THAT(choices, ElementsAre("Connection/Offline", "Attention/", "Copy Address/", "Cancel/"));
    list->rowMenu()->choose(2);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "n.example");
    EXPECT_EQ(Toasts::shared().text(), "Copied n.example");

    CorvelRef attended;
    setAttentionPresenter([&](const ViewController& /*from*/, const CorvelRef& of) { attended = of; });
    list->presentMenu(0);
    list->rowMenu()->choose(1);
    setAttentionPresenter({});
    EXPECT_EQ(attended, corvel);
    list->presentMenu(0);
    list->rowMenu()->choose(0);
    EXPECT_EQ(input<CorvelRef>(), corvel);
    goBack();
    openedWith.reset();
    list->openConnection(0);
    EXPECT_EQ(input<CorvelRef>(), corvel);
    EXPECT_TRUE(isRegistered(corvel)) << "index 0 on the left deletes nothing";
}

} // namespace
} // namespace lodestar::testing
