// SPDX-License-Identifier: Apache-2.0
#include "Application/KeySheetController.h"

#include "Inventory/FoldedText.h"
#include "Kit/Core/KeyTable.h"

#include <string>
#include <utility>

namespace lodestar
{
namespace
{

QString headerOf(KeyPlace place)
{
    switch (place) {
    case KeyPlace::Screen:
        return KeySheetController::tr("On this screen");
    case KeyPlace::Everywhere:
        return KeySheetController::tr("Everywhere");
    case KeyPlace::Lists:
        return KeySheetController::tr("In lists");
    default:
        return KeySheetController::tr("In charts");
    }
}

} // namespace

KeySheetController::KeySheetController(ViewController& over, std::vector<Command> commands)
    : m_over(over), m_commands(std::move(commands))
{
    setScene(QUrl(QStringLiteral("qrc:/Lodestar/Application/KeySheetScene.qml")));
    if (!runs()) {
        m_keys = keyRows();
    }
}

void KeySheetController::viewDidLoad()
{
    setTitle(runs() ? tr("Commands") : tr("Keyboard"));
}

QVariantList KeySheetController::keyRows()
{
    QVariantList rows;
    for (const KeyPlace place : {KeyPlace::Screen, KeyPlace::Everywhere, KeyPlace::Lists, KeyPlace::Charts}) {
        QString header = headerOf(place);
        for (const KeyEntry& entry : KeyTable::shared().entries()) {
            const bool isTold = entry.place == place && (place != KeyPlace::Screen ||
                                                         KeyTable::shared().live(QLatin1String(entry.name)) != nullptr);
            if (isTold) {
                rows << QVariant::fromValue(
                    KeyRow{std::exchange(header, {}), KeyTable::title(entry), KeyTable::keysToShow(entry)});
            }
        }
    }
    return rows;
}

std::vector<const Command*> KeySheetController::found() const
{
    const std::string wanted = foldedText(m_searchText.trimmed().toStdString());
    std::vector<const Command*> found;
    for (const Command& command : m_commands) {
        if (foldedText(command.title.toStdString()).find(wanted) != std::string::npos) {
            found.push_back(&command);
        }
    }
    return found;
}

QVariantList KeySheetController::rows() const
{
    QVariantList rows = m_keys;
    for (const Command* const command : found()) {
        rows << QVariant::fromValue(KeyRow{{}, command->title, command->keys});
    }
    return rows;
}

void KeySheetController::setSearchText(const QString& text)
{
    if (std::exchange(m_searchText, text) != text) {
        Q_EMIT rowsChanged();
    }
}

void KeySheetController::run(int row)
{
    const auto commands = found();
    if (row >= 0 && std::cmp_less(row, commands.size())) {
        const std::function<void()> run = commands[static_cast<std::size_t>(row)]->run;
        leave();
        run();
    }
}

void KeySheetController::leave()
{
    // The sheet may still be seen when its screen shows another one, or none.
    if (m_over.semiModal() != nullptr && m_over.semiModal()->controller() == this) {
        m_over.dismissSemiModalView();
    }
}

} // namespace lodestar
