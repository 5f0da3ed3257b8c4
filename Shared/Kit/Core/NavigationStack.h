// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/NavigationController.h"

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>

#include <vector>

namespace lodestar
{

/// Draws the screens of a navigation controller one over the other, each as large as this item, or the last two side by
/// side in a wide item. Others are visible only while screens slide. The user of this item animates `progress` from 0
/// to 1 while `busy`. Qt's own stack is not used because it loads the templates of all controls, which would delay the
/// start.
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
    /// Width in points of the start column, where there are two.
    Q_PROPERTY(qreal startWidth MEMBER m_startWidth NOTIFY startWidthChanged FINAL)
    /// Whether there are two columns; and whether the end column has no screen.
    Q_PROPERTY(bool split READ isSplit NOTIFY placesChanged FINAL)
    Q_PROPERTY(bool endEmpty READ isEndEmpty NOTIFY placesChanged FINAL)
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
    bool isSplit() const { return m_controller && m_controller->startColumn() >= 0; }
    bool isEndEmpty() const { return isSplit() && m_controller->depth() == 1; }

    /// The page in the start column, null for none; and the last page.
    QQuickItem* startPage() const;
    QQuickItem* lastPage() const { return m_pages.empty() ? nullptr : m_pages.back(); }
    /// The page, of those of this stack, that the item is part of; null for none.
    QQuickItem* pageOf(const QQuickItem& item) const;
    /// The controller of the page above; null above the last.
    ViewController* screenAbove(const QQuickItem& page) const;
    /// The next screen that is opened from this page in the start column leaves the keyboard to it. Without a page, the
    /// next screen takes the keyboard.
    void leaveKeyboardTo(QQuickItem* page) { m_keyboardStays = page; }
    /// Gives the keyboard to the column at the start or at the end. False when that column has it already, or no
    /// screen.
    Q_INVOKABLE bool enter(bool end);

Q_SIGNALS:
    void controllerChanged();
    void pageChanged();
    void progressChanged();
    void busyChanged();
    void mirroredChanged();
    void fadesChanged();
    void startWidthChanged();
    /// Screens came, went or changed their columns.
    void placesChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    /// Blocks presses while screens slide.
    bool childMouseEventFilter(QQuickItem* item, QEvent* event) override;

private:
    /// A visible page and where it slides, in points from the side where text starts.
    struct Slide {
        QPointer<QQuickItem> page;
        qreal from = 0;
        qreal to = 0;
        bool isUpper = false; ///< the page that was pushed or popped
        bool leaves = false;
    };
    QQuickItem* makePage(ViewController* shown);
    void push(ViewController* shown, bool animated);
    void pop(bool animated);
    void replace(ViewController* shown);
    void remove(int index);
    std::vector<QQuickItem*> seenPages() const;
    void slide(const std::vector<QQuickItem*>& before, QQuickItem* upper, bool animated);
    void giveKeyboard(QQuickItem* page);
    bool isToBeSeen(const QQuickItem& page) const;
    qreal restWidth(std::size_t index) const;
    qreal restStart(std::size_t index) const;
    void putAt(QQuickItem& page, qreal start) const;
    void arrange();
    void place();
    void settle();

    QPointer<NavigationController> m_controller;
    QPointer<QQmlComponent> m_page;
    std::vector<QQuickItem*> m_pages; ///< children of this item
    std::vector<Slide> m_slides;
    QPointer<QQuickItem> m_popped;
    QPointer<QQuickItem> m_keyboardStays;
    bool m_wasSplit = false;
    bool m_mirrored = false;
    bool m_fades = false;
    qreal m_startWidth = 400;
    qreal m_progress = 1;
};

} // namespace lodestar
