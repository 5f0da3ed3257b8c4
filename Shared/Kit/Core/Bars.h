// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"

#include <QStringList>

#include <functional>

namespace lodestar
{

/// The button at the end of a screen's bar. Until an item is set, there is no button. Setters work as for every outlet;
/// the action runs on the main thread.
class BarButtonOutlet : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QString imageName READ imageName NOTIFY itemChanged)
    Q_PROPERTY(QString title READ title NOTIFY itemChanged)
    Q_PROPERTY(bool enabled READ isEnabled NOTIFY itemChanged)

public:
    enum class SystemItem { None, Search, Refresh };
    Q_ENUM(SystemItem)

    explicit BarButtonOutlet(QObject* parent = nullptr) : QObject(parent) {}
    SystemItem systemItem() const { return m_item; }
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    /// Replaces the button by an enabled one for this item.
    void setItem(SystemItem item, std::function<void()> action);
    /// Empty without an item.
    QString imageName() const;
    QString title() const;
    /// Does nothing while the button is disabled.
    Q_INVOKABLE void tap();

Q_SIGNALS:
    void itemChanged();

private:
    SystemItem m_item = SystemItem::None;
    bool m_enabled = false;
    std::function<void()> m_action;
};

/// A search bar and the display of its results. Both are hidden until the bar becomes the first responder, and again
/// once the search is cancelled. QML writes the user's typing into `text`. The scope bar is never shown, yet one scope
/// is always selected. Main thread.
class SearchBarOutlet : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged)

public:
    explicit SearchBarOutlet(QObject* parent = nullptr) : QObject(parent) {}
    const QString& text() const { return m_text; }
    void setText(const QString& text);
    bool isActive() const { return m_active; }
    void becomeFirstResponder();
    Q_INVOKABLE void cancel();
    static QStringList scopeButtonTitles() { return {tr("All")}; }
    static int selectedScopeButtonIndex() { return 0; }

Q_SIGNALS:
    void textChanged();
    void activeChanged();
    /// The field should take the keyboard focus, even when the bar is visible already.
    void focusRequested();

private:
    QString m_text;
    bool m_active = false;
};

} // namespace lodestar
