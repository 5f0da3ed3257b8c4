// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QQuickItem>

namespace lodestar
{

/// The place of an item that many screens never need, such as the ring of the keyboard focus. The item is made when it
/// is first wanted, is as large as its place, and stays. Before, the place has no implicit size; afterwards, it has the
/// item's.
class LaterItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool wanted MEMBER m_wanted WRITE setWanted NOTIFY wantedChanged)
    /// The item's file, as an absolute URL: a type that is named is compiled, and loaded, with the screen around it.
    Q_PROPERTY(QString source MEMBER m_source NOTIFY sourceChanged)
    /// What the item is about: the value of its required property `subject`. The place itself unless set.
    Q_PROPERTY(QObject* subject MEMBER m_subject NOTIFY subjectChanged)
    /// Null until the item is wanted.
    Q_PROPERTY(QQuickItem* item READ item NOTIFY itemChanged)

public:
    using QQuickItem::QQuickItem;

    void setWanted(bool wanted);
    QQuickItem* item() const { return m_item.data(); }

Q_SIGNALS:
    void wantedChanged();
    void sourceChanged();
    void subjectChanged();
    void itemChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void make();
    void takeImplicitSize();

    QString m_source;
    QPointer<QObject> m_subject;
    QPointer<QQuickItem> m_item;
    bool m_wanted = false;
};

} // namespace lodestar
