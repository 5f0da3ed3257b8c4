// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetVerifyViewController.h"

#include "Kit/Core/ErrorText.h"
#include "Kit/Core/FileSaver.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/Toasts.h"
#include "Platform/NotificationCenter.h"
#include "Views/FleetSheet/FleetAgainViewController.h"
#include "Views/FleetSheet/FleetRowCell.h"
#include "Views/FleetSheet/FleetSheetText.h"

#include <QLocale>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;
using State = FleetImport::State;

/// From so many consoles on, the screen is drawn less often and its rows come a few at a time.
constexpr std::size_t many = 500;
/// Up to so many verified consoles are listed without being asked for.
constexpr std::size_t few = 50;
constexpr std::size_t rowsAtATime = 20;

QString number(std::size_t count)
{
    return QLocale().toString(static_cast<qulonglong>(count));
}

} // namespace

FleetVerifyViewController::FleetVerifyViewController() : m_tableView(*this, TableKind::Main)
{
    setTitle(tr("Verifying"));
    m_tableView.setRowHeight(44);
    m_tableView.setSeparatorInset(10, 15);
    m_limits.fill(rowsAtATime);
    m_addLabel.setHidden(true);
    m_addNote.setHidden(true);
    m_redraw.setSingleShot(true);
    connect(&m_redraw, &QTimer::timeout, this, &FleetVerifyViewController::redraw);
    connect(&m_second, &QTimer::timeout, this, &FleetVerifyViewController::showTexts);
}

FleetVerifyViewController::~FleetVerifyViewController()
{
    if (m_fleet && m_fleet->isRunning()) {
        m_fleet->stop();
        Toasts::shared().show(tr("Stopped. Nothing was added."));
    }
}

void FleetVerifyViewController::viewDidLoad()
{
    m_isSeenVerified.assign(m_fleet->rows().size(), false);
    m_redraw.setInterval(m_fleet->rows().size() > many ? 1s : 100ms);
    tryAgainWith({});
}

void FleetVerifyViewController::changed()
{
    if (!m_fleet->isRunning()) {
        m_redraw.stop();
        redraw();
    } else if (!m_redraw.isActive()) {
        m_redraw.start();
    }
}

void FleetVerifyViewController::redraw()
{
    m_isRunning = m_fleet->isRunning();
    if (!m_isRunning) {
        m_second.stop();
        // More than a few are closed until somebody wants to see them.
        m_limits[Verified] = m_fleet->verified() > few ? 0 : few;
    }
    for (std::size_t i = 0; i < m_isSeenVerified.size(); ++i) {
        if (!m_isSeenVerified[i] && m_fleet->rows()[i].state == State::Verified) {
            m_isSeenVerified[i] = true;
            m_verifiedLately.push_back(i);
        }
    }
    showTexts();
    announceQuarter();
    m_tableView.whenUntouched([this] {
        m_sections = sectionsNow();
        m_tableView.reloadData(); // by place: rows that come in above would push the card away
    });
}

void FleetVerifyViewController::showTexts()
{
    const std::size_t all = m_fleet->rows().size();
    const std::size_t tried = m_fleet->tried();
    const std::size_t good = m_fleet->verified();
    setTitle(m_isRunning ? tr("Verifying") : tr("Import Fleet Sheet"));
    //: %1 a number of so many
    m_figureLabel.setText(tr("%1 / %2").arg(number(m_isRunning ? tried : good), number(all)));
    m_statusLabel.setText(m_isRunning ? FleetSheetText::timeLeft(m_fleet->timeLeft())
                                      : tr("verified and ready to be added"));
    m_goodLabel.setText(number(good));
    m_badLabel.setText(number(tried - good));
    m_waitingLabel.setText(number(all - tried));
    m_addLabel.setText(tr("Add %Ln Consoles", nullptr, static_cast<int>(good)));
    m_addLabel.setHidden(m_isRunning || good == 0);
    m_addNote.setText(tr("All %Ln are added together, or none.", nullptr, static_cast<int>(good)));
    m_addNote.setHidden(m_isRunning || good < 2);
    m_progress = all == 0 ? 1 : static_cast<double>(tried) / static_cast<double>(all);
    Q_EMIT progressed();
}

void FleetVerifyViewController::announceQuarter()
{
    const QString all = number(m_fleet->rows().size());
    if (!m_isRunning) {
        m_announcement = tr("%1 of %2 verified and ready to be added").arg(number(m_fleet->verified()), all);
        Q_EMIT announced();
    } else if (const int quarter = static_cast<int>(m_progress * 4); quarter > m_quarter) {
        m_quarter = quarter;
        m_announcement = tr("%1 of %2 tried").arg(number(m_fleet->tried()), all);
        Q_EMIT announced();
    }
}

std::vector<FleetVerifyViewController::Section> FleetVerifyViewController::sectionsNow()
{
    std::array<Section, KindCount> kinds;
    std::vector<std::size_t> verifying;
    for (std::size_t i = 0; i < m_fleet->rows().size(); ++i) {
        switch (m_fleet->rows()[i].state) {
        case State::Waiting:
            break;
        case State::Verifying:
            verifying.push_back(i);
            break;
        case State::Gathering:
            kinds[Now].rows.push_back(i);
            break;
        case State::Verified:
            kinds[Verified].rows.push_back(i);
            break;
        default:
            kinds[NotVerified].rows.push_back(i);
        }
    }
    std::ranges::copy(verifying, std::back_inserter(kinds[Now].rows));
    if (m_isRunning) {
        // The newest first, so that something moves.
        kinds[Verified].rows.assign(m_verifiedLately.rbegin(), m_verifiedLately.rend());
    }
    std::vector<Section> sections;
    for (std::size_t kind = 0; kind < KindCount; ++kind) {
        if (!kinds.at(kind).rows.empty()) {
            kinds.at(kind).kind = static_cast<Kind>(kind);
            limit(kinds.at(kind));
            sections.push_back(std::move(kinds.at(kind)));
        }
    }
    return sections;
}

void FleetVerifyViewController::limit(Section& section) const
{
    section.total = section.rows.size();
    section.rows.resize(std::min(section.total, m_limits.at(section.kind)));
    if (m_isRunning) {
        return;
    }
    if (section.rows.size() < section.total) {
        section.actions.push_back(Action::ShowAll);
    }
    if (section.kind == NotVerified) {
        section.actions.push_back(Action::TryAgain);
        section.actions.push_back(Action::Save);
    }
}

int FleetVerifyViewController::numberOfSections(TableKind /*tableView*/) const
{
    return static_cast<int>(m_sections.size());
}

int FleetVerifyViewController::numberOfRowsInSection(TableKind /*tableView*/, int index) const
{
    return static_cast<int>(section(index).rows.size() + section(index).actions.size());
}

std::optional<QString> FleetVerifyViewController::titleForHeaderInSection(TableKind /*tableView*/, int index) const
{
    switch (section(index).kind) {
    case NotVerified:
        return m_isRunning ? tr("Not verified") : tr("Not added");
    case Now:
        return tr("Now");
    default:
        return tr("Verified");
    }
}

QString FleetVerifyViewController::detailForHeaderInSection(TableKind /*tableView*/, int index) const
{
    return number(section(index).total);
}

QVariant FleetVerifyViewController::cellForRowAtIndexPath(TableKind /*tableView*/, IndexPath path)
{
    const Section& of = section(path.section);
    const auto row = static_cast<std::size_t>(path.row);
    return QVariant::fromValue(row < of.rows.size()
                                   ? FleetRowCell::of(m_fleet->rows()[of.rows[row]])
                                   : FleetRowCell{.action = actionText(of, of.actions[row - of.rows.size()])});
}

QString FleetVerifyViewController::actionText(const Section& section, Action action) const
{
    switch (action) {
    case Action::ShowAll:
        return m_fleet->rows().size() > many ? tr("Show %1 More").arg(number(rowsAtATime))
                                             : tr("Show all %1").arg(number(section.total));
    case Action::TryAgain:
        return tr("Try These %Ln Again", nullptr, static_cast<int>(section.total));
    case Action::Save:
        break;
    }
    return tr("Save Them as a Sheet", nullptr, static_cast<int>(section.total));
}

void FleetVerifyViewController::didSelectRowAtIndexPath(TableKind /*tableView*/, IndexPath path)
{
    const Section& of = section(path.section);
    const auto row = static_cast<std::size_t>(path.row);
    if (row < of.rows.size()) {
        return;
    }
    m_tableView.deselectRow(path);
    switch (of.actions[row - of.rows.size()]) {
    case Action::ShowAll:
        m_limits.at(of.kind) = m_fleet->rows().size() > many ? of.rows.size() + rowsAtATime : of.total;
        m_sections = sectionsNow();
        m_tableView.reloadData();
        break;
    case Action::TryAgain:
        tryAgain();
        break;
    case Action::Save:
        FileSaver::save(QStringLiteral("fleet-not-added.csv"),
                        [fleet = m_fleet] { return QByteArray::fromStdString(csvOf(fleet->notVerified())); });
    }
}

void FleetVerifyViewController::tryAgain()
{
    std::vector<SheetRow> refused;
    for (const FleetImport::Row& row : m_fleet->rows()) {
        if (row.state == State::Refused) {
            refused.push_back(row.sheet);
        }
    }
    if (refused.empty()) {
        tryAgainWith({});
        return;
    }
    FleetAgainViewController::Host host{
        .again =
            [screen = QPointer(this)](const std::map<std::string, std::string>& passwords) {
                if (screen) {
                    screen->tryAgainWith(passwords);
                }
            },
        .leave =
            [screen = QPointer(this)] {
                if (screen) {
                    screen->dismissSemiModalView();
                }
            }};
    auto sheet = makeController<FleetAgainViewController>(refused, std::move(host));
    const double height = sheet->height();
    presentSemiViewController(std::move(sheet), {.pushParentBack = false, .height = height});
}

void FleetVerifyViewController::tryAgainWith(const std::map<std::string, std::string>& passwords)
{
    m_quarter = 0;
    m_limits.fill(rowsAtATime);
    m_second.start(1s);
    // The import may outlive the screen by what it is just doing.
    m_fleet->verifyAgain(passwords, [screen = QPointer(this)] {
        if (screen) {
            screen->changed();
        }
    });
    redraw();
}

void FleetVerifyViewController::leave()
{
    if (m_fleet->isRunning()) {
        m_fleet->stop();
        Toasts::shared().show(tr("Stopped. Nothing was added."));
    }
    goBack();
}

void FleetVerifyViewController::add()
{
    if (m_isRunning || m_isAdded) {
        return;
    }
    const std::size_t before = registeredAddresses().size();
    if (const Result<void> added = m_fleet->add(); !added) {
        m_alert.present(tr("Nothing Was Added"), errorText(added.error()), {{.title = tr("OK")}}, 0, nullptr);
        return;
    }
    m_isAdded = true;
    // Fewer than were verified when somebody added one of them meanwhile.
    const std::size_t good = registeredAddresses().size() - before;
    NotificationCenter::defaultCenter().postNotification("FleetWasAdded");
    Toasts::shared().show(tr("Added %Ln consoles", nullptr, static_cast<int>(good)));
    if (NavigationController* const stack = navigationController()) {
        stack->popToRoot();
    }
}

} // namespace lodestar
