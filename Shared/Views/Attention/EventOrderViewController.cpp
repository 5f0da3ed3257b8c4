// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/EventOrderViewController.h"

#include "Fleet/Attention.h"
#include "Views/Common/CellText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double sheetHeight = 476;    // With its bar of 44 the sheet has 520.
constexpr std::size_t namesAtHand = 8; // More consoles are searched.

constexpr std::array<EventOrder, 4> allOrders{EventOrder::AsSent, EventOrder::NewestFirst, EventOrder::ByStatus,
                                              EventOrder::ByReferenceCode};

} // namespace

EventOrderViewController::EventOrderViewController(std::shared_ptr<EventChoosing> events) : m_events(std::move(events))
{
    setTitle(tr("Order"));
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Views/EventOrderScene.qml")));
    for (const ConsoleSnapshot& console : Attention::shared().picture()->consoles) {
        m_all.push_back(console.corvel);
    }
    searchConsoles(QString());
}

QString EventOrderViewController::nameOf(EventOrder order)
{
    switch (order) {
    case EventOrder::AsSent:
        return tr("As the console sends them");
    case EventOrder::NewestFirst:
        return tr("Newest first");
    case EventOrder::ByStatus:
        return tr("By status");
    case EventOrder::ByReferenceCode:
        return tr("By reference code");
    }
    return {};
}

double EventOrderViewController::height() const
{
    return sheetHeight;
}

QStringList EventOrderViewController::orders() const
{
    QStringList names;
    for (const EventOrder each : allOrders) {
        names << nameOf(each);
    }
    return names;
}

template <typename Change>
void EventOrderViewController::change(Change how)
{
    EventChoice choice = m_events->choice();
    how(choice);
    m_events->setChoice(std::move(choice));
    Q_EMIT choiceChanged();
}

int EventOrderViewController::order() const
{
    return static_cast<int>(std::ranges::find(allOrders, m_events->choice().order) - allOrders.begin());
}

void EventOrderViewController::setOrder(int order)
{
    change([order](EventChoice& choice) { choice.order = allOrders.at(static_cast<std::size_t>(order)); });
}

bool EventOrderViewController::openOnly() const
{
    return m_events->choice().openOnly;
}

void EventOrderViewController::setOpenOnly(bool on)
{
    change([on](EventChoice& choice) { choice.openOnly = on; });
}

bool EventOrderViewController::callHomeOnly() const
{
    return m_events->choice().callHomeOnly;
}

void EventOrderViewController::setCallHomeOnly(bool on)
{
    change([on](EventChoice& choice) { choice.callHomeOnly = on; });
}

int EventOrderViewController::openCount() const
{
    return static_cast<int>(m_events->list().open);
}

int EventOrderViewController::callHomeCount() const
{
    return static_cast<int>(m_events->list().callHome);
}

QString EventOrderViewController::allConsoles() const
{
    return m_all.size() == 1 ? textOf(m_all.front()->name())
                             : tr("All %n consoles", nullptr, static_cast<int>(m_all.size()));
}

bool EventOrderViewController::isSearchable() const
{
    return m_all.size() > namesAtHand;
}

void EventOrderViewController::searchConsoles(const QString& text)
{
    m_shown.clear();
    m_names.clear();
    for (const CorvelRef& corvel : m_all) {
        const QString name = textOf(corvel->name());
        if (name.contains(text, Qt::CaseInsensitive)) {
            m_shown.push_back(corvel);
            m_names << name;
        }
    }
    Q_EMIT consolesChanged();
    Q_EMIT choiceChanged();
}

bool EventOrderViewController::areAllChosen() const
{
    return m_events->choice().consoles.empty();
}

int EventOrderViewController::console() const
{
    const auto& chosen = m_events->choice().consoles;
    const auto found =
        std::ranges::find_if(m_shown, [&](const CorvelRef& corvel) { return chosen.contains(corvel.get()); });
    return found != m_shown.end() ? static_cast<int>(found - m_shown.begin()) : -1;
}

void EventOrderViewController::chooseConsole(int index)
{
    change([&](EventChoice& choice) {
        choice.consoles.clear();
        if (index >= 0) {
            choice.consoles.insert(m_shown.at(static_cast<std::size_t>(index)).get());
        }
    });
}

void EventOrderViewController::reset()
{
    m_events->setChoice({});
    Q_EMIT choiceChanged();
}

void EventOrderViewController::done()
{
    m_events->endChoosing();
}

} // namespace lodestar
