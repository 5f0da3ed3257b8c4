// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/NavigationController.h"

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

#include <vector>

namespace lodestar
{

/// Draws the screens of a navigation controller one over the other, each as large as this item. Only the last is
/// visible, except while screens slide. The user of this item animates `progress` from 0 to 1 while `busy`. Qt's own
/// stack is not used because it loads the templates of all controls, which would delay the start.
class NavigationStack : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        lodestar::NavigationController* controller READ controller WRITE setController NOTIFY controllerChanged FINAL)
    /// Makes the item for each screen; the item has a property `controller`.
    Q_PROPERTY(QQmlComponent* page MEMBER m_page NOTIFY pageChanged FINAL)
    /// Progress of the slide. At 1 the slide is over, and a popped screen is deleted.
    Q_PROPERTY(qreal progress READ progress WRITE setProgress NOTIFY progressChanged FINAL)
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged FINAL)
    /// Whether screens come from the left.
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY mirroredChanged FINAL)
    /// Whether screens fade in place of sliding.
    Q_PROPERTY(bool fades MEMBER m_fades NOTIFY fadesChanged FINAL)

public:
    explicit NavigationStack(QQuickItem* parent = nullptr);

    NavigationController* controller() const { return m_controller.data(); }
    /// To be set once, before the item is complete.
    void setController(NavigationController* controller);
    qreal progress() const { return m_progress; }
    void setProgress(qreal progress);
    bool isBusy() const { return m_progress < 1; }

Q_SIGNALS:
    void controllerChanged();
    void pageChanged();
    void progressChanged();
    void busyChanged();
    void mirroredChanged();
    void fadesChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    /// Blocks presses while screens slide.
    bool childMouseEventFilter(QQuickItem* item, QEvent* event) override;

private:
    void push(ViewController* shown, bool animated);
    void pop(bool animated);
    void remove(int index);
    void slide(QQuickItem* coming, QQuickItem* going, bool isPop, bool animated);
    void place();
    void settle();

    QPointer<NavigationController> m_controller;
    QPointer<QQmlComponent> m_page;
    std::vector<QQuickItem*> m_pages; ///< children of this item
    QPointer<QQuickItem> m_coming;
    QPointer<QQuickItem> m_going;
    bool m_isPop = false;
    bool m_mirrored = false;
    bool m_fades = false;
    qreal m_progress = 1;
};

} // namespace lodestar
