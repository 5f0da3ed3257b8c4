// SPDX-License-Identifier: Apache-2.0
#include "Tools/Screenshots/NightFleet.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Attention.h"
#include "Fleet/History.h"
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Fleet/Watch.h"
#include "Simulator/FeedWriter.h"
#include "Simulator/Story.h"
#include "Tools/Screenshots/NightReading.h"

#include <array>
#include <deque>

namespace lodestar::scenes
{
namespace
{

using namespace std::chrono_literals;
using std::chrono::day;
using std::chrono::February;
using std::chrono::March;
using std::chrono::sys_days;
using std::chrono::year;

constexpr WallTime at(std::chrono::month month, unsigned dayOfMonth, std::chrono::minutes time)
{
    return sys_days(year(2026) / month / day(dayOfMonth)) + time;
}

constexpr WallTime firstReading = at(February, 10, 8h);

/// A second of the story and what the clocks say then. The consoles are read at each.
struct Moment {
    int second;
    WallTime time;
};
constexpr auto moments = std::to_array<Moment>({{0, at(March, 8, 9h)},
                                                {10, at(March, 9, 8h + 12min)},
                                                {29, at(March, 11, 21h + 25min)},
                                                {30, at(March, 11, 21h + 40min)},
                                                {59, at(March, 12, 2h + 43min)},
                                                {60, at(March, 12, 2h + 58min)},
                                                {90, at(March, 12, 3h + 12min)},
                                                {120, at(March, 12, 7h + 46min)},
                                                {150, at(March, 12, 7h + 52min)},
                                                {180, at(March, 12, 8h + 11min)},
                                                {195, at(March, 12, 8h + 26min)},
                                                {239, at(March, 12, 9h + 26min)},
                                                {240, at(March, 12, 9h + 41min)}});

constexpr int consoles = 6;
/// Where weeks of small changes happen that only the bars show.
constexpr std::size_t restless = 4;

constexpr auto names = std::to_array<const char*>(
    {"Harbour A", "Harbour B", "Ridgeway Laboratory", "Northfield Recovery Site", "Uplands Colocation", "Quayside 12"});
constexpr auto addresses = std::to_array<const char*>({"corvel-a.harbour.example", "corvel-b.harbour.example",
                                                       "192.0.2.11", "corvel-1.northfield.example",
                                                       "corvel-2.uplands.example", "corvel-12.quayside.example"});

/// The fleet as it was made last. Records, readings and history of one fleet serve all its pictures.
class NightFleet
{
public:
    NightFleet()
    {
        for (int i = 0; i < consoles; ++i) {
            const auto number = static_cast<std::size_t>(i);
            const CorvelRef corvel = insertNewCorvel();
            corvel->setName(names.at(number));
            corvel->setAddress(addresses.at(number));
            corvel->setUsername("oversight");
            corvel->setPassword("twelve-chars");
            m_consoles.push_back({corvel, simulator::makeInventory({}, static_cast<std::uint64_t>(i)), {}, {}, {}, {}});
        }
    }

    void liveThrough(Night night)
    {
        advance(0);
        readAll(firstReading);
        liveThroughWeeks();
        if (night == Night::Clear || night == Night::Unknown) {
            forgetEvents();
            readAll(moments.back().time - 15min);
            if (night == Night::Unknown) {
                m_consoles[2].condition.offline = Condition::Offline::Silent;
                m_consoles[3].condition.offline = Condition::Offline::Silent;
            }
            readAll(moments.back().time);
            return;
        }
        for (const Moment& moment : moments) {
            if (night != Night::Old || moment.second <= 90) {
                advance(moment.second);
                readAll(moment.time);
            }
        }
        if (night == Night::Old) {
            readAll(at(March, 12, 7h + 12min));
        }
    }

    /// Begins to read all consoles once more, and ends with the first three.
    void readHalf()
    {
        for (const Console& console : m_consoles) {
            Readings::shared().begin(console.corvel);
        }
        for (std::size_t i = 0; i < 3; ++i) {
            read(m_consoles[i], moments.back().time + 1min);
        }
    }

    std::vector<CorvelRef> records() const
    {
        std::vector<CorvelRef> records;
        for (const Console& console : m_consoles) {
            records.push_back(console.corvel);
        }
        return records;
    }

private:
    struct Console {
        CorvelRef corvel;
        simulator::Inventory inventory;
        Condition condition;
        /// The feeds' texts and what was parsed of them.
        std::map<std::string, std::string, std::less<>> texts;
        std::shared_ptr<const FeedDictionary> feeds;
        WallTime lastEnded;
    };

    /// The moment of a deed. Events that were there from the start were reported in the days before the night.
    static WallTime timeOf(const simulator::Deed& deed)
    {
        WallTime time = at(March, 11, 19h + 41min);
        for (const Moment& moment : moments) {
            time = moment.second > 0 && moment.second <= deed.at.count() ? moment.time : time;
        }
        return time;
    }

    void advance(int second)
    {
        for (; m_next < m_story.deeds().size() && m_story.deeds()[m_next].at.count() <= second; ++m_next) {
            const simulator::Deed& deed = m_story.deeds()[m_next];
            for (int i = deed.console.value_or(0); i < (deed.console ? *deed.console + 1 : consoles); ++i) {
                perform(m_consoles[static_cast<std::size_t>(i)], deed);
            }
        }
    }

    static void perform(Console& console, const simulator::Deed& deed)
    {
        if (deed.changesInventory()) {
            change(console.inventory, deed, std::chrono::system_clock::to_time_t(timeOf(deed)));
        } else {
            console.condition.change(deed);
        }
    }

    void forgetEvents()
    {
        for (Console& console : m_consoles) {
            console.inventory.events.clear();
        }
    }

    /// Partitions stop and run again on 28 days; each number is how many did.
    void liveThroughWeeks()
    {
        constexpr std::array<int, 28> worse = {0, 1, 0, 0, 3, 1, 0, 0, 0, 2, 0, 1, 0, 0,
                                               0, 5, 2, 0, 0, 1, 0, 0, 0, 1, 0, 2, 0, 1};
        constexpr std::array<int, 28> better = {0, 0, 1, 0, 1, 3, 0, 0, 0, 1, 1, 0, 1, 0,
                                                0, 2, 4, 1, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1};
        // Each in a state of its own, so that they do not fold into one row.
        constexpr auto states =
            std::to_array<const char*>({"not activated", "error", "alert", "not available", "shutting down"});
        Console& console = m_consoles[restless];
        std::deque<std::size_t> down;
        std::size_t next = 0;
        for (std::size_t i = 0; i < worse.size(); ++i) {
            for (int k = 0; k < worse[i]; ++k) {
                console.inventory.partitions[next].state = states[next % states.size()];
                down.push_back(next);
                next = (next + 1) % console.inventory.partitions.size();
            }
            for (int k = 0; k < better[i]; ++k) {
                console.inventory.partitions[down.front()].state = "running";
                down.pop_front();
            }
            if (worse[i] + better[i] > 0) {
                read(console, at(February, 11, 10h) + std::chrono::days(i));
            }
        }
    }

    void readAll(WallTime time)
    {
        for (Console& console : m_consoles) {
            // The restless console was read last.
            read(console, &console == &m_consoles[restless] && time == moments.back().time ? time + 90s : time);
        }
    }

    /// The restless console was read on days on which the others were not.
    void read(Console& console, WallTime ended)
    {
        if (ended <= console.lastEnded) {
            return;
        }
        console.lastEnded = ended;
        fetch(console);
        endReading(console.corvel, readingOf(console.condition, *console.corvel, *console.feeds, ended), console.feeds);
    }

    static void fetch(Console& console)
    {
        const std::string address = console.corvel->address().value();
        const simulator::BlankValues blanks = {address, address.substr(0, address.find('.')), "0C5E11A",
                                               console.inventory.console.id};
        auto feeds = std::make_shared<FeedDictionary>();
        for (auto& [type, feed] : simulator::writeFeeds(console.inventory, 0)) {
            std::string text = simulator::filled(feed, blanks);
            if (console.condition.missing.contains(type)) {
                feeds->setFeed(type, Feed::notAvailable());
                console.texts.erase(type);
                continue;
            }
            const bool isOld = console.feeds && console.texts[type] == text;
            feeds->setFeed(type, isOld ? console.feeds->feed(type) : Feed(XMLElement::parse(text).value()));
            console.texts[type] = std::move(text);
        }
        console.feeds = std::move(feeds);
    }

    const simulator::Story m_story = simulator::Story::read(LODESTAR_STORIES "/night.story");
    std::vector<Console> m_consoles;
    std::size_t m_next = 0;
};

} // namespace

void showFleet(SceneStage& stage, int fleet, const std::function<std::vector<CorvelRef>()>& make)
{
    static std::optional<int> shown;
    static std::vector<CorvelRef> records;
    setMorningClock(true);
    Watch::shared().setSettings({});
    if (shown != fleet) {
        History::shared().forgetAll();
        Readings::shared().forgetAll();
        records = make();
        shown = fleet;
    }
    RESTHandler::sharedInstance().setCorvelList(records);
    stage.list().tableView()->setHidden(records.empty());
    stage.list().tableView()->reloadData();
    bool written = false;
    History::shared().whenWritten([&written] { written = true; });
    stage.waitFor([&written] { return written; });
    const auto before = Attention::shared().picture();
    Attention::shared().update();
    stage.waitFor([&before] { return Attention::shared().picture() != before; });
}

void showNoConsoles(SceneStage& stage)
{
    showFleet(stage, 0, [] { return std::vector<CorvelRef>(); });
}

void endReading(const CorvelRef& corvel, const Reading& reading, const std::shared_ptr<const FeedDictionary>& feeds)
{
    Readings::shared().end(corvel, reading);
    if (reading.outcome == Reading::Outcome::Offline) {
        failRefresh(*corvel);
    } else {
        corvel->isOnline = true;
        corvel->setRestData(feeds);
        std::ignore = RESTHandler::sharedInstance().processInformationForCorvel(corvel);
        finishRefresh(*corvel);
    }
    History::shared().add(corvel, Readings::shared().of(*corvel), feeds);
}

void showNight(SceneStage& stage, Night night)
{
    static int fleets = 1000;
    std::optional<NightFleet> fleet;
    // A fleet that is being read serves one picture.
    showFleet(stage, night == Night::Updating ? ++fleets : 1 + static_cast<int>(night), [&fleet, night] {
        fleet.emplace().liveThrough(night);
        return fleet->records();
    });
    if (night == Night::Updating) {
        fleet->readHalf();
        stage.settle();
    }
}

} // namespace lodestar::scenes
