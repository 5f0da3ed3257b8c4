// SPDX-License-Identifier: Apache-2.0
#include "Tests/Faults/Drive.h"

#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Fleet/Registry.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/UserDefaults.h"

#include <algorithm>

namespace lodestar::faults
{
namespace
{

using Clock = std::chrono::steady_clock;

double since(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// What a record is, for comparing with what the store gives back.
std::string identityOf(const Corvel& corvel)
{
    return corvel.name().value_or("") + "|" + corvel.address().value_or("") + "|" + corvel.username().value_or("") +
           "|" + corvel.password().value_or("");
}

} // namespace

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values.empty() ? 0 : values[values.size() / 2];
}

simulator::Settings settingsFor(int consoles)
{
    simulator::Settings settings;
    settings.consoles = consoles;
    settings.feedBytes = 20'000;
    return settings;
}

Drive::Drive(Outcome& outcome, const simulator::Settings& settings, const std::vector<std::string>& addresses)
    : m_outcome(outcome), m_simulator(settings)
{
    MainQueue::shared().adoptCurrentThread();
    StoreStack::shared().setApplicationDocumentsDirectory(m_folder.file("Documents"));
    VireoLogger::openLogFolder(m_folder.file("Logs"));
    m_listener = VireoLogger::addListener([this](const VireoLogger::Entry& entry) {
        const std::lock_guard lock(m_mutex);
        m_lines.emplace_back(entry.message);
    });
    for (int i = 0; i < m_simulator.consoleCount(); ++i) {
        add(m_simulator.address(i));
    }
    std::ranges::for_each(addresses, [this](const std::string& address) { add(address); });
    saveIgnoringErrors();
}

Drive::~Drive()
{
    RESTHandler::sharedInstance().queue().waitUntilAllOperationsAreFinished();
    MainQueue::shared().drain();
    noteSecrets();
    saveIgnoringErrors();
    RESTHandler::sharedInstance().setCorvelList({});
    StoreStack::shared().close();
    checkStored();
    checkLog();
    m_listener.reset();
    VireoLogger::openLogFolder("/dev/null/nowhere");
    for (const std::string& key : UserDefaults::standard().allKeys()) {
        UserDefaults::standard().removeObjectForKey(key);
    }
}

void Drive::add(const std::string& address)
{
    const CorvelRef corvel = insertNewCorvel();
    corvel->setName("Console " + std::to_string(m_consoles.size()));
    corvel->setAddress(address);
    corvel->setUsername(m_simulator.user());
    corvel->setPassword(m_simulator.password());
    corvel->setDemo(false);
    RESTHandler::sharedInstance().addCorvel(corvel);
    m_consoles.push_back(corvel);
}

std::vector<double> Drive::refresh(std::chrono::milliseconds limit)
{
    struct Settled {
        std::vector<double> times;
        std::vector<int> counts;
    };
    forgetLines();
    const auto settled = std::make_shared<Settled>();
    settled->times.resize(m_consoles.size());
    settled->counts.resize(m_consoles.size());
    const auto start = Clock::now();
    for (std::size_t i = 0; i < m_consoles.size(); ++i) {
        const CorvelRef& corvel = m_consoles[i];
        corvel->setRestData(nullptr);
        const auto note = [settled, start, i, corvel](bool online) {
            corvel->isOnline = online;
            settled->times[i] = since(start);
            ++settled->counts[i];
        };
        fetchInventory(corvel, Urgency::Fleet)
            .thenOnMain(
                [note, corvel](const std::string&) {
                    finishRefresh(*corvel);
                    note(true);
                },
                [note](const Error&) { note(false); });
    }
    const auto all = [&settled] { return std::ranges::count(settled->counts, 0) == 0; };
    m_outcome.expect(runUntil(all, limit), "a console has not settled");
    MainQueue::shared().drain();
    m_outcome.expect(std::ranges::count(settled->counts, 1) == static_cast<int>(m_consoles.size()),
                     "a console has not settled just once");
    noteSecrets();
    return settled->times;
}

bool Drive::runUntil(const std::function<bool()>& predicate, std::chrono::milliseconds limit)
{
    return MainQueue::shared().runUntil(predicate, limit);
}

std::string Drive::feedText(int console, std::string_view type) const
{
    const Feed feed = feedOfType(*m_consoles.at(static_cast<std::size_t>(console)), type);
    return feed.isNA() ? "NA" : feed.root().text().value_or("");
}

std::map<std::string, std::string> Drive::feedTexts(int console) const
{
    std::map<std::string, std::string> texts;
    for (const std::string_view type : feedTypes) {
        texts.emplace(type, feedText(console, type));
    }
    return texts;
}

int Drive::logged(const std::string& text)
{
    const std::lock_guard lock(m_mutex);
    return static_cast<int>(
        std::ranges::count_if(m_lines, [&](const std::string& line) { return line.find(text) != std::string::npos; }));
}

void Drive::forgetLines()
{
    const std::lock_guard lock(m_mutex);
    m_lines.clear();
}

void Drive::noteSecrets()
{
    m_secrets.push_back(m_simulator.password());
    for (const CorvelRef& corvel : m_consoles) {
        if (const auto key = UserDefaults::standard().stringForKey(corvel->address().value_or(""))) {
            m_secrets.push_back(*key);
        }
    }
    std::ranges::sort(m_secrets);
    m_secrets.erase(std::ranges::unique(m_secrets).begin(), m_secrets.end());
}

void Drive::checkStored()
{
    auto context = ObjectContext::open(m_folder.file("Documents/Lodestar.sqlite"), StoreStack::managedObjectModel());
    if (!context) {
        m_outcome.lost("the store: " + context.error().localizedDescription);
        return;
    }
    std::vector<std::string> kept;
    const auto records = context.value()->fetchAll(Corvel::entityName);
    for (const auto& record : records ? records.value() : std::vector<std::shared_ptr<ManagedObject>>()) {
        kept.push_back(identityOf(dynamic_cast<const Corvel&>(*record)));
    }
    std::vector<std::string> wanted;
    std::ranges::transform(m_consoles, std::back_inserter(wanted),
                           [](const CorvelRef& corvel) { return identityOf(*corvel); });
    if (kept != wanted) {
        m_outcome.lost("records: " + std::to_string(kept.size()) + " of " + std::to_string(wanted.size()));
    }
}

void Drive::checkLog()
{
    VireoLogger::flush();
    for (const auto& file : std::filesystem::directory_iterator(m_folder.path() / "Logs")) {
        const std::string text = m_folder.read("Logs/" + file.path().filename().string());
        if (std::ranges::any_of(m_secrets, [&](const auto& each) { return text.find(each) != std::string::npos; })) {
            m_outcome.lost("a secret, to the log");
        }
    }
}

} // namespace lodestar::faults
