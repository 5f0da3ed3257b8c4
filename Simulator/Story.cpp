// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Story.h"

#include "Simulator/Fault.h"
#include "Simulator/FeedWriter.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>

namespace lodestar::simulator
{

namespace
{

using Names = std::set<std::string, std::less<>>;

/// What a line of one kind may say.
struct Kind {
    bool hasObject;
    Names acts;
    Names keys;
};

const std::map<std::string, Kind, std::less<>> kinds = {
    {"console", {false, {"calm", "silent", "refuses", "back"}, {"name", "answers", "logon"}}},
    {"system", {true, {"gone", "back"}, {"state", "led", "code", "name"}}},
    {"server", {true, {"gone", "back"}, {"state", "code", "name"}}},
    {"partition", {true, {"gone", "back"}, {"state", "code", "name"}}},
    {"event",
     {true,
      {"open", "closed", "gone"},
      {"code", "text", "callhome", "times", "system", "severity", "approval", "ago"}}},
    {"feed", {true, {"missing", "back"}, {"status"}}},
    {"certificate", {false, {"renewed", "expired", "misnamed", "swaps", "once", "steady"}, {}}},
    {"fault", {true, {"on", "off"}, {}}},
};

template <typename Number>
Number numberOf(std::string_view text)
{
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 0) {
        throw std::invalid_argument("not a number: " + std::string(text));
    }
    return number;
}

/// The words of a line. Quotes hold blanks together, also within a word; in them "\n", "\"" and "\\" are a line end, a
/// quote and a backslash.
std::vector<std::string> wordsOf(std::string_view line)
{
    std::vector<std::string> words;
    bool quoted = false;
    bool inWord = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char each = line[i];
        if (!quoted && (each == ' ' || each == '\t' || each == '\r')) {
            inWord = false;
            continue;
        }
        if (!inWord) {
            words.emplace_back();
            inWord = true;
        }
        if (each == '"') {
            quoted = !quoted;
        } else if (quoted && each == '\\' && i + 1 < line.size()) {
            ++i;
            words.back() += line[i] == 'n' ? '\n' : line[i];
        } else {
            words.back() += each;
        }
    }
    if (quoted) {
        throw std::invalid_argument("a quote is not closed");
    }
    return words;
}

std::chrono::seconds timeOf(std::string_view word, std::chrono::seconds before)
{
    const bool further = word.starts_with('+');
    const std::chrono::seconds at(numberOf<int>(further ? word.substr(1) : word));
    return further ? before + at : at;
}

void readRest(Deed& deed, const Kind& kind, const std::vector<std::string>& words, std::size_t from)
{
    for (std::size_t i = from; i < words.size(); ++i) {
        const std::size_t equals = words[i].find('=');
        const std::string key = words[i].substr(0, equals);
        if (equals == std::string::npos ? !kind.acts.contains(key) : !kind.keys.contains(key)) {
            throw std::invalid_argument("a " + deed.kind + " has no \"" + key + "\"");
        }
        if (equals == std::string::npos) {
            deed.acts.push_back(key);
        } else {
            deed.values[key] = words[i].substr(equals + 1);
        }
    }
    if (deed.acts.empty() && deed.values.empty()) {
        throw std::invalid_argument("nothing is said of the " + deed.kind);
    }
}

void checkDetails(const Deed& deed)
{
    for (const char* key : {"answers", "logon", "status", "times", "ago"}) {
        if (const auto number = deed.value(key)) {
            numberOf<int>(*number);
        }
    }
    if (deed.kind == "feed" && std::ranges::find(feedTypes, deed.object) == feedTypes.end()) {
        throw std::invalid_argument("no feed is called " + deed.object);
    }
    if (deed.kind == "fault") {
        if (Fault::parse(deed.object).console) {
            throw std::invalid_argument("the line names the console already");
        }
    }
    if (deed.value("name") && deed.kind == "console" && !deed.console) {
        throw std::invalid_argument("consoles cannot all have one name");
    }
}

Deed deedOf(const std::vector<std::string>& words, std::chrono::seconds before)
{
    if (words.size() < 4) {
        throw std::invalid_argument("too few words");
    }
    Deed deed;
    deed.at = timeOf(words[0], before);
    if (words[1] != "all") {
        deed.console = numberOf<int>(words[1]);
    }
    deed.kind = words[2];
    const auto kind = kinds.find(deed.kind);
    if (kind == kinds.end()) {
        throw std::invalid_argument("no line is about a \"" + deed.kind + "\"");
    }
    if (kind->second.hasObject) {
        deed.object = words[3];
    }
    readRest(deed, kind->second, words, kind->second.hasObject ? 4 : 3);
    checkDetails(deed);
    return deed;
}

} // namespace

bool Deed::is(std::string_view act) const
{
    return std::ranges::find(acts, act) != acts.end();
}

std::optional<std::string> Deed::value(std::string_view key) const
{
    const auto found = values.find(key);
    return found != values.end() ? std::optional(found->second) : std::nullopt;
}

bool Deed::changesInventory() const
{
    return kind == "system" || kind == "server" || kind == "partition" || kind == "event" || is("calm");
}

Story Story::parse(std::string_view text, std::string name)
{
    Story story;
    story.m_name = std::move(name);
    int line = 0;
    for (std::size_t start = 0; start <= text.size(); ++line) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        story.append(line + 1, text.substr(start, end - start));
        start = end + 1;
    }
    std::ranges::stable_sort(story.m_deeds, {}, &Deed::at);
    return story;
}

Story Story::read(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::invalid_argument(path + " cannot be read");
    }
    return parse(std::string(std::istreambuf_iterator<char>(file), {}), path);
}

void Story::append(int line, std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos || text[first] == '#') {
        return;
    }
    try {
        m_deeds.push_back(deedOf(wordsOf(text), m_deeds.empty() ? std::chrono::seconds(0) : m_deeds.back().at));
        m_deeds.back().line = line;
    } catch (const std::invalid_argument& error) {
        fail(line, error.what());
    }
}

void Story::fail(int line, const std::string& reason) const
{
    throw std::invalid_argument(m_name + ", line " + std::to_string(line) + ": " + reason);
}

std::string Story::nameOf(int console) const
{
    for (const Deed& deed : m_deeds) {
        if (deed.kind == "console" && deed.console == console && deed.value("name")) {
            return *deed.value("name");
        }
    }
    return {};
}

void Story::check(const std::vector<const Inventory*>& consoles) const
{
    std::map<int, Inventory> copies;
    for (const Deed& deed : m_deeds) {
        const int count = static_cast<int>(consoles.size());
        if (deed.console && *deed.console >= count) {
            fail(deed.line, "there is no console " + std::to_string(*deed.console));
        }
        if (!deed.changesInventory()) {
            continue;
        }
        const int from = deed.console.value_or(0);
        for (int i = from; i < (deed.console ? from + 1 : count); ++i) {
            const auto copy = copies.try_emplace(i, *consoles[static_cast<std::size_t>(i)]).first;
            try {
                change(copy->second, deed, 0);
            } catch (const std::invalid_argument& error) {
                fail(deed.line, std::string(error.what()) + " on console " + std::to_string(i));
            }
        }
    }
}

std::string storyHelp()
{
    return R"(
Stories. A line is TIME CONSOLE CHANGE; a line that begins with # is a remark. TIME is in seconds since the start, or +N
for N seconds after the line above. CONSOLE is a number, from 0 on, or all. The changes, where OBJECT is a name, a
position from 0 on, positions such as 0-11, or all, and quotes hold words together (state="not activated"):
  console      calm | silent | refuses | back | answers=STATUS | logon=STATUS | name=NAME
  system OBJECT     state=STATE led=on|off code=CODE|none name=NAME gone | back
  server OBJECT, partition OBJECT     the same without led
  event NUMBER      open | closed | gone code=CODE text=TEXT callhome=yes|no times=N system=NAME severity=N approval=TEXT
                    ago=SECONDS, how long before the line's time it was first reported
  feed TYPE         missing [status=STATUS] | back
  certificate       renewed | expired | misnamed | swaps, between the session check and the logon of every attempt, |
                    swaps once, of the next attempt | steady
  fault NAME[:WHAT] on | off
)";
}

} // namespace lodestar::simulator
