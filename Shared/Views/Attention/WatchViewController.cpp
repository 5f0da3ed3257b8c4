// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/WatchViewController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Views/Attention/WatchText.h"
#include "Views/Common/Scenes.h"

#include <cstddef>
#include <iterator>

namespace lodestar
{
namespace
{

using NewEvents = WatchSettings::NewEvents;

constexpr NewEvents eventChoices[] = {NewEvents::None, NewEvents::Open, NewEvents::OpenCallHome};

std::chrono::minutes moved(std::chrono::minutes time, int quarters)
{
    constexpr std::chrono::minutes day{24 * 60};
    constexpr std::chrono::minutes quarter{15};
    return ((time + quarters * quarter) % day + day) % day;
}

/// The choice that holds is ticked.
MenuChoice choice(const QString& title, bool holds)
{
    return {title, false, holds ? QStringLiteral("check") : QString()};
}

} // namespace

void WatchViewController::viewDidLoad()
{
    setTitle(tr("Watch"));
    setBackTitle(QStringLiteral(""));
    m_serviceNote.setText(tr("This system shows no messages. Attention still counts."));
    m_observation = NotificationCenter::defaultCenter().addObserver("WatchDidChange", [this] { show(); });
    show();
}

void WatchViewController::viewDidAppear()
{
    show(); // consoles may have come or gone
}

void WatchViewController::show()
{
    const Watch& watch = Watch::shared();
    const WatchSettings& settings = watch.settings();
    m_watchSwitch.setOn(settings.on);
    m_worseSwitch.setOn(settings.worse);
    m_betterSwitch.setOn(settings.better);
    m_quietSwitch.setOn(settings.quiet);
    m_everyLabel.setText(WatchText::interval(settings.every));
    m_newEventsLabel.setText(WatchText::newEvents(settings.newEvents));
    m_consolesLabel.setText(WatchText::consoles(RESTHandler::sharedInstance().corvelList(), settings));
    m_fromLabel.setText(WatchText::timeOfDay(settings.quietFrom));
    m_untilLabel.setText(WatchText::timeOfDay(settings.quietUntil));
    //: %1 a time of day
    m_quietNote.setText(
        tr("Reading goes on. At %1 one message sums up the night, if anything got worse.").arg(m_untilLabel.text()));
    m_leftOutNote.setText(WatchText::leftOut(watch.leftOut()));
    m_leftOutNote.setHidden(m_leftOutNote.text().isEmpty());
    m_serviceNote.setHidden(watch.showsMessages());
    m_testRow.setEnabled(watch.showsMessages());
}

void WatchViewController::change(const std::function<void(WatchSettings&)>& edit)
{
    WatchSettings settings = Watch::shared().settings();
    edit(settings);
    Watch::shared().setSettings(std::move(settings));
}

void WatchViewController::takeSwitches()
{
    change([this](WatchSettings& settings) {
        settings.on = m_watchSwitch.isOn();
        settings.worse = m_worseSwitch.isOn();
        settings.better = m_betterSwitch.isOn();
        settings.quiet = m_quietSwitch.isOn();
    });
}

void WatchViewController::chooseInterval()
{
    std::vector<MenuChoice> choices;
    for (const int minutes : WatchSettings::intervals) {
        const std::chrono::minutes interval(minutes);
        choices.push_back(choice(WatchText::interval(interval), interval == Watch::shared().settings().every));
    }
    choices.push_back({tr("Cancel")});
    const int cancel = static_cast<int>(choices.size()) - 1;
    m_menu.present(tr("Every"), {}, choices, cancel, [cancel](int index) {
        if (index != cancel) {
            change([index](WatchSettings& settings) {
                settings.every = std::chrono::minutes(WatchSettings::intervals[static_cast<std::size_t>(index)]);
            });
        }
    });
}

void WatchViewController::chooseNewEvents()
{
    std::vector<MenuChoice> choices;
    for (const NewEvents each : eventChoices) {
        choices.push_back(choice(WatchText::newEvents(each), each == Watch::shared().settings().newEvents));
    }
    choices.push_back({tr("Cancel")});
    const int cancel = static_cast<int>(choices.size()) - 1;
    m_menu.present(tr("New Events"), {}, choices, cancel, [cancel](int index) {
        if (index != cancel) {
            change([index](WatchSettings& settings) {
                settings.newEvents = eventChoices[static_cast<std::size_t>(index)];
            });
        }
    });
}

void WatchViewController::openConsoles()
{
    openScene(*this, Scenes::watchConsolesView);
}

void WatchViewController::moveFrom(int quarters)
{
    change([quarters](WatchSettings& settings) { settings.quietFrom = moved(settings.quietFrom, quarters); });
}

void WatchViewController::moveUntil(int quarters)
{
    change([quarters](WatchSettings& settings) { settings.quietUntil = moved(settings.quietUntil, quarters); });
}

void WatchViewController::sendTestMessage()
{
    Watch::shared().sendTestMessage();
}

} // namespace lodestar
