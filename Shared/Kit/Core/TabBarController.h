// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"

#include <QColor>

#include <map>
#include <vector>

namespace lodestar
{

/// One tab: its text, the resource name of its picture (`imageName` + "_selected" when selected) and its screen.
struct TabBarItem {
    QString title;
    QString imageName;
    std::shared_ptr<ViewController> controller;
};

/// What a tab's badge counts, for the eye and for the ear.
struct TabBadge {
    QString text;   ///< empty for no badge
    QString spoken; ///< the tab's whole name for screen readers; empty for the tab's title
    friend bool operator==(const TabBadge&, const TabBadge&) = default;
};

/// Screens side by side behind a bar of tabs, at least one. The first tab is selected at the start.
class TabBarController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(int selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged)
    Q_PROPERTY(QColor selectedImageTintColor READ selectedImageTintColor CONSTANT)
    Q_PROPERTY(bool barHidden READ isBarHidden NOTIFY barHiddenChanged)

public:
    explicit TabBarController(std::vector<TabBarItem> items);
    ~TabBarController() override;

    int count() const { return static_cast<int>(m_items.size()); }
    int selectedIndex() const { return m_selectedIndex; }
    void setSelectedIndex(int index);
    /// Handles a tap on a tab: selects the tab, or returns the selected tab to its first screen.
    Q_INVOKABLE void tap(int index);
    /// Invalid for the kit's own colour.
    QColor selectedImageTintColor() const;
    Q_INVOKABLE QString titleAt(int index) const;
    Q_INVOKABLE QString imageNameAt(int index) const;
    Q_INVOKABLE lodestar::ViewController* controllerAt(int index) const;
    void setBadge(int index, TabBadge badge);
    /// Leaves the whole window to the selected screen, which takes care that the bar comes back.
    bool isBarHidden() const { return m_isBarHidden; }
    void setBarHidden(bool hidden);
    Q_INVOKABLE QString badgeAt(int index) const { return badge(index).text; }
    /// What a screen reader says for the tab.
    Q_INVOKABLE QString spokenAt(int index) const;

Q_SIGNALS:
    void selectedIndexChanged();
    void badgeChanged(int index);
    void barHiddenChanged();

protected:
    void viewDidLoad() override { controllerAt(m_selectedIndex)->loadViewIfNeeded(); }
    void viewDidAppear() override { controllerAt(m_selectedIndex)->beginAppearance(); }
    void viewDidDisappear() override { controllerAt(m_selectedIndex)->endAppearance(); }

private:
    TabBadge badge(int index) const;

    std::vector<TabBarItem> m_items;
    std::map<int, TabBadge> m_badges;
    int m_selectedIndex = 0;
    bool m_isBarHidden = false;
};

/// The look of every tab bar.
struct TabBarAppearance {
    QColor selectedImageTintColor;
    static TabBarAppearance& appearance();
};

} // namespace lodestar
