// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/EventOrderViewController.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double sheetHeight = 306; // With its bar of 44 the sheet has 350.

constexpr std::array<EventOrder, 4> allOrders{EventOrder::AsSent, EventOrder::NewestFirst, EventOrder::ByStatus,
                                              EventOrder::ByReferenceCode};

} // namespace

EventOrderViewController::EventOrderViewController(std::shared_ptr<EventChoosing> events) : m_events(std::move(events))
{
    setTitle(tr("Order"));
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Views/EventOrderScene.qml")));
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

void EventOrderViewController::reset()
{
    m_events->setChoice(wholeList);
    Q_EMIT choiceChanged();
}

void EventOrderViewController::done()
{
    m_events->endChoosing();
}

} // namespace lodestar
