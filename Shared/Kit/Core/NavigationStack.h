// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/NavigationController.h"

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

#include <vector>

namespace lodestar
{

/// The drawn screens of a navigation controller, one over the other, all as large as this item; only the last is seen
/// but while one slides. Whoever declares it animates `progress` from 0 to 1 while it is busy. Our own, because Qt's
/// stack brings the templates of all controls with it, which the start would wait for.
class NavigationStack : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        lodestar::NavigationController* controller READ controller WRITE setController NOTIFY controllerChanged FINAL)
    /// Makes an item with a property `controller`, for each of its screens.
    Q_PROPERTY(QQmlComponent* page MEMBER m_page NOTIFY pageChanged FINAL)
    /// Of the slide, 1 when it is over: then a popped screen goes.
    Q_PROPERTY(qreal progress READ progress WRITE setProgress NOTIFY progressChanged FINAL)
    Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged FINAL)
    /// Screens come from the left.
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY mirroredChanged FINAL)
    /// They fade in and out where they are, and do not slide.
    Q_PROPERTY(bool fades MEMBER m_fades NOTIFY fadesChanged FINAL)

public:
    explicit NavigationStack(QQuickItem* parent = nullptr);

    NavigationController* controller() const { return m_controller.data(); }
    /// Once, before the item is complete.
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
    /// Nothing is pressed on a screen that slides.
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
