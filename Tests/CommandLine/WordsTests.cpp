// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Kit/Core/Languages.h"
#include "Views/Attention/ChangeText.h"
#include "Views/Attention/FindingText.h"
#include "Views/Common/AgeText.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/ReasonText.h"

#include <QLocale>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <vector>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;

/// What a terminal says is what the screens say.
class WordsTests : public ::testing::Test
{
protected:
    WordsTests() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    ~WordsTests() override
    {
        speak("en");
        QLocale::setDefault(m_before);
    }

    /// Both at once.
    static void speak(const QString& language)
    {
        Languages::use({language});
        Texts::speak(language.toStdString());
    }
    /// Without the controls that hold names apart from a sentence of another direction.
    static std::string plain(const QString& text)
    {
        static const QRegularExpression controls(QStringLiteral("[\\x{2066}-\\x{2069}]"));
        return QString(text).remove(controls).toStdString();
    }

    static Error errorOf(std::string_view domain, int code)
    {
        return {std::string(domain), code, "A description.", "", nullptr};
    }
    static std::vector<Error> errors()
    {
        std::vector<Error> all;
        for (const int code : {-1, -1001, -1003, -1004, -1005, -1007, -1011, -1103, -1200, -1202}) {
            all.push_back(errorOf(urlErrorDomain, code));
        }
        return all;
    }

    const QLocale m_before;
    const WallTime now{1'773'308'460s};
};

TEST_F(WordsTests, OfFindingsAndReasonsAreThoseOfTheScreens)
{
    Findings findings;
    const auto add = [&](FindingRank rank, auto change) {
        Finding& finding = findings.list.emplace_back();
        finding.rank = rank;
        change(finding);
    };
    const auto asItIs = [](Finding&) {};
    for (const char* const state : {"error", "incomplete"}) {
        const auto isSo = [state](Finding& each) { each.state = state; };
        add(FindingRank::SystemErrorLit, isSo);
        add(FindingRank::SystemError, isSo);
    }
    for (const FindingRank rank : {FindingRank::SystemError, FindingRank::IOServerError, FindingRank::PartitionError}) {
        add(rank, asItIs);
        add(rank, [](Finding& each) { each.referenceCode = "X417-2208"; });
    }
    add(FindingRank::ConsoleOffline, asItIs);
    for (const Error& error : errors()) {
        add(FindingRank::ConsoleOffline, [&](Finding& each) { each.error = error; });
    }
    std::vector<std::string_view> missing;
    for (const FeedKind& kind : feedTable) {
        add(FindingRank::FeedsMissing, [&](Finding& each) { each.missing = {kind.type}; });
        add(FindingRank::FeedsMissing, [&](Finding& each) {
            each.missing = {ObjectType::ManagementConsole, kind.type};
        });
        missing.push_back(kind.type);
        add(FindingRank::FeedsMissing, [&](Finding& each) { each.missing = missing; });
    }
    add(FindingRank::FeedsMissing, [](Finding& each) {
        each.missing = {ObjectType::LogicalPartition, ObjectType::Group};
    });
    for (const FindingSubject subject : {FindingSubject::IOServer, FindingSubject::Partition}) {
        for (const auto ago : {2h, 30h}) {
            add(FindingRank::Stopped, [&](Finding& each) {
                each.subject = subject;
                each.ranUntil = now - ago;
            });
        }
    }
    add(FindingRank::LEDLit, [](Finding& each) { each.state = "operating"; });
    add(FindingRank::GroupError, [](Finding& each) { each.membersInError = 1, each.members = 16; });
    add(FindingRank::OpenEvent, [](Finding& each) {
        each.eventNumber = "1042";
        each.referenceCode = "X417-2208";
        each.callsHome = true;
        each.duplicates = 5;
    });
    for (const QString& language : Languages::all()) {
        SCOPED_TRACE(language.toStdString());
        speak(language);
        for (std::uint32_t i = 0; i < findings.list.size(); ++i) {
            // Days older than yesterday are told by the system's names.
            if (findings.list[i].rank != FindingRank::Stopped) {
                EXPECT_EQ(Words::sentence(findings.list[i], now),
                          plain(FindingText::sentence(findings, FindingRow{{i}}, now)));
            }
            EXPECT_EQ(Words::band(bandOf(findings.list[i].rank)),
                      plain(FindingText::band(bandOf(findings.list[i].rank))));
        }
        for (const std::size_t count : {0U, 1U, 2U, 8U, 11U, 100U, 103U, 111U}) {
            findings.needAttention = findings.openEvents = count;
            EXPECT_EQ(Words::summary(findings), plain(FindingText::summary(findings)));
            EXPECT_EQ(Words::beforeOffline(count), plain(FindingText::beforeOffline(count)));
        }
        for (const Error& error : errors()) {
            EXPECT_EQ(Words::reason(error), plain(reasonText(error)));
        }
    }
}

TEST_F(WordsTests, OfChangesAndTimesAreThoseOfTheScreens)
{
    std::vector<Change> changes;
    for (int kind = 0; kind <= static_cast<int>(ChangeKind::CertificateChanged); ++kind) {
        for (const std::string_view type : {ObjectType::LogicalPartition, ObjectType::ServiceableEvent}) {
            Change& change = changes.emplace_back();
            change.kind = static_cast<ChangeKind>(kind);
            change.object = {std::string(type), "7"};
            change.console = "Harbour B";
            change.name = "1042";
            change.from = "running";
            change.to = "error";
            change.lasted = std::chrono::seconds(kind * 4321);
        }
    }
    for (std::uint32_t i = 0; i < changes.size(); ++i) {
        const FindingCell cell = ChangeText::cellOf(changes, ChangeRow{{i}}, false);
        EXPECT_EQ(Words::name(changes[i]), cell.name.toStdString());
        EXPECT_EQ(Words::sentence(changes[i]), cell.sentence.toStdString());
    }
    // What a message names may look like a number's place.
    Error error = errorOf("None", 1);
    error.localizedDescription = "50%n of %Ln.csv, %1";
    EXPECT_EQ(Words::errorText(error), error.localizedDescription);
    for (const auto lasted : {0s, 89s, 25min + 0s, 60min + 0s, 125min + 0s, 47h + 0s, 72h + 0s}) {
        EXPECT_EQ(Words::duration(lasted), ChangeText::duration(lasted).toStdString());
    }
    for (const std::chrono::seconds ago :
         {0s, 3600s, 100'000s, 300'000s, 600'000s, 700'000s, 30'000'000s, -60s, -600s, -100'000s}) {
        EXPECT_EQ(Words::moment(now - ago, now), AgeText::moment(now - ago, now).toStdString());
        EXPECT_EQ(Words::since({now - ago, false}, now), AgeText::since({now - ago, false}, now).toStdString());
    }
}

} // namespace
} // namespace lodestar
