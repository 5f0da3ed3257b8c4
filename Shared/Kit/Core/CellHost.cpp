// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/CellHost.h"

#include "Kit/Core/MakeItem.h"

#include <QQmlEngine>
#include <QQmlProperty>

#include <utility>

namespace lodestar
{

namespace
{
const QString cellProperty = QStringLiteral("cell");
} // namespace

CellHost::~CellHost()
{
    delete m_item.data();
}

void CellHost::setTable(TableOutlet* table)
{
    if (m_table == table) {
        return;
    }
    disconnect(m_connection);
    m_table = table;
    if (table != nullptr) {
        const auto changed = [this](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
            if (!m_pooled && first.row() <= m_index && m_index <= last.row() && roles.empty()) {
                configure();
            }
        };
        m_connection = connect(table, &TableOutlet::dataChanged, this, changed);
    }
    Q_EMIT tableChanged();
}

void CellHost::componentComplete()
{
    QQuickItem::componentComplete();
    configure();
}

void CellHost::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    fill();
}

void CellHost::configure()
{
    if (!isComponentComplete() || !m_table || m_index < 0) {
        return;
    }
    if (m_table->data(m_table->index(m_index), TableOutlet::IsHeader).toBool()) {
        drop();
        return;
    }
    if (!m_table->makesCellsInSteps()) {
        show(m_table->configureCell(m_index));
        return;
    }
    CellInSteps making = m_table->configureCellInSteps(m_index);
    show(making.cell);
    if (making.step) {
        m_table->cellSteps().complete(*this, m_index, std::move(making.step),
                                      [this](const QVariant& cell) { show(cell); });
    }
}

void CellHost::itemChange(ItemChange change, const ItemChangeData& value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged && value.boolValue && m_table) {
        m_table->cellSteps().wake();
    }
}

void CellHost::show(const QVariant& cell)
{
    if (m_item) {
        QQmlProperty::write(m_item, cellProperty, cell);
    } else if (m_delegate) {
        make(cell);
    }
}

void CellHost::make(const QVariant& cell)
{
    m_item = makeItem(*m_delegate, {{cellProperty, cell}}, *this);
    if (!m_item) {
        qWarning("A row cannot be shown: %s", qPrintable(m_delegate->errorString()));
        return;
    }
    connect(m_item, &QQuickItem::implicitHeightChanged, this, [this] { setImplicitHeight(m_item->implicitHeight()); });
    fill();
    setImplicitHeight(m_item->implicitHeight());
    Q_EMIT itemChanged();
}

void CellHost::drop()
{
    if (m_item) {
        // The row no longer follows the item, which lives until it is deleted later.
        disconnect(m_item, nullptr, this, nullptr);
        m_item->setVisible(false);
        m_item->deleteLater();
        m_item = nullptr;
        setImplicitHeight(0);
        Q_EMIT itemChanged();
    }
}

void CellHost::fill()
{
    if (m_item) {
        m_item->setSize(size());
    }
}

} // namespace lodestar
