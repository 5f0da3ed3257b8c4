// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Control.h"

#include <charconv>
#include <map>
#include <stdexcept>

namespace lodestar::simulator
{

namespace
{

using Words = std::vector<std::string>;

int numberAt(const Words& words, std::size_t i)
{
    int number = 0;
    const std::string& word = words.at(i);
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) {
        throw std::invalid_argument("not a number: " + word);
    }
    return number;
}

std::string lineOf(std::string_view name, const std::vector<std::uint64_t>& numbers)
{
    std::string line(name);
    for (const std::uint64_t number : numbers) {
        line.append(1, ' ').append(std::to_string(number));
    }
    return line + "\n";
}

void clear(Simulator& simulator, const Words& words)
{
    if (words.size() > 1) {
        simulator.clearFault(Fault::parse(words[1]));
    } else {
        simulator.clearFaults();
    }
}

void setFeed(Simulator& simulator, const Words& words)
{
    simulator.setFeed(numberAt(words, 1), words.at(2),
                      words.size() > 3 ? std::optional(decodeWord(words[3])) : std::nullopt);
}

std::string allRequests(Simulator& simulator, const Words& /*words*/)
{
    std::string lines;
    for (const RecordedRequest& request : simulator.requests()) {
        lines += "request " + encodeRequest(request) + "\n";
    }
    return lines;
}

std::string reports(Simulator& simulator, const Words& /*words*/)
{
    if (simulator.receiver() == nullptr) {
        throw std::invalid_argument("there is no receiver of reports; --receiver makes one");
    }
    return simulator.receiver()->list();
}

std::string statistics(Simulator& simulator, const Words& words)
{
    const Statistics of =
        simulator.statistics(words.size() > 1 ? std::optional<int>(numberAt(words, 1)) : std::nullopt);
    return lineOf("statistics", {of.connections, of.handshakes, of.requests});
}

std::string summary(Simulator& simulator, const Words& words)
{
    std::vector<std::uint64_t> counts;
    const InventorySummary of = simulator.summary(numberAt(words, 1));
    for (const int count :
         {of.systems, of.systemErrors, of.attentionLEDs, of.partitions, of.vios, of.events, of.groups}) {
        counts.push_back(static_cast<std::uint64_t>(count));
    }
    return lineOf("summary", counts);
}

std::string certificate(Simulator& simulator, const Words& words)
{
    return "certificate " + simulator.certificateFingerprint(numberAt(words, 1)) + "\n";
}

/// Commands that change something.
const std::map<std::string_view, void (*)(Simulator&, const Words&)> changes = {
    {"fault", [](Simulator& on, const Words& words) { on.setFault(Fault::parse(words.at(1))); }},
    {"clear", clear},
    {"latency", [](Simulator& on, const Words& words) { on.setLatency(numberAt(words, 1)); }},
    {"round-trip", [](Simulator& on, const Words& words) { on.setRoundTrip(numberAt(words, 1)); }},
    {"feed", setFeed},
    {"stop", [](Simulator& on, const Words& words) { on.stopConsole(numberAt(words, 1)); }},
    {"start", [](Simulator& on, const Words& words) { on.startConsole(numberAt(words, 1)); }},
    {"clear-requests", [](Simulator& on, const Words&) { on.clearRequests(); }},
};
/// Commands that ask something; each returns the lines of its answer with their line ends.
const std::map<std::string_view, std::string (*)(Simulator&, const Words&)> questions = {
    {"certificate", certificate}, {"reports", reports}, {"requests", allRequests},
    {"statistics", statistics},   {"summary", summary},
};

} // namespace

std::string Control::greeting() const
{
    const std::string user = encodeWord(m_simulator.settings().user);
    const std::string password = encodeWord(m_simulator.settings().password);
    std::string lines;
    for (int i = 0; i < m_simulator.consoleCount(); ++i) {
        lines.append("console ").append(std::to_string(i)).append(1, ' ').append(m_simulator.address(i));
        lines.append(1, ' ').append(user).append(1, ' ').append(password);
        const std::string name = m_story != nullptr ? m_story->nameOf(i) : std::string();
        lines.append(name.empty() ? "" : " " + encodeWord(name)).append(1, '\n');
    }
    if (m_simulator.receiver() != nullptr) {
        lines.append("receiver ").append(m_simulator.receiver()->url()).append(1, '\n');
    }
    return lines + "ready\n";
}

std::string Control::feed(std::string_view bytes)
{
    m_input += bytes;
    std::string out;
    std::size_t start = 0;
    for (std::size_t end = 0; (end = m_input.find('\n', start)) != std::string::npos; start = end + 1) {
        out += answer(std::string_view(m_input).substr(start, end - start));
    }
    m_input.erase(0, start);
    return out;
}

std::string Control::answer(std::string_view line)
{
    try {
        return run(splitWords(line)) + "ok\n";
    } catch (const std::out_of_range&) {
        return "error " + encodeWord("no such console, or too few words: " + std::string(line)) + "\n";
    } catch (const std::exception& error) {
        return "error " + encodeWord(error.what()) + "\n";
    }
}

std::string Control::run(const std::vector<std::string>& words)
{
    if (words.empty()) {
        return {};
    }
    if (words[0] == "quit") {
        m_loop.stop();
        return {};
    }
    if (words[0] == "advance") {
        advance(words);
        return {};
    }
    if (const auto change = changes.find(words[0]); change != changes.end()) {
        change->second(m_simulator, words);
        return {};
    }
    const auto question = questions.find(words[0]);
    if (question == questions.end()) {
        throw std::invalid_argument("unknown command " + words[0]);
    }
    return question->second(m_simulator, words);
}

void Control::advance(const std::vector<std::string>& words)
{
    if (m_story == nullptr) {
        throw std::invalid_argument("there is no story; --story names one");
    }
    m_story->advance(std::chrono::seconds(numberAt(words, 1)));
}

} // namespace lodestar::simulator
