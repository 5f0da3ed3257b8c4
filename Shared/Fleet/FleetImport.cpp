// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Controllers/REST/RESTSupport.h"
#include "Fleet/FleetSheet.h"
#include "Fleet/InventoryFetch.h"
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Fleet/TimeLeft.h"
#include "Inventory/ConsoleInformation.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/UserDefaults.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace lodestar
{
namespace
{

using State = FleetImport::State;

/// So many that consoles which stall hold up few others, and so few that Stop finds most of a large sheet not asked.
constexpr std::size_t mostAtOnce = 1'000;

bool isTried(State state)
{
    return state != State::Waiting && state != State::Verifying && state != State::Gathering;
}

State stateAfter(const Error& error)
{
    switch (reasonOf(error)) {
    case ReadingReason::WrongCredentials:
        return State::Refused;
    case ReadingReason::TimedOut:
    case ReadingReason::ConnectionRefused:
    case ReadingReason::ConnectionLost:
        return State::NoAnswer;
    case ReadingReason::NameNotFound:
        return State::NoSuchAddress;
    default:
        return State::Failed;
    }
}

void fill(Corvel& corvel, const SheetRow& row, const std::string& password)
{
    corvel.setName(row.name);
    corvel.setAddress(row.address);
    corvel.setUsername(row.user);
    corvel.setPassword(password);
    corvel.setDemo(false);
}

/// A record to try a console with. It counts as deleted, and whatever meets a deleted record leaves no trace of it: its
/// session key does not reach the defaults, nor its reading the readings, and no save stores it.
CorvelRef recordToTry(const SheetRow& row, const std::string& password)
{
    CorvelRef corvel = insertNewCorvel();
    StoreStack::shared().managedObjectContext().deleteObject(corvel);
    fill(*corvel, row, password);
    // A key that was left over would be taken for a proof of the password.
    if (storedSessionKey(*corvel)) {
        forgetSessionKeyOfUnregistered(*corvel);
    }
    return corvel;
}

CorvelRef insertTried(const SheetRow& row, const Corvel& tried)
{
    CorvelRef corvel = insertNewCorvel();
    fill(*corvel, row, tried.password().value_or(""));
    corvel->setVersion(ConsoleInformation::of(feedOfType(tried, ObjectType::ManagementConsole)).version());
    corvel->setRestData(tried.restData());
    corvel->numMSErrors = tried.numMSErrors.load();
    corvel->numMSLEDs = tried.numMSLEDs.load();
    corvel->isOnline = true;
    corvel->completedFetch = true;
    return corvel;
}

} // namespace

struct FleetImport::Trying : public std::enable_shared_from_this<Trying> {
    std::vector<Row> rows;
    std::vector<std::shared_ptr<InventoryFetch>> fetches; ///< one a row: under way or verified, else null
    std::map<std::string, std::string> passwords;         ///< by user
    std::chrono::seconds feedTimeout{};
    std::function<void()> changed;
    std::size_t next = 0; ///< the first row that was not looked at for starting
    std::size_t underWay = 0;
    std::size_t tried = 0;
    std::size_t triedBefore = 0; ///< when the present trying began
    std::size_t verified = 0;
    bool isRunning = false;
    unsigned turn = 0; ///< tells what was stopped from what runs
    TimeLeft timeLeft;

    void begin(std::function<void()> tell)
    {
        changed = std::move(tell);
        isRunning = true;
        next = 0;
        triedBefore = tried;
        timeLeft = TimeLeft();
        goOn();
    }

    void stop()
    {
        ++turn;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (const auto fetch = std::exchange(fetches[i], nullptr)) {
                fetch->stop();
            }
            rows[i] = {.sheet = std::move(rows[i].sheet)};
        }
        changed = nullptr;
        underWay = tried = triedBefore = verified = 0;
        isRunning = false;
    }

    void goOn()
    {
        for (; underWay < mostAtOnce && next < rows.size(); ++next) {
            if (rows[next].state == State::Waiting) {
                start(next);
            }
        }
        isRunning = underWay > 0;
        // The function may release the import.
        if (const auto tell = changed) {
            tell();
        }
    }

    void start(std::size_t index)
    {
        Row& row = rows[index];
        row.state = State::Verifying;
        ++underWay;
        const auto fetch = std::make_shared<InventoryFetch>(recordToTry(row.sheet, passwords[row.sheet.user]));
        fetches[index] = fetch;
        const auto ended = [self = shared_from_this(), index, now = turn](const auto&) {
            if (self->turn == now) {
                self->didEnd(index);
            }
        };
        fetch
            ->start(
                Urgency::Fleet,
                [self = shared_from_this(), index, now = turn] {
                    MainQueue::shared().async([self, index, now] {
                        if (self->turn == now) {
                            self->didLogOn(index);
                        }
                    });
                },
                feedTimeout)
            .thenOnMain(ended, ended);
    }

    void didLogOn(std::size_t index)
    {
        if (rows[index].state == State::Verifying) {
            rows[index].state = State::Gathering;
            goOn();
        }
    }

    void didEnd(std::size_t index)
    {
        Row& row = rows[index];
        const Reading& reading = fetches[index]->reading();
        --underWay;
        ++tried;
        // A console that accepts any password without giving a key has proved nothing.
        if (reading.outcome == Reading::Outcome::Offline || !fetches[index]->sessionKey()) {
            row.error = reading.error.value_or(missingKeyError());
            row.state = stateAfter(*row.error);
            fetches[index] = nullptr;
        } else {
            const auto console = feedOfType(*fetches[index]->corvel(), ObjectType::ManagementConsole);
            row.version = console.isNA() ? std::string() : ConsoleInformation::of(console).version();
            row.missingFeeds = reading.missingFeeds().size();
            row.state = State::Verified;
            ++verified;
        }
        goOn();
    }
};

FleetImport::FleetImport(const FleetSheet& sheet, const std::map<std::string, std::string>& passwords,
                         std::chrono::seconds feedTimeout)
    : m_trying(std::make_shared<Trying>())
{
    for (const SheetRow& row : sheet.rows) {
        if (row.kind == SheetRowKind::New) {
            m_trying->rows.push_back({.sheet = row});
        }
    }
    m_trying->fetches.resize(m_trying->rows.size());
    m_trying->passwords = passwords;
    m_trying->feedTimeout = feedTimeout;
}

FleetImport::~FleetImport()
{
    m_trying->stop();
}

const std::vector<FleetImport::Row>& FleetImport::rows() const
{
    return m_trying->rows;
}

std::size_t FleetImport::tried() const
{
    return m_trying->tried;
}

std::size_t FleetImport::verified() const
{
    return m_trying->verified;
}

bool FleetImport::isRunning() const
{
    return m_trying->isRunning;
}

std::optional<std::chrono::seconds> FleetImport::timeLeft() const
{
    const std::size_t before = m_trying->triedBefore;
    return m_trying->timeLeft.look(m_trying->tried - before, m_trying->rows.size() - before, TimeLeft::Clock::now());
}

void FleetImport::verify(std::function<void()> changed)
{
    m_trying->stop();
    m_trying->begin(std::move(changed));
}

void FleetImport::verifyAgain(const std::map<std::string, std::string>& passwords, std::function<void()> changed)
{
    Trying& trying = *m_trying;
    for (const auto& [user, password] : passwords) {
        trying.passwords.insert_or_assign(user, password);
    }
    for (Row& row : trying.rows) {
        if (isTried(row.state) && row.state != State::Verified) {
            row = {.sheet = std::move(row.sheet)};
            --trying.tried;
        }
    }
    trying.begin(std::move(changed));
}

void FleetImport::stop()
{
    m_trying->stop();
}

Result<void> FleetImport::add()
{
    const std::vector<std::string> taken = registeredAddresses();
    const std::unordered_set<std::string_view> registered(taken.begin(), taken.end());
    std::vector<std::pair<CorvelRef, std::shared_ptr<InventoryFetch>>> added;
    for (std::size_t i = 0; i < rows().size(); ++i) {
        const Row& row = rows()[i];
        if (row.state == State::Verified && !registered.contains(row.sheet.address)) {
            const auto& fetch = m_trying->fetches[i];
            added.emplace_back(insertTried(row.sheet, *fetch->corvel()), fetch);
        }
    }
    ObjectContext& context = StoreStack::shared().managedObjectContext();
    if (const Result<void> saved = context.save(); !saved) {
        // From the last, which is found fastest.
        for (auto each = added.rbegin(); each != added.rend(); ++each) {
            context.deleteObject(each->first);
        }
        return saved.error();
    }
    std::vector<CorvelRef> list = RESTHandler::sharedInstance().corvelList();
    for (const auto& [corvel, fetch] : added) {
        list.push_back(corvel);
        // All begin before one ends: the readings tidy up whenever none is under way.
        Readings::shared().begin(corvel);
        if (fetch->sessionKey()) {
            UserDefaults::standard().setString(*fetch->sessionKey(), fetch->address());
        }
    }
    RESTHandler::sharedInstance().setCorvelList(std::move(list));
    for (const auto& [corvel, fetch] : added) {
        fetch->publishAs(corvel);
        fetch->addToHistoryAs(corvel);
    }
    NotificationCenter::defaultCenter().postNotification("CorvelsDidChange");
    return {};
}

Table FleetImport::notVerified() const
{
    Table table{fleetSheetOf({}).titles, {}};
    for (const Row& row : rows()) {
        if (row.state != State::Verified) {
            table.rows.push_back({row.sheet.name, row.sheet.address, row.sheet.user});
        }
    }
    return table;
}

} // namespace lodestar
