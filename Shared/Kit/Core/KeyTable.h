// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <span>
#include <vector>

class QJSEngine;
class QKeyEvent;
class QQmlEngine;

namespace lodestar
{

/// Where keys work, in the order in which people are told of them.
enum class KeyPlace { Screen, Everywhere, Lists, Charts };

/// What keys do. An action without a name is none that can be chosen from a list: the control with the focus does it.
struct KeyEntry {
    const char* name;
    const char* keys; ///< each of them does it; separated by blanks, the customary ones first
    KeyPlace place;
    const char* title; ///< English; translated in the context KeyTable
};

/// The program's one table of keys. Shortcuts, tips and the help take them from here. Main thread.
class KeyTable : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    static KeyTable& shared();
    static KeyTable* create(QQmlEngine* qml, QJSEngine* js);

    /// Adds the entries of a module above the kit; entries that were added before are not added twice. They must live
    /// as long as the process.
    void add(std::span<const KeyEntry> entries);
    const std::vector<KeyEntry>& entries() const { return m_entries; }
    /// Null for a name that has no entry.
    const KeyEntry* find(const QString& name) const;
    static QString title(const KeyEntry& entry);
    /// As the system writes them. At most two: the others are for keyboards that have a key just for that.
    static QStringList keysToShow(const KeyEntry& entry);

    /// Of strings, as shortcuts take them.
    Q_INVOKABLE QVariantList sequencesOf(const QString& name) const;
    /// The text with the action's first keys after it. The text itself when the name is empty.
    Q_INVOKABLE QString withKeys(const QString& text, const QString& name) const;
    bool matches(const char* name, const QKeyEvent& event) const;

    /// A KeyAction says that it exists.
    Q_INVOKABLE void offer(QObject* action);
    /// The KeyAction that the action's keys would reach now; null for none. Of several, the one made last: it belongs
    /// to the screen on top.
    QObject* live(const QString& name) const;

private:
    KeyTable();

    std::vector<KeyEntry> m_entries;
    std::vector<QPointer<QObject>> m_actions;
};

} // namespace lodestar
