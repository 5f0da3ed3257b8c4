// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/KeyTable.h"

#include "Kit/Core/Appearance.h"

#include <QCoreApplication>
#include <QJSEngine>
#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>
#include <array>

namespace lodestar
{
namespace
{

constexpr int mostShown = 2;

/// What every program with these controls has.
constexpr std::array general = {
    KeyEntry{"refresh", "F5 Ctrl+R", KeyPlace::Screen, QT_TRANSLATE_NOOP("KeyTable", "Refresh")},
    KeyEntry{"search", "Ctrl+F", KeyPlace::Screen, QT_TRANSLATE_NOOP("KeyTable", "Search")},
    KeyEntry{"saveList", "Ctrl+S", KeyPlace::Screen, QT_TRANSLATE_NOOP("KeyTable", "Save list as CSV")},
    KeyEntry{"savePoints", "Ctrl+S", KeyPlace::Screen, QT_TRANSLATE_NOOP("KeyTable", "Save points as CSV")},
    KeyEntry{"copyValue", "Ctrl+C Ctrl+Ins F16 Copy", KeyPlace::Screen, QT_TRANSLATE_NOOP("KeyTable", "Copy value")},
    KeyEntry{"copyAll", "Ctrl+C", KeyPlace::Screen, QT_TRANSLATE_NOOP("KeyTable", "Copy all")},
    KeyEntry{"undo", "Ctrl+Z", KeyPlace::Screen, QT_TRANSLATE_NOOP("KeyTable", "Undo")},
    KeyEntry{"help", "F1 ?", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Keyboard help")},
    KeyEntry{"commands", "Ctrl+Shift+P", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Commands")},
    KeyEntry{"back", "Alt+Left Esc", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Back")},
    KeyEntry{"", "Tab Shift+Tab", KeyPlace::Everywhere, QT_TRANSLATE_NOOP("KeyTable", "Next or previous control")},
    KeyEntry{"", "Up Down", KeyPlace::Lists, QT_TRANSLATE_NOOP("KeyTable", "Next or previous row")},
    KeyEntry{"", "PgUp PgDown", KeyPlace::Lists, QT_TRANSLATE_NOOP("KeyTable", "A page up or down")},
    KeyEntry{"", "Home End", KeyPlace::Lists, QT_TRANSLATE_NOOP("KeyTable", "First or last row")},
    KeyEntry{"", "Return Space", KeyPlace::Lists, QT_TRANSLATE_NOOP("KeyTable", "Open the row")},
    KeyEntry{"", "Left Right", KeyPlace::Lists, QT_TRANSLATE_NOOP("KeyTable", "The other column")},
    KeyEntry{"", "Menu", KeyPlace::Lists, QT_TRANSLATE_NOOP("KeyTable", "Menu of the row")},
    KeyEntry{"", "Shift+F10", KeyPlace::Lists, QT_TRANSLATE_NOOP("KeyTable", "Buttons of the row")},
    KeyEntry{"", "Left Right", KeyPlace::Charts, QT_TRANSLATE_NOOP("KeyTable", "Step along the chart")},
    KeyEntry{"", "Home End", KeyPlace::Charts, QT_TRANSLATE_NOOP("KeyTable", "First or last value")},
    KeyEntry{"", "Shift+Left Shift+Right", KeyPlace::Charts, QT_TRANSLATE_NOOP("KeyTable", "Move the enlarged chart")},
    KeyEntry{"", "+ -", KeyPlace::Charts, QT_TRANSLATE_NOOP("KeyTable", "Enlarge or shrink")},
    KeyEntry{"", "Esc", KeyPlace::Charts, QT_TRANSLATE_NOOP("KeyTable", "The whole chart")},
};

/// Escape is left to the control that has the focus: a shortcut would take it from all of them.
bool isShortcut(const QString& keys)
{
    return keys != QLatin1String("Esc");
}

QStringList keysOf(const KeyEntry& entry)
{
    return QString::fromLatin1(entry.keys).split(u' ');
}

} // namespace

KeyTable::KeyTable() : m_entries(general.begin(), general.end()) {}

KeyTable& KeyTable::shared()
{
    // Never deleted: nothing orders the end of the process's scenes and this.
    static auto* const table = new KeyTable;
    return *table;
}

KeyTable* KeyTable::create(QQmlEngine* /*qml*/, QJSEngine* /*js*/)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

void KeyTable::add(std::span<const KeyEntry> entries)
{
    for (const KeyEntry& entry : entries) {
        if (find(QString::fromLatin1(entry.name)) == nullptr) {
            m_entries.push_back(entry);
        }
    }
}

QString KeyTable::title(const KeyEntry& entry)
{
    return QCoreApplication::translate("KeyTable", entry.title);
}

QStringList KeyTable::keysToShow(const KeyEntry& entry)
{
    QStringList shown;
    for (const QString& keys : keysOf(entry).first(std::min<qsizetype>(mostShown, keysOf(entry).size()))) {
        shown << QKeySequence(keys, QKeySequence::PortableText).toString(QKeySequence::NativeText);
    }
    return shown;
}

const KeyEntry* KeyTable::find(const QString& name) const
{
    const auto found =
        std::ranges::find(m_entries, name, [](const KeyEntry& each) { return QLatin1String(each.name); });
    return name.isEmpty() || found == m_entries.end() ? nullptr : &*found;
}

QVariantList KeyTable::sequencesOf(const QString& name) const
{
    QVariantList sequences;
    if (const KeyEntry* const entry = find(name)) {
        for (const QString& keys : keysOf(*entry)) {
            if (isShortcut(keys)) {
                sequences << keys;
            }
        }
    }
    return sequences;
}

QString KeyTable::withKeys(const QString& text, const QString& name) const
{
    const KeyEntry* const entry = find(name);
    if (entry == nullptr) {
        return text;
    }
    QString keys = keysToShow(*entry).constFirst();
    if (Appearance::shared().isMirrored()) {
        // Keys run from left to right in every language. The typeface has no isolates, and another one sits lower.
        keys = QChar(0x2066) + keys + QChar(0x2069);
    }
    //: A button's tip: what the button does, and the keys that do it
    return tr("%1 (%2)").arg(text, keys);
}

bool KeyTable::matches(const char* name, const QKeyEvent& event) const
{
    const QKeySequence pressed(event.keyCombination());
    return std::ranges::any_of(sequencesOf(QString::fromLatin1(name)), [&pressed](const QVariant& keys) {
        return QKeySequence(keys.toString(), QKeySequence::PortableText) == pressed;
    });
}

void KeyTable::offer(QObject* action)
{
    std::erase_if(m_actions, [](const QPointer<QObject>& each) { return each.isNull(); });
    m_actions.emplace_back(action);
}

QObject* KeyTable::live(const QString& name) const
{
    const auto found = std::find_if(m_actions.rbegin(), m_actions.rend(), [&name](const QPointer<QObject>& each) {
        return each && each->property("name") == name && each->property("enabled").toBool();
    });
    return found != m_actions.rend() ? found->data() : nullptr;
}

} // namespace lodestar
