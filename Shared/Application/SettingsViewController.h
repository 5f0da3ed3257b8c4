// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/KeychainWait.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/PagedIntro.h"
#include "Kit/Core/SheetHostController.h"
#include "Kit/Core/SpansColumns.h"
#include "Kit/Core/Storyboard.h"
#include "Kit/Core/Table.h"
#include "Platform/NotificationCenter.h"

#include <functional>
#include <string_view>

namespace lodestar
{

/// The settings: whether a passcode is required, which is the application's only preference, and ways to the tour and
/// the about screens. Main thread.
class SettingsViewController : public lodestar::SheetHostController, public PagedIntroDelegate, public SpansColumns
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The storyboard makes it.")
    Q_PROPERTY(lodestar::SwitchOutlet* passwordSwitch READ passwordSwitch CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* passwordCell READ passwordCell CONSTANT)
    Q_PROPERTY(lodestar::ViewOutlet* passwordCellLabel READ passwordCellLabel CONSTANT)
    Q_PROPERTY(lodestar::ImageOutlet* passwordCellArrow READ passwordCellArrow CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* keychainNote READ keychainNote CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* alert READ alert CONSTANT)
    Q_PROPERTY(double separatorLeft READ separatorLeft CONSTANT)
    Q_PROPERTY(double separatorRight READ separatorRight CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)

public:
    SwitchOutlet* passwordSwitch() { return &m_passwordSwitch; }
    /// The row that changes the passcode; while disabled it takes no touches.
    ViewOutlet* passwordCell() { return &m_passwordCell; }
    ViewOutlet* passwordCellLabel() { return &m_passwordCellLabel; }
    ImageOutlet* passwordCellArrow() { return &m_passwordCellArrow; }
    /// Says, below the passcode's rows, why there is no lock or why none can be confirmed. Hidden while there is
    /// nothing to say.
    LabelOutlet* keychainNote() { return &m_keychainNote; }
    /// Shows the passcode sheet's last message, after the sheet has gone.
    MenuOutlet* alert() { return &m_alert; }
    double separatorLeft() const { return 10; }
    double separatorRight() const { return 15; }
    /// The application's version, shown beside the row that leads to the release notes.
    QString version() const;

    /// Called when the person flips the switch.
    Q_INVOKABLE void togglePassword();
    /// Section 0: the switch, change passcode. Section 1: tour, release notes, notices, licence agreement. A row whose
    /// scene the storyboard lacks opens nothing. The row itself goes back to its unpressed look.
    void didSelectRowAtIndexPath(IndexPath indexPath);
    Q_INVOKABLE void selectRow(int section, int row) { didSelectRowAtIndexPath({section, row}); }

    void hideModalView();
    /// Does nothing: the tour leaves the settings as they were.
    void introDidFinish() override {}

protected:
    void viewDidLoad() override;
    void viewDidAppear() override;
    void viewDidDisappear() override { turnOffWithoutPasscode(); }
    double restingSheetHeight() const override;

private:
    void setPasswordCellEnabled(bool enabled);
    void turnOffWithoutPasscode();
    void updateKeychainNote();
    /// The function is not called if these settings are destroyed before the answer.
    void whenPasscodeIsKnown(const std::function<void(SettingsViewController&)>& function);
    void presentPasscodeSheet();
    void showIntroTour();
    void pushWithoutTitle(Scene<> scene);

    NotificationCenter::Observation m_closeObservation;
    SwitchOutlet m_passwordSwitch;
    ViewOutlet m_passwordCell;
    ViewOutlet m_passwordCellLabel;
    ImageOutlet m_passwordCellArrow;
    LabelOutlet m_keychainNote;
    KeychainWait m_keychainWait{m_keychainNote};
    bool m_isOpeningSheet = false;
    MenuOutlet m_alert;
};

} // namespace lodestar
