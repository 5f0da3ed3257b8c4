// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Words.h"

#include "CommandLine/Texts.h"
#include "Fleet/ChangeDays.h"
#include "Inventory/Feed.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>

namespace lodestar
{
namespace
{

using Texts::say;

struct FeedName {
    std::string_view type;
    Text within;
    Text atStart;
};
constexpr std::array<FeedName, feedTable.size()> feedNames = {{
    {ObjectType::ManagementConsole, TEXT("lodestar::FeedName", "console details"),
     TEXT("lodestar::FeedName", "Console details")},
    {ObjectType::ManagedSystem, TEXT("lodestar::FeedName", "systems"), TEXT("lodestar::FeedName", "Systems")},
    {ObjectType::VirtualIOServer, COMMENTED_TEXT("lodestar::FeedName", "IO servers", "within a sentence"),
     TEXT("lodestar::FeedName", "IO servers")},
    {ObjectType::LogicalPartition, TEXT("lodestar::FeedName", "partitions"), TEXT("lodestar::FeedName", "Partitions")},
    {ObjectType::ServiceableEvent, TEXT("lodestar::FeedName", "events"), TEXT("lodestar::FeedName", "Events")},
    {ObjectType::Group, TEXT("lodestar::FeedName", "resource groups"), TEXT("lodestar::FeedName", "Resource groups")},
}};

const FeedName* nameOf(std::string_view type)
{
    const auto* const found = std::ranges::find(feedNames, type, &FeedName::type);
    return found != feedNames.end() ? found : nullptr;
}

/// The parts that are there, with the language's comma.
std::string joined(std::initializer_list<std::string> parts)
{
    const std::string comma = say(TEXT("lodestar::Sentence", ", "));
    std::string text;
    for (const std::string& part : parts) {
        text.append(text.empty() || part.empty() ? "" : comma).append(part);
    }
    return text;
}

std::string withPart(const std::string& sentence, const std::string& part)
{
    return part.empty() ? sentence : say(TEXT("lodestar::FindingText", "%1, %2"), {sentence, part});
}

std::string ofSystem(const Finding& finding)
{
    return finding.isIncomplete() ? say(TEXT("lodestar::FindingText", "System incomplete"))
                                  : say(TEXT("lodestar::FindingText", "System in error"));
}

std::string ofEvent(const Finding& event)
{
    // Further reports, and the first one.
    return joined({event.eventNumber.empty() ? std::string() : "#" + event.eventNumber, event.referenceCode,
                   event.callsHome ? say(TEXT("lodestar::FindingText", "call home")) : "",
                   event.duplicates > 0 ? Texts::count(TEXTS("lodestar::FindingText", "%Ln times"),
                                                       static_cast<std::size_t>(event.duplicates) + 1)
                                        : ""});
}

std::string stopped(const Finding& finding, WallTime now)
{
    const std::string until = !finding.ranUntil ? std::string()
                              : now - *finding.ranUntil < std::chrono::hours(24)
                                  ? Words::clock(*finding.ranUntil)
                                  : Words::moment(*finding.ranUntil, now);
    return finding.subject == FindingSubject::IOServer
               ? say(TEXT("lodestar::FindingText", "IO server stopped, ran until %1"), {until})
               : say(TEXT("lodestar::FindingText", "Partition stopped, ran until %1"), {until});
}

std::tm localTime(WallTime time)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm local{};
    localtime_r(&seconds, &local);
    return local;
}

std::string formatted(const std::tm& time, const char* format)
{
    std::array<char, 64> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), format, &time);
    return {text.data(), length};
}

std::chrono::sys_days dayOf(const std::tm& time)
{
    using namespace std::chrono;
    return sys_days(year(time.tm_year + 1900) / month(static_cast<unsigned>(time.tm_mon + 1)) /
                    day(static_cast<unsigned>(time.tm_mday)));
}

} // namespace

std::string Words::summary(const Findings& findings)
{
    return withPart(
        findings.needAttention == 0
            ? say(TEXT("lodestar::FindingText", "No faults"))
            : Texts::count(TEXTS("lodestar::FindingText", "%Ln things need attention"), findings.needAttention),
        findings.openEvents == 0
            ? std::string()
            : Texts::count(TEXTS("lodestar::FindingText", "%Ln events are open"), findings.openEvents));
}

std::string Words::beforeOffline(std::size_t number)
{
    return number == 0
               ? std::string()
               : Texts::count(TEXTS("lodestar::FindingText", "%Ln things needed attention there before."), number);
}

std::string Words::band(FindingBand band)
{
    switch (band) {
    case FindingBand::Errors:
        return say(TEXT("lodestar::FindingText", "Errors"));
    case FindingBand::NotAnswering:
        return say(TEXT("lodestar::FindingText", "Not answering"));
    case FindingBand::Warnings:
        return say(TEXT("lodestar::FindingText", "Warnings"));
    case FindingBand::OpenEvents:
        break;
    }
    return say(TEXT("lodestar::FindingText", "Open events"));
}

std::string Words::sentence(const Finding& finding, WallTime now)
{
    switch (finding.rank) {
    case FindingRank::SystemErrorLit:
        return withPart(ofSystem(finding), say(TEXT("lodestar::FindingText", "LED on")));
    case FindingRank::SystemError:
        return withPart(ofSystem(finding), finding.referenceCode);
    case FindingRank::IOServerError:
        return withPart(say(TEXT("lodestar::FindingText", "IO server in error")), finding.referenceCode);
    case FindingRank::PartitionError:
        return withPart(say(TEXT("lodestar::FindingText", "Partition in error")), finding.referenceCode);
    case FindingRank::ConsoleOffline:
        return finding.error ? say(TEXT("lodestar::FindingText", "Offline, %1"), {reason(*finding.error)})
                             : say(TEXT("lodestar::FindingText", "Offline"));
    case FindingRank::FeedsMissing:
        return feedsNotRead(finding.missing);
    case FindingRank::Stopped:
        return stopped(finding, now);
    case FindingRank::LEDLit:
        return say(TEXT("lodestar::FindingText", "LED on, system %1"), {finding.state});
    case FindingRank::GroupError:
        return Texts::count(TEXTS("lodestar::FindingText", "%1 of %Ln resources in error"), finding.members,
                            {std::to_string(finding.membersInError)});
    case FindingRank::OpenEvent:
        break;
    }
    return ofEvent(finding);
}

std::string Words::reason(const Error& error)
{
    switch (reasonOf(error)) {
    case ReadingReason::TimedOut:
        return say(TEXT("lodestar::ReasonText", "nothing within 10 s"));
    case ReadingReason::NameNotFound:
        return say(TEXT("lodestar::ReasonText", "name not found"));
    case ReadingReason::ConnectionRefused:
        return say(TEXT("lodestar::ReasonText", "connection refused"));
    case ReadingReason::ConnectionLost:
        return say(TEXT("lodestar::ReasonText", "connection broke off"));
    case ReadingReason::TooManyRedirects:
        return say(TEXT("lodestar::ReasonText", "redirected too often"));
    case ReadingReason::NotUnderstood:
        return say(TEXT("lodestar::ReasonText", "answer not understood"));
    case ReadingReason::TooLarge:
        return say(TEXT("lodestar::ReasonText", "answer too large"));
    case ReadingReason::NoSecureConnection:
        return say(TEXT("lodestar::ReasonText", "no secure connection"));
    case ReadingReason::CertificateChanged:
        return say(TEXT("lodestar::ReasonText", "its certificate changed"));
    case ReadingReason::WrongCredentials:
        return say(TEXT("lodestar::ReasonText", "wrong user or password"));
    case ReadingReason::ServerError:
        return say(TEXT("lodestar::ReasonText", "the console failed to answer (%1)"),
                   {std::to_string(statusOf(error))});
    case ReadingReason::OtherStatus:
        return say(TEXT("lodestar::ReasonText", "answered %1"), {std::to_string(statusOf(error))});
    case ReadingReason::NoSessionKey:
        return say(TEXT("lodestar::ReasonText", "no session key"));
    case ReadingReason::Unknown:
        break;
    }
    return errorText(error);
}

std::string Words::errorText(const Error& error)
{
    return say({"ErrorWords", shownDescription(error)});
}

std::string Words::feed(std::string_view type)
{
    const FeedName* const name = nameOf(type);
    return name != nullptr ? say(name->within) : std::string();
}

std::string Words::feedAtStart(std::string_view type)
{
    const FeedName* const name = nameOf(type);
    return name != nullptr ? say(name->atStart) : std::string();
}

std::string Words::feedsNotRead(const std::vector<std::string_view>& types)
{
    switch (types.size()) {
    case 0:
        return {};
    case 1:
        return say(TEXT("lodestar::FeedName", "%1 not read"), {feedAtStart(types[0])});
    case 2:
        return say(TEXT("lodestar::FeedName", "%1 and %2 not read"),
                   {feedAtStart(types[0]),
                    types[1] == ObjectType::Group ? say(TEXT("lodestar::FeedName", "groups")) : feed(types[1])});
    case feedTable.size():
        return say(TEXT("lodestar::FeedName", "Nothing of it could be read"));
    default:
        return feedsNotRead(types.size());
    }
}

std::string Words::feedsNotRead(std::size_t feeds)
{
    return Texts::count(TEXTS("lodestar::FeedName", "%Ln of 6 feeds not read"), feeds);
}

std::string Words::name(const Change& change)
{
    switch (change.kind) {
    case ChangeKind::EventOpened:
        return say(TEXT("lodestar::ChangeText", "#%1 opened"), {change.name});
    case ChangeKind::EventGone:
        return say(TEXT("lodestar::ChangeText", "#%1 gone"), {change.name});
    default:
        break;
    }
    if (isOfConsole(change)) {
        return change.console;
    }
    return (change.object.type == ObjectType::ServiceableEvent ? "#" : "") + change.name;
}

std::string Words::sentence(const Change& change)
{
    switch (change.kind) {
    case ChangeKind::State:
        return change.from + " → " + change.to;
    case ChangeKind::LEDOn:
        return say(TEXT("lodestar::ChangeText", "LED on"));
    case ChangeKind::LEDOff:
        return say(TEXT("lodestar::ChangeText", "LED off"));
    case ChangeKind::EventOpened:
    case ChangeKind::EventGone:
        return change.to.empty() ? change.from : change.to;
    case ChangeKind::Offline:
        return say(TEXT("lodestar::ChangeText", "Offline"));
    case ChangeKind::OnlineAgain:
        return say(TEXT("lodestar::ChangeText", "Online again after %1"), {duration(change.lasted)});
    case ChangeKind::FeedMissing:
        return say(TEXT("lodestar::ChangeText", "%1 not read"), {feedAtStart(change.object.type)});
    case ChangeKind::FeedReadAgain:
        return say(TEXT("lodestar::ChangeText", "%1 read again"), {feedAtStart(change.object.type)});
    case ChangeKind::ObjectNew:
        return say(TEXT("lodestar::ChangeText", "New"));
    case ChangeKind::ObjectGone:
        return say(TEXT("lodestar::ChangeText", "Gone"));
    case ChangeKind::CertificateChanged:
        break;
    }
    return say(TEXT("lodestar::ChangeText", "Certificate changed"));
}

std::string Words::duration(std::chrono::seconds lasted)
{
    constexpr std::size_t hour = 60;
    constexpr std::size_t day = 24 * hour;
    const auto minutes =
        static_cast<std::size_t>(std::max<std::int64_t>(1, std::chrono::round<std::chrono::minutes>(lasted).count()));
    const auto inMinutes = [](std::size_t count) {
        return Texts::count(TEXTS("lodestar::ChangeText", "%Ln min"), count);
    };
    if (minutes < hour) {
        return inMinutes(minutes);
    }
    if (minutes >= 2 * day) {
        return Texts::count(TEXTS("lodestar::ChangeText", "%Ln days"), minutes / day);
    }
    const std::string hours = Texts::count(TEXTS("lodestar::ChangeText", "%Ln h"), minutes / hour);
    return minutes % hour == 0 ? hours : say(TEXT("lodestar::ChangeText", "%1 %2"), {hours, inMinutes(minutes % hour)});
}

std::string Words::clock(WallTime time)
{
    return formatted(localTime(time), "%H:%M");
}

std::string Words::moment(WallTime then, WallTime now)
{
    /// How far a console's or a device's clock may be ahead and still mean now.
    constexpr std::chrono::minutes clockSlack{2};
    constexpr long daysOfWeek = 7;
    const std::tm stamp = localTime(then);
    const std::tm today = localTime(now);
    const auto days = (dayOf(today) - dayOf(stamp)).count();
    const bool isAhead = then > now + clockSlack;
    if (days == 0 && !isAhead) {
        return clock(then);
    }
    if (days == 1 && !isAhead) {
        return say(TEXT("lodestar::AgeText", "%1 %2"), {say(TEXT("lodestar::AgeText", "yesterday")), clock(then)});
    }
    if (days > 1 && days < daysOfWeek) {
        return say(TEXT("lodestar::AgeText", "%1 %2"), {formatted(stamp, "%a"), clock(then)});
    }
    const std::string day = std::to_string(stamp.tm_mday);
    const std::string month = formatted(stamp, "%b");
    return stamp.tm_year == today.tm_year && days > 0 && !isAhead
               //: %1 the day of a month, %2 the short name of the month
               ? say(TEXT("CommandLine", "%1 %2"), {day, month})
               //: %1 the day of a month, %2 the short name of the month, %3 a year
               : say(TEXT("CommandLine", "%1 %2 %3"), {day, month, std::to_string(stamp.tm_year + 1900)});
}

std::string Words::since(const Since& since, WallTime now)
{
    const std::string time = moment(since.time, now);
    return since.exact ? say(TEXT("lodestar::AgeText", "since %1"), {time})
                       : say(TEXT("lodestar::AgeText", "at least since %1"), {time});
}

} // namespace lodestar
