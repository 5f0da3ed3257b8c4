// SPDX-License-Identifier: Apache-2.0
#include "Views/Connection/ConnectionViewController.h"

#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Fleet/Watch.h"
#include "Kit/Core/Clipboard.h"
#include "Views/Common/AgeClock.h"
#include "Views/Common/FeedName.h"
#include "Views/Common/ScreenLog.h"

#include <utility>

namespace lodestar
{
namespace
{

constexpr ScreenLog screenLog("Shared/Views/Connection/ConnectionViewController");

} // namespace

void ConnectionViewController::viewDidLoad()
{
    screenLog.write(__LINE__, "viewDidLoad", "ConnectionViewController instantiation");
    m_header.setCustomNavigationBar();
    m_header.setHeaderTitle(tr("Connection"), corvel() ? rowText(corvel()->name().value_or("")) : QString());
    setTitle(tr("Connection"));
    setBackTitle(QStringLiteral(""));
    show();
}

void ConnectionViewController::viewDidAppear()
{
    m_watch.begin([this] { show(); });
}

void ConnectionViewController::viewDidDisappear()
{
    m_watch.end();
}

void ConnectionViewController::show()
{
    const bool registered = corvel() && isRegistered(corvel());
    if (registered || (corvel() && !m_reading)) {
        m_reading = Readings::shared().of(*corvel());
    }
    if (!m_reading) {
        return;
    }
    const bool updating = registered && m_reading->isUpdating;
    const bool refreshable = registered && !updating;
    const bool wasUpdating = std::exchange(m_updating, updating);
    const bool wasRefreshable = std::exchange(m_refreshable, refreshable);
    if (wasUpdating != updating || wasRefreshable != refreshable) {
        Q_EMIT refreshChanged();
    }
    ConnectionContent sections = connectionContent(*m_reading, AgeClock::now());
    if (std::exchange(m_sections, std::move(sections)) != m_sections) {
        Q_EMIT sectionsChanged();
    }
}

void ConnectionViewController::refresh()
{
    if (m_refreshable) {
        // The console list shows the record, too.
        const auto ended = [corvel = corvel()](const auto&) {
            Watch::shared().didRefreshByHand(*corvel);
            NotificationCenter::defaultCenter().postNotification("CorvelDidRefresh");
        };
        refreshCorvel(corvel()).thenOnMain(ended, ended);
    }
}

void ConnectionViewController::copyAll()
{
    Clipboard::copy(m_header.titleLabel()->text() + QLatin1Char('\n') + m_header.subtitleLabel()->text() +
                        QLatin1Char('\n') + connectionText(m_sections),
                    tr("%Ln rows", nullptr, rowCount(m_sections)));
}

} // namespace lodestar
