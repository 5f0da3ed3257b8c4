// SPDX-License-Identifier: Apache-2.0
#include "Views/Attention/AttentionFilterController.h"

#include "Controllers/REST/RESTHandler.h"
#include "Views/Attention/FindingText.h"
#include "Views/Common/FeedName.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace lodestar
{
namespace
{

constexpr std::array kinds = {FindingSubject::Console,   FindingSubject::System, FindingSubject::IOServer,
                              FindingSubject::Partition, FindingSubject::Group,  FindingSubject::Event};

QString number(std::size_t count)
{
    return QLocale().toString(static_cast<qulonglong>(count));
}

template <typename Value>
void toggle(std::set<Value>& chosen, const Value& value)
{
    if (chosen.erase(value) == 0) {
        chosen.insert(value);
    }
}

} // namespace

void ConsoleChoices::setRows(std::vector<Row> rows)
{
    const auto before = static_cast<int>(m_rows.size());
    const auto count = static_cast<int>(rows.size());
    if (count < before) {
        beginRemoveRows({}, count, before - 1);
        m_rows.resize(rows.size());
        endRemoveRows();
    } else if (count > before) {
        beginInsertRows({}, before, count - 1);
        m_rows.resize(rows.size());
        endInsertRows();
    }
    if (m_rows != rows) {
        m_rows = std::move(rows);
        Q_EMIT dataChanged(index(0), index(count - 1));
    }
}

int ConsoleChoices::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ConsoleChoices::data(const QModelIndex& index, int role) const
{
    if (index.row() < 0 || index.row() >= rowCount()) {
        return {};
    }
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Name:
        return row.name;
    case Count:
        return row.count;
    case Chosen:
        return row.chosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> ConsoleChoices::roleNames() const
{
    return {{Name, "name"}, {Count, "count"}, {Chosen, "chosen"}};
}

AttentionFilterController::AttentionFilterController(Host host) : m_host(std::move(host))
{
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Views/AttentionFilterScene.qml")));
    count();
    m_order = RESTHandler::sharedInstance().corvelList();
    std::ranges::stable_sort(m_order, std::ranges::greater(),
                             [this](const CorvelRef& each) { return m_consoleCounts[each.get()]; });
}

void AttentionFilterController::viewDidLoad()
{
    setTitle(tr("Show"));
    m_observation = NotificationCenter::defaultCenter().addObserver("AttentionDidChange", [this] {
        count();
        show();
    });
    show();
}

void AttentionFilterController::count()
{
    m_kindCounts.clear();
    m_consoleCounts.clear();
    for (const Finding& finding : Attention::shared().picture()->findings.list) {
        ++m_kindCounts[finding.subject];
        ++m_consoleCounts[finding.corvel.get()];
    }
}

void AttentionFilterController::show()
{
    const std::vector<CorvelRef>& corvels = RESTHandler::sharedInstance().corvelList();
    const std::set<CorvelRef> registered(corvels.begin(), corvels.end());
    std::erase_if(m_order, [&](const CorvelRef& each) { return !registered.contains(each); });
    const std::set<const Corvel*> chosen = m_host.filter().consoles;
    const QString searched = m_searchText.trimmed();
    m_found.clear();
    std::vector<ConsoleChoices::Row> rows;
    if (searched.isEmpty()) {
        const QString all = tr("All %Ln consoles", nullptr, static_cast<int>(m_order.size()));
        rows.push_back({all, number(Attention::shared().picture()->findings.list.size()), chosen.empty()});
    }
    for (const CorvelRef& each : m_order) {
        const QString name = rowText(each->name().value_or(""));
        if (searched.isEmpty() || name.contains(searched, Qt::CaseInsensitive)) {
            m_found.push_back(each);
            rows.push_back({name, number(m_consoleCounts[each.get()]), chosen.contains(each.get())});
        }
    }
    m_consoles.setRows(std::move(rows));
    Q_EMIT changed();
}

void AttentionFilterController::adopt(FindingFilter filter)
{
    m_host.setFilter(std::move(filter));
    show();
}

bool AttentionFilterController::isByConsole() const
{
    return m_host.filter().grouping == FindingFilter::Grouping::Console;
}

void AttentionFilterController::setByConsole(bool byConsole)
{
    FindingFilter filter = m_host.filter();
    filter.grouping = byConsole ? FindingFilter::Grouping::Console : FindingFilter::Grouping::Severity;
    adopt(std::move(filter));
}

QStringList AttentionFilterController::kindNames() const
{
    QStringList names;
    for (const FindingSubject kind : kinds) {
        names << FindingText::subject(kind);
    }
    return names;
}

QStringList AttentionFilterController::kindCounts() const
{
    QStringList counts;
    for (const FindingSubject kind : kinds) {
        const auto found = m_kindCounts.find(kind);
        counts << number(found != m_kindCounts.end() ? found->second : 0);
    }
    return counts;
}

QList<bool> AttentionFilterController::chosenKinds() const
{
    const std::set<FindingSubject> all = m_host.filter().kinds;
    QList<bool> chosen;
    for (const FindingSubject kind : kinds) {
        chosen << all.contains(kind);
    }
    return chosen;
}

void AttentionFilterController::toggleKind(int index)
{
    if (index >= 0 && static_cast<std::size_t>(index) < kinds.size()) {
        FindingFilter filter = m_host.filter();
        toggle(filter.kinds, kinds[static_cast<std::size_t>(index)]);
        adopt(std::move(filter));
    }
}

void AttentionFilterController::toggleConsole(int row)
{
    FindingFilter filter = m_host.filter();
    const int first = m_searchText.trimmed().isEmpty() ? 1 : 0;
    if (row < first) {
        filter.consoles.clear();
    } else if (static_cast<std::size_t>(row - first) < m_found.size()) {
        toggle(filter.consoles, static_cast<const Corvel*>(m_found[static_cast<std::size_t>(row - first)].get()));
    }
    adopt(std::move(filter));
}

void AttentionFilterController::setSearchText(const QString& text)
{
    if (std::exchange(m_searchText, text) != text) {
        show();
    }
}

void AttentionFilterController::reset()
{
    m_searchText.clear();
    adopt({});
}

} // namespace lodestar
