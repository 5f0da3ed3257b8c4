// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSheet.h"
#include "Kit/Core/Menu.h"
#include "Kit/Core/Outlets.h"
#include "Kit/Core/SpansColumns.h"
#include "Kit/Core/Table.h"
#include "Kit/Core/ViewController.h"

#include <QTimer>

#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace lodestar
{

/// Tries the consoles of a sheet, tells how far it is, and then adds all good ones or none. Leaving the screen in any
/// way stops the trying and adds nothing. Main thread.
class FleetVerifyViewController : public lodestar::ViewController, public TableDataSource, public SpansColumns
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(lodestar::TableOutlet* tableView READ tableView CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* figureLabel READ figureLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* statusLabel READ statusLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* goodLabel READ goodLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* badLabel READ badLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* waitingLabel READ waitingLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* addLabel READ addLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* addNote READ addNote CONSTANT)
    Q_PROPERTY(lodestar::MenuOutlet* alert READ alert CONSTANT)
    Q_PROPERTY(bool running READ isRunning NOTIFY progressed)
    Q_PROPERTY(double progress READ progress NOTIFY progressed)
    Q_PROPERTY(QString announcement READ announcement NOTIFY announced)

public:
    FleetVerifyViewController();
    ~FleetVerifyViewController() override;

    void setImport(std::shared_ptr<FleetImport> fleet) { m_fleet = std::move(fleet); }

    TableOutlet* tableView() { return &m_tableView; }
    /// "31 / 48": tried, or once all are, verified.
    LabelOutlet* figureLabel() { return &m_figureLabel; }
    LabelOutlet* statusLabel() { return &m_statusLabel; }
    LabelOutlet* goodLabel() { return &m_goodLabel; }
    LabelOutlet* badLabel() { return &m_badLabel; }
    LabelOutlet* waitingLabel() { return &m_waitingLabel; }
    /// Hidden while there is nothing to add.
    LabelOutlet* addLabel() { return &m_addLabel; }
    LabelOutlet* addNote() { return &m_addNote; }
    MenuOutlet* alert() { return &m_alert; }
    bool isRunning() const { return m_isRunning; }
    /// From 0 to 1.
    double progress() const { return m_progress; }
    /// What a screen reader says at each quarter and at the end.
    const QString& announcement() const { return m_announcement; }

    int numberOfSections(TableKind tableView) const override;
    int numberOfRowsInSection(TableKind tableView, int section) const override;
    std::optional<QString> titleForHeaderInSection(TableKind tableView, int section) const override;
    QString detailForHeaderInSection(TableKind tableView, int section) const override;
    QVariant cellForRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;
    void didSelectRowAtIndexPath(TableKind tableView, IndexPath indexPath) override;

    /// Stop or Cancel.
    Q_INVOKABLE void leave();
    Q_INVOKABLE void add();

Q_SIGNALS:
    void progressed();
    void announced();

protected:
    void viewDidLoad() override;

private:
    enum Kind : std::size_t { NotVerified, Now, Verified, KindCount };
    enum class Action { ShowAll, TryAgain, Save };
    struct Section {
        Kind kind = NotVerified;
        std::size_t total = 0;
        std::vector<std::size_t> rows; ///< those that are shown, as indexes of the import's rows
        std::vector<Action> actions;   ///< below them
    };

    void changed();
    void redraw();
    void showTexts();
    void announceQuarter();
    std::vector<Section> sectionsNow();
    void limit(Section& section) const;
    const Section& section(int index) const { return m_sections[static_cast<std::size_t>(index)]; }
    QString actionText(const Section& section, Action action) const;
    void tryAgain();
    void tryAgainWith(const std::map<std::string, std::string>& passwords);

    std::shared_ptr<FleetImport> m_fleet;
    bool m_isRunning = false;
    bool m_isAdded = false;
    double m_progress = 0;
    int m_quarter = 0; ///< that was told last
    QString m_announcement;
    std::vector<Section> m_sections;
    std::vector<std::size_t> m_verifiedLately; ///< in the order in which it was seen
    std::vector<bool> m_isSeenVerified;        ///< by row
    std::array<std::size_t, KindCount> m_limits{};
    QTimer m_redraw;
    QTimer m_second;

    TableOutlet m_tableView;
    LabelOutlet m_figureLabel;
    LabelOutlet m_statusLabel;
    LabelOutlet m_goodLabel;
    LabelOutlet m_badLabel;
    LabelOutlet m_waitingLabel;
    LabelOutlet m_addLabel;
    LabelOutlet m_addNote;
    MenuOutlet m_alert;
};

} // namespace lodestar
