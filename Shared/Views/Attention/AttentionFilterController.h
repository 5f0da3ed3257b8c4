// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Attention.h"
#include "Fleet/FindingBands.h"
#include "Kit/Core/ViewController.h"
#include "Platform/NotificationCenter.h"

#include <QAbstractListModel>
#include <QStringList>

#include <functional>
#include <map>
#include <vector>

namespace lodestar
{

/// The consoles of the sheet Show as rows: first the one for all consoles, then those that the search finds.
class ConsoleChoices : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of a controller")

public:
    struct Row {
        QString name;
        QString count;
        bool chosen = false;
        friend bool operator==(const Row&, const Row&) = default;
    };
    enum Role { Name = Qt::UserRole + 1, Count, Chosen };

    using QAbstractListModel::QAbstractListModel;
    /// Rows that keep their place keep their delegates.
    void setRows(std::vector<Row> rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<Row> m_rows;
};

/// The sheet Show of the Attention tab: how to group, which kinds of things and which consoles to show. Each choice
/// works at once. Main thread.
class AttentionFilterController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the Attention tab")
    Q_PROPERTY(bool byConsole READ isByConsole WRITE setByConsole NOTIFY changed)
    Q_PROPERTY(QStringList kindNames READ kindNames CONSTANT)
    Q_PROPERTY(QStringList kindCounts READ kindCounts NOTIFY changed)
    Q_PROPERTY(QList<bool> chosenKinds READ chosenKinds NOTIFY changed)
    Q_PROPERTY(lodestar::ConsoleChoices* consoles READ consoles CONSTANT)
    Q_PROPERTY(bool searchable READ isSearchable CONSTANT)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY changed)

public:
    /// What the sheet is about: the filter as it is, a way to change it, and a way to leave.
    struct Host {
        std::function<FindingFilter()> filter;
        std::function<void(FindingFilter)> setFilter;
        std::function<void()> leave;
    };
    explicit AttentionFilterController(Host host);

    bool isByConsole() const;
    void setByConsole(bool byConsole);
    QStringList kindNames() const;
    QStringList kindCounts() const;
    QList<bool> chosenKinds() const;
    Q_INVOKABLE void toggleKind(int index);
    ConsoleChoices* consoles() { return &m_consoles; }
    /// Handles a tap on a row of `consoles`.
    Q_INVOKABLE void toggleConsole(int row);
    /// Whether there are so many consoles that a search helps.
    bool isSearchable() const { return m_order.size() > 8; }
    const QString& searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    Q_INVOKABLE void reset();
    Q_INVOKABLE void done() { m_host.leave(); }

Q_SIGNALS:
    void changed();

protected:
    void viewDidLoad() override;

private:
    void count();
    void show();
    void adopt(FindingFilter filter);

    const Host m_host;
    std::vector<CorvelRef> m_order; ///< by what the consoles had to show when the sheet came up
    std::vector<CorvelRef> m_found; ///< those of the rows below the first
    std::map<FindingSubject, std::size_t> m_kindCounts;
    std::map<const Corvel*, std::size_t> m_consoleCounts;
    QString m_searchText;
    ConsoleChoices m_consoles;
    NotificationCenter::Observation m_observation;
};

} // namespace lodestar
