// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Table.h"

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

namespace lodestar
{

/// The content of one drawn row: an item of the table's delegate with a property `cell`. The table is asked for the
/// cell once when the row comes into view (`configure`) and once per reload, not for each role or binding. Where the
/// table makes its cells in steps, the item exists at once and its cell is completed later.
class CellHost : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(lodestar::TableOutlet* table READ table WRITE setTable NOTIFY tableChanged)
    Q_PROPERTY(int index MEMBER m_index NOTIFY indexChanged)
    Q_PROPERTY(bool pooled MEMBER m_pooled NOTIFY pooledChanged)
    Q_PROPERTY(QQmlComponent* delegate MEMBER m_delegate NOTIFY delegateChanged)
    Q_PROPERTY(QQuickItem* item READ item NOTIFY itemChanged)
    /// The list's width in points, for what the item cannot tell by its own.
    Q_PROPERTY(qreal listWidth MEMBER m_listWidth NOTIFY listWidthChanged)

public:
    using QQuickItem::QQuickItem;
    ~CellHost() override;

    TableOutlet* table() const { return m_table.data(); }
    void setTable(TableOutlet* table);
    /// Null for a header.
    QQuickItem* item() const { return m_item.data(); }
    /// Asks the table for the cell of the present index. A list calls this when it reuses the row for another index.
    Q_INVOKABLE void configure();

Q_SIGNALS:
    void tableChanged();
    void indexChanged();
    void pooledChanged();
    void delegateChanged();
    void itemChanged();
    void listWidthChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void show(const QVariant& cell);
    void make(const QVariant& cell);
    void drop();
    void fill();

    QPointer<TableOutlet> m_table;
    QMetaObject::Connection m_connection;
    QPointer<QQmlComponent> m_delegate;
    QPointer<QQuickItem> m_item;
    qreal m_listWidth = 0;
    int m_index = -1;
    /// waits for its next use; a pooled row ignores reloads, since asking for a cell may cost a request
    bool m_pooled = false;
};

} // namespace lodestar
