// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Control.h"

#include <charconv>
#include <functional>
#include <map>
#include <stdexcept>

namespace lodestar::simulator
{

namespace
{

using Words = std::vector<std::string>;
/// Returns the lines of its answer, each with its line end.
using Command = std::function<std::string(Simulator&, const Words&)>;

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
    return "statistics " + std::to_string(of.connections) + " " + std::to_string(of.handshakes) + " " +
           std::to_string(of.requests) + "\n";
}

std::string summary(Simulator& simulator, const Words& words)
{
    const InventorySummary of = simulator.summary(numberAt(words, 1));
    std::string line = "summary";
    for (const int count :
         {of.systems, of.systemErrors, of.attentionLEDs, of.partitions, of.vios, of.events, of.groups}) {
        line.append(1, ' ').append(std::to_string(count));
    }
    return line + "\n";
}

const std::map<std::string, Command, std::less<>>& commands()
{
    static const std::map<std::string, Command, std::less<>> table = {
        {"fault",
         [](Simulator& simulator, const Words& words) {
             simulator.setFault(Fault::parse(words.at(1)));
             return std::string();
         }},
        {"clear",
         [](Simulator& simulator, const Words& words) {
             if (words.size() > 1) {
                 simulator.clearFault(Fault::parse(words[1]));
             } else {
                 simulator.clearFaults();
             }
             return std::string();
         }},
        {"latency",
         [](Simulator& simulator, const Words& words) {
             simulator.setLatency(numberAt(words, 1));
             return std::string();
         }},
        {"round-trip",
         [](Simulator& simulator, const Words& words) {
             simulator.setRoundTrip(numberAt(words, 1));
             return std::string();
         }},
        {"feed",
         [](Simulator& simulator, const Words& words) {
             simulator.setFeed(numberAt(words, 1), words.at(2),
                               words.size() > 3 ? std::optional(decodeWord(words[3])) : std::nullopt);
             return std::string();
         }},
        {"stop",
         [](Simulator& simulator, const Words& words) {
             simulator.stopConsole(numberAt(words, 1));
             return std::string();
         }},
        {"start",
         [](Simulator& simulator, const Words& words) {
             simulator.startConsole(numberAt(words, 1));
             return std::string();
         }},
        {"clear-requests",
         [](Simulator& simulator, const Words& /*words*/) {
             simulator.clearRequests();
             return std::string();
         }},
        {"certificate",
         [](Simulator& simulator, const Words& words) {
             return "certificate " + simulator.certificateFingerprint(numberAt(words, 1)) + "\n";
         }},
        {"reports", reports},
        {"requests", allRequests},
        {"statistics", statistics},
        {"summary", summary},
    };
    return table;
}

} // namespace

std::string Control::greeting() const
{
    const std::string user = encodeWord(m_simulator.settings().user);
    const std::string password = encodeWord(m_simulator.settings().password);
    std::string lines;
    for (int i = 0; i < m_simulator.consoleCount(); ++i) {
        lines.append("console ").append(std::to_string(i)).append(1, ' ').append(m_simulator.address(i));
        lines.append(1, ' ').append(user).append(1, ' ').append(password).append(1, '\n');
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
    const auto command = commands().find(words[0]);
    if (command == commands().end()) {
        throw std::invalid_argument("unknown command " + words[0]);
    }
    return command->second(m_simulator, words);
}

} // namespace lodestar::simulator
