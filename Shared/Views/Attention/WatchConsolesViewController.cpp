// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/WatchConsolesViewController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Fleet/Registry.h"
#include "Fleet/Watch.h"
#include "Views/Common/FeedName.h"

#include <utility>

namespace lodestar
{

WatchConsolesViewController::WatchConsolesViewController() : m_tableView(*this, TableKind::Main)
{
    m_tableView.setRowHeight(52);
    m_tableView.setSeparatorInset(10, 15);
}

void WatchConsolesViewController::viewDidLoad()
{
    setTitle(tr("Consoles"));
    for (const char* name : {"WatchDidChange", "CorvelsDidChange"}) {
        m_observations.push_back(
            NotificationCenter::defaultCenter().addObserver(name, [this] { m_tableView.reloadData(); }));
    }
    m_tableView.reloadData();
}

int WatchConsolesViewController::numberOfRowsInSection(TableKind /*tableView*/, int /*section*/) const
{
    return static_cast<int>(RESTHandler::sharedInstance().corvelList().size());
}

QVariant WatchConsolesViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    WatchConsoleCell cell;
    if (const CorvelRef corvel = corvelAtRow(indexPath.row)) {
        cell.name = rowText(corvel->name().value_or(""));
        cell.watched = !Watch::shared().settings().without.contains(corvel->address().value_or(""));
    }
    return QVariant::fromValue(cell);
}

void WatchConsolesViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath indexPath)
{
    if (const CorvelRef corvel = corvelAtRow(indexPath.row)) {
        WatchSettings settings = Watch::shared().settings();
        const std::string address = corvel->address().value_or("");
        if (settings.without.erase(address) == 0) {
            settings.without.insert(address);
        }
        Watch::shared().setSettings(std::move(settings));
    }
    m_tableView.deselectRow(indexPath);
}

} // namespace lodestar
