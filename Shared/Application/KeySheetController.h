// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Sentence.h"
#include "Kit/Core/ViewController.h"

#include <QStringList>
#include <QVariantList>

#include <functional>
#include <vector>

namespace lodestar
{

/// What the program can be told to do now, and the keys for it, if there are any.
struct Command {
    QString title;
    QStringList keys;
    std::function<void()> run;
};

/// A row of the sheet: what is done and the keys that do it.
struct KeyRow {
    Q_GADGET
    QML_VALUE_TYPE(keyRow)
    Q_PROPERTY(QString header MEMBER header)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QStringList keys MEMBER keys)
    Q_PROPERTY(QString line READ line)

public:
    QString header{}; ///< what stands above the row; empty for none
    QString title{};
    QStringList keys{};
    /// All keys in one line, for large text and for readers.
    QString line() const { return Sentence::joined(keys); }
    friend bool operator==(const KeyRow&, const KeyRow&) = default;
};

/// The sheet that tells all keys, or the one that lists the commands and runs the chosen one. It shows what could be
/// done on the screen below when it came up. Main thread.
class KeySheetController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by Commands")
    Q_PROPERTY(bool runs READ runs CONSTANT)
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY rowsChanged)

public:
    /// `over` is the screen that presents the sheet. Without commands it tells the keys.
    KeySheetController(ViewController& over, std::vector<Command> commands);

    /// Whether a row can be chosen.
    bool runs() const { return !m_commands.empty(); }
    /// Of KeyRow.
    QVariantList rows() const;
    const QString& searchText() const { return m_searchText; }
    /// Narrows the commands to those whose title has the text; case and diacritics do not matter.
    void setSearchText(const QString& text);
    /// Takes the sheet down and does what the row says.
    Q_INVOKABLE void run(int row);
    Q_INVOKABLE void leave();

Q_SIGNALS:
    void rowsChanged();

protected:
    void viewDidLoad() override;

private:
    std::vector<const Command*> found() const;
    static QVariantList keyRows();

    ViewController& m_over;
    std::vector<Command> m_commands;
    QVariantList m_keys;
    QString m_searchText;
};

} // namespace lodestar
