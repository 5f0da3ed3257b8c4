// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/Json.h"
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Fleet/AttentionTable.h"
#include "Fleet/ObjectTable.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <vector>

namespace lodestar
{
namespace
{

using Texts::say;

std::string noConsoles()
{
    return say(TEXT("CommandLine", "No consoles yet. Add one with: %1"),
               {"lodestar-cli consoles add ADDRESS --user USER"});
}

/// What a console's row says behind its numbers.
std::string noteOf(const ConsoleSnapshot& console, WallTime now)
{
    const Reading& reading = *console.reading;
    switch (reading.outcome) {
    case Reading::Outcome::NotTried:
        return say(TEXT("CommandLine", "left out, its certificate changed"));
    case Reading::Outcome::Complete:
        return {};
    case Reading::Outcome::Partial:
        return Words::feedsNotRead(reading.missingFeeds());
    case Reading::Outcome::Offline:
        break;
    }
    const std::string offline =
        reading.offlineSince
            //: %1 as in "09:41", "yesterday 21:40" or "3 Mar"
            ? say(TEXT("CommandLine", "offline since %1"), {Words::moment(*reading.offlineSince, now)})
            : say(TEXT("CommandLine", "offline"));
    return reading.error ? say(TEXT("lodestar::FindingText", "%1, %2"), {offline, Words::reason(*reading.error)})
                         : offline;
}

std::string statusText(const FleetPicture& picture, const Terminal& terminal)
{
    if (picture.consoles.empty()) {
        return sentenceText(noConsoles(), terminal);
    }
    std::string text =
        sentenceText(Words::summary(picture.findings), terminal) + sentenceText(picture.completeness(), terminal);
    if (picture.findings.beforeOffline > 0) {
        text += sentenceText(Words::beforeOffline(picture.findings.beforeOffline), terminal);
    }
    Table table =
        columnsOf(tableOfConsoles(picture.consoles), {"console", "health", "systems", "systems_in_error",
                                                      "attention_leds", "io_servers", "partitions", "events"});
    table.titles = {"console", "health", "systems", "errors", "LEDs", "io_servers", "partitions", "events", "note"};
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        table.rows[i].push_back(noteOf(picture.consoles[i], picture.made));
    }
    constexpr std::array<std::string_view, 3> spare = {"io_servers", "partitions", "systems"};
    text += "\n" + tableText(table, {table.titles.begin(), table.titles.end()}, spare, terminal, &inkOfState);
    for (const std::string& sentence : picture.leftOutSentences()) {
        text += "\n" + sentenceText(sentence, terminal);
    }
    return text;
}

Json::Value statusJson(const FleetPicture& picture)
{
    Json::Value answer = Json::answer("status", picture);
    answer["needs_attention"] = picture.findings.needAttention;
    answer["open_events"] = picture.findings.openEvents;
    answer["needed_attention_before_offline"] = picture.findings.beforeOffline;
    const Table table = tableOfConsoles(picture.consoles);
    answer["consoles"] = Json::Value::array();
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const Reading& reading = *picture.consoles[i].reading;
        Json::Value console = Json::row(table, table.rows[i]);
        console["missing_feeds"] = reading.missingFeeds();
        console["error"] = Json::error(reading.error);
        console["offline_since_utc"] = Json::time(reading.offlineSince);
        answer["consoles"].push_back(std::move(console));
    }
    return answer;
}

std::string bandText(const Finding& finding)
{
    return Words::band(bandOf(finding.rank));
}

/// An event is called by its text.
std::string attentionText(const FleetPicture& picture, const Terminal& terminal)
{
    if (picture.consoles.empty()) {
        return sentenceText(noConsoles(), terminal);
    }
    const bool nothing = picture.findings.list.empty();
    const std::string calm = picture.isComplete()
                                 ? say(TEXT("lodestar::AttentionNowController", "Nothing needs attention"))
                                 : say(TEXT("lodestar::AttentionNowController", "Nothing known needs attention"));
    std::string text = sentenceText(nothing ? calm : Words::summary(picture.findings), terminal) +
                       sentenceText(picture.completeness(), terminal);
    if (picture.findings.beforeOffline > 0) {
        text += sentenceText(Words::beforeOffline(picture.findings.beforeOffline), terminal);
    }
    Table table{{"severity", "name", "what", "console", "since"}, {}};
    for (const Finding& each : picture.findings.list) {
        table.rows.push_back({bandText(each), each.name, Words::sentence(each, picture.made),
                              each.subject == FindingSubject::Console ? "" : each.console,
                              each.since ? Words::moment(each.since->time, picture.made) : ""});
    }
    text += nothing ? "" : "\n" + tableText(table, terminal, &inkOfState);
    for (const std::string& sentence : picture.leftOutSentences()) {
        text += "\n" + sentenceText(sentence, terminal);
    }
    return text;
}

Json::Value attentionJson(const FleetPicture& picture)
{
    Json::Value answer = Json::answer("attention", picture);
    answer["needs_attention"] = picture.findings.needAttention;
    answer["open_events"] = picture.findings.openEvents;
    answer["needed_attention_before_offline"] = picture.findings.beforeOffline;
    answer["findings"] = Json::Value::array();
    for (const Finding& each : picture.findings.list) {
        answer["findings"].push_back(Json::finding(each, picture.made));
    }
    return answer;
}

} // namespace

Result<Verdict> showStatus(CommandContext& context)
{
    const Result<FleetPicture> picture = readFleet(context);
    if (!picture) {
        return picture.error();
    }
    if (context.arguments.has("--json")) {
        context.output.write(Json::document(statusJson(picture.value())));
    } else if (context.arguments.has("--csv")) {
        context.output.writeCsv(tableOfConsoles(picture.value().consoles));
    } else {
        context.output.write(statusText(picture.value(), context.output.terminal()));
    }
    return picture.value().verdict();
}

Result<Verdict> showAttention(CommandContext& context)
{
    const Result<FleetPicture> picture = readFleet(context);
    if (!picture) {
        return picture.error();
    }
    if (context.arguments.has("--json")) {
        context.output.write(Json::document(attentionJson(picture.value())));
    } else if (context.arguments.has("--csv")) {
        context.output.writeCsv(tableOfFindings(picture.value().findings));
    } else {
        context.output.write(attentionText(picture.value(), context.output.terminal()));
    }
    return picture.value().verdict();
}

} // namespace lodestar
