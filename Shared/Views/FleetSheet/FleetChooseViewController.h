// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSheet.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/SpansColumns.h"
#include "Kit/Core/ViewController.h"
#include "Views/Common/Scenes.h"
#include "Views/FleetSheet/FleetPasswords.h"

#include <memory>

namespace lodestar
{

/// What is in a sheet, told before anything is asked; then the passwords. Main thread.
class FleetChooseViewController : public lodestar::ViewController, public SpansColumns
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::LabelOutlet* fileLabel READ fileLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* rowsLabel READ rowsLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* foundLabel READ foundLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* notReadLabel READ notReadLabel CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* sheetCard READ sheetCard CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* newLabel READ newLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* registeredLabel READ registeredLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* unusableLabel READ unusableLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* verifyLabel READ verifyLabel CONSTANT)
    Q_PROPERTY(lodestar::FleetPasswords* passwords READ passwords CONSTANT)

public:
    FleetChooseViewController();

    /// Reads the file in the background and tells what is in it. Another file replaces the one before.
    void setFile(FleetFileInput file);

    LabelOutlet* fileLabel() { return &m_fileLabel; }
    LabelOutlet* rowsLabel() { return &m_rowsLabel; }
    /// What was found in the first line, or, with the state Alert, why the file is no sheet.
    LabelOutlet* foundLabel() { return &m_foundLabel; }
    /// Columns that are not read; hidden without any.
    LabelOutlet* notReadLabel() { return &m_notReadLabel; }
    /// Hidden while there is no sheet, with all that follows.
    ViewOutlet* sheetCard() { return &m_sheetCard; }
    LabelOutlet* newLabel() { return &m_newLabel; }
    LabelOutlet* registeredLabel() { return &m_registeredLabel; }
    /// Its state is Alert when there are such rows.
    LabelOutlet* unusableLabel() { return &m_unusableLabel; }
    /// Disabled until every user has a password; hidden without new consoles.
    LabelOutlet* verifyLabel() { return &m_verifyLabel; }
    FleetPasswords* passwords() { return &m_passwords; }

    Q_INVOKABLE void chooseAnother();
    Q_INVOKABLE void importFile(const QUrl& url);
    Q_INVOKABLE void openUnusable();
    Q_INVOKABLE void verify();

private:
    void show(const Result<FleetSheet>& sheet);

    std::shared_ptr<const FleetSheet> m_sheet; ///< null until one was read
    int m_turn = 0;                            ///< tells the last file from those before
    LabelOutlet m_fileLabel;
    LabelOutlet m_rowsLabel;
    LabelOutlet m_foundLabel;
    LabelOutlet m_notReadLabel;
    ViewOutlet m_sheetCard;
    LabelOutlet m_newLabel;
    LabelOutlet m_registeredLabel;
    LabelOutlet m_unusableLabel;
    LabelOutlet m_verifyLabel;
    FleetPasswords m_passwords;
};

} // namespace lodestar
