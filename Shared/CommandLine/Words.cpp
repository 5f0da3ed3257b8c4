// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Words.h"

#include "Fleet/ChangeDays.h"
#include "Inventory/Feed.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <ctime>

namespace lodestar
{
namespace
{

struct FeedName {
    std::string_view type;
    std::string_view within;
    std::string_view atStart;
};
constexpr std::array<FeedName, feedTable.size()> feedNames = {{
    {ObjectType::ManagementConsole, "console details", "Console details"},
    {ObjectType::ManagedSystem, "systems", "Systems"},
    {ObjectType::VirtualIOServer, "IO servers", "IO servers"},
    {ObjectType::LogicalPartition, "partitions", "Partitions"},
    {ObjectType::ServiceableEvent, "events", "Events"},
    {ObjectType::Group, "resource groups", "Resource groups"},
}};

const FeedName* nameOf(std::string_view type)
{
    const auto* const found = std::ranges::find(feedNames, type, &FeedName::type);
    return found != feedNames.end() ? found : nullptr;
}

/// The parts that are there, with commas.
std::string joined(std::initializer_list<std::string> parts)
{
    std::string text;
    for (const std::string& part : parts) {
        text.append(text.empty() || part.empty() ? "" : ", ").append(part);
    }
    return text;
}

std::string ofSystem(const Finding& finding)
{
    return finding.isIncomplete() ? "System incomplete" : "System in error";
}

std::string ofEvent(const Finding& event)
{
    // Further reports, and the first one.
    return joined({event.eventNumber.empty() ? std::string() : "#" + event.eventNumber, event.referenceCode,
                   event.callsHome ? "call home" : "",
                   event.duplicates > 0 ? fmt::format("{} times", event.duplicates + 1) : ""});
}

std::string stopped(const Finding& finding, WallTime now)
{
    const std::string until = !finding.ranUntil ? std::string()
                              : now - *finding.ranUntil < std::chrono::hours(24)
                                  ? Words::clock(*finding.ranUntil)
                                  : Words::moment(*finding.ranUntil, now);
    return fmt::format("{} stopped, ran until {}",
                       finding.subject == FindingSubject::IOServer ? "IO server" : "Partition", until);
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

std::string Words::count(std::size_t number, std::string_view one, std::string_view several)
{
    return fmt::format("{} {}", number, number == 1 ? one : several);
}

std::string Words::summary(const Findings& findings)
{
    return joined(
        {findings.needAttention == 0 ? std::string("No faults")
                                     : count(findings.needAttention, "thing needs attention", "things need attention"),
         findings.openEvents == 0 ? std::string() : count(findings.openEvents, "event is open", "events are open")});
}

std::string Words::beforeOffline(std::size_t number)
{
    return number == 0 ? std::string()
                       : count(number, "thing needed attention there before.", "things needed attention there before.");
}

std::string_view Words::band(FindingBand band)
{
    switch (band) {
    case FindingBand::Errors:
        return "Errors";
    case FindingBand::NotAnswering:
        return "Not answering";
    case FindingBand::Warnings:
        return "Warnings";
    case FindingBand::OpenEvents:
        break;
    }
    return "Open events";
}

std::string Words::sentence(const Finding& finding, WallTime now)
{
    switch (finding.rank) {
    case FindingRank::SystemErrorLit:
        return joined({ofSystem(finding), "LED on"});
    case FindingRank::SystemError:
        return joined({ofSystem(finding), finding.referenceCode});
    case FindingRank::IOServerError:
        return joined({"IO server in error", finding.referenceCode});
    case FindingRank::PartitionError:
        return joined({"Partition in error", finding.referenceCode});
    case FindingRank::ConsoleOffline:
        return joined({"Offline", finding.error ? reason(*finding.error) : std::string()});
    case FindingRank::FeedsMissing:
        return feedsNotRead(finding.missing);
    case FindingRank::Stopped:
        return stopped(finding, now);
    case FindingRank::LEDLit:
        return "LED on, system " + finding.state;
    case FindingRank::GroupError:
        return fmt::format("{} of {} resources in error", finding.membersInError, finding.members);
    case FindingRank::OpenEvent:
        break;
    }
    return ofEvent(finding);
}

std::string Words::reason(const Error& error)
{
    switch (reasonOf(error)) {
    case ReadingReason::TimedOut:
        return "nothing within 10 s";
    case ReadingReason::NameNotFound:
        return "name not found";
    case ReadingReason::ConnectionRefused:
        return "connection refused";
    case ReadingReason::ConnectionLost:
        return "connection broke off";
    case ReadingReason::TooManyRedirects:
        return "redirected too often";
    case ReadingReason::NotUnderstood:
        return "answer not understood";
    case ReadingReason::TooLarge:
        return "answer too large";
    case ReadingReason::NoSecureConnection:
        return "no secure connection";
    case ReadingReason::CertificateChanged:
        return "its certificate changed";
    case ReadingReason::WrongCredentials:
        return "wrong user or password";
    case ReadingReason::ServerError:
        return fmt::format("the console failed to answer ({})", statusOf(error));
    case ReadingReason::OtherStatus:
        return fmt::format("answered {}", statusOf(error));
    case ReadingReason::NoSessionKey:
        return "no session key";
    case ReadingReason::Unknown:
        break;
    }
    return shownDescription(error);
}

std::string_view Words::feed(std::string_view type)
{
    const FeedName* const name = nameOf(type);
    return name != nullptr ? name->within : std::string_view();
}

std::string_view Words::feedAtStart(std::string_view type)
{
    const FeedName* const name = nameOf(type);
    return name != nullptr ? name->atStart : std::string_view();
}

std::string Words::feedsNotRead(const std::vector<std::string_view>& types)
{
    switch (types.size()) {
    case 0:
        return {};
    case 1:
        return fmt::format("{} not read", feedAtStart(types[0]));
    case 2:
        return fmt::format("{} and {} not read", feedAtStart(types[0]),
                           types[1] == ObjectType::Group ? "groups" : feed(types[1]));
    case feedTable.size():
        return "Nothing of it could be read";
    default:
        return fmt::format("{} of 6 feeds not read", types.size());
    }
}

std::string Words::name(const Change& change)
{
    switch (change.kind) {
    case ChangeKind::EventOpened:
        return "#" + change.name + " opened";
    case ChangeKind::EventGone:
        return "#" + change.name + " gone";
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
        return "LED on";
    case ChangeKind::LEDOff:
        return "LED off";
    case ChangeKind::EventOpened:
    case ChangeKind::EventGone:
        return change.to.empty() ? change.from : change.to;
    case ChangeKind::Offline:
        return "Offline";
    case ChangeKind::OnlineAgain:
        return "Online again after " + duration(change.lasted);
    case ChangeKind::FeedMissing:
        return fmt::format("{} not read", feedAtStart(change.object.type));
    case ChangeKind::FeedReadAgain:
        return fmt::format("{} read again", feedAtStart(change.object.type));
    case ChangeKind::ObjectNew:
        return "New";
    case ChangeKind::ObjectGone:
        return "Gone";
    case ChangeKind::CertificateChanged:
        break;
    }
    return "Certificate changed";
}

std::string Words::duration(std::chrono::seconds lasted)
{
    constexpr long hour = 60;
    constexpr long day = 24 * hour;
    const long minutes = std::max(1L, static_cast<long>(std::chrono::round<std::chrono::minutes>(lasted).count()));
    if (minutes < hour) {
        return fmt::format("{} min", minutes);
    }
    if (minutes >= 2 * day) {
        return fmt::format("{} days", minutes / day);
    }
    return fmt::format("{} h", minutes / hour) + (minutes % hour == 0 ? "" : fmt::format(" {} min", minutes % hour));
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
        return "yesterday " + clock(then);
    }
    if (days > 1 && days < daysOfWeek) {
        return formatted(stamp, "%a %H:%M");
    }
    const std::string date = std::to_string(stamp.tm_mday) + formatted(stamp, " %b");
    return stamp.tm_year == today.tm_year && days > 0 && !isAhead ? date : date + formatted(stamp, " %Y");
}

std::string Words::since(const Since& since, WallTime now)
{
    return (since.exact ? "since " : "at least since ") + moment(since.time, now);
}

} // namespace lodestar
