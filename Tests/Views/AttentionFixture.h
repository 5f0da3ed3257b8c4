// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Toasts.h"
#include "Platform/URLLoading/URLError.h"
#include "Tests/Views/ListFixture.h"
#include "Views/Attention/AttentionViewController.h"
#include "Views/Attention/FindingCell.h"
#include "Views/Common/AgeClock.h"

#include <memory>
#include <string>
#include <vector>

namespace lodestar::testing
{

using namespace std::chrono_literals;

/// Thursday, 12 March 2026, 09:43.
inline const WallTime now{std::chrono::seconds(1773308580)};

/// Without the marks that keep names' directions apart.
inline std::string plain(QString text)
{
    return text.remove(u'\u2068').remove(u'\u2069').toStdString();
}

/// The Attention tab over findings that a test writes itself.
class AttentionTest : public ListTest
{
protected:
    AttentionTest()
    {
        AgeClock::setNow(now);
        registerScenes(Scenes::managedSystemInfo, Scenes::viosDetail, Scenes::logicalPartitionsDetail,
                       Scenes::serviceableEventsDetail, Scenes::resourceGroupsView, Scenes::connectionView,
                       Scenes::watchView);
        Attention::shared().adopt(std::make_shared<Attention::Picture>());
        harbour = addCorvel("Harbour B", "b.example");
        ridgeway = addCorvel("Ridgeway", "r.example");
    }
    ~AttentionTest() override
    {
        navigation.reset();
        tab.reset();
        Toasts::shared().dismiss();
        Attention::shared().adopt(std::make_shared<Attention::Picture>());
        AgeClock::setNow({});
    }

    /// Adds a finding of the console, which began that long ago.
    Finding& add(FindingRank rank, FindingSubject subject, std::string_view type, const std::string& name,
                 const CorvelRef& corvel, std::chrono::seconds ago = 6h + 31min)
    {
        Finding& finding = picture.findings.list.emplace_back();
        finding.rank = rank;
        finding.subject = subject;
        finding.corvel = corvel;
        finding.console = corvel->name().value();
        finding.name = name;
        finding.since = Since{now - ago, true};
        if (!type.empty()) {
            finding.object = {std::string(type), name};
            finding.element = parse("<x name='" + name + "'/>");
        }
        return finding;
    }
    Finding& addStopped(const std::string& name, const CorvelRef& corvel)
    {
        Finding& stopped =
            add(FindingRank::Stopped, FindingSubject::Partition, ObjectType::LogicalPartition, name, corvel, 2min);
        stopped.ranUntil = now - 17min;
        return stopped;
    }
    void addOffline(const CorvelRef& corvel)
    {
        add(FindingRank::ConsoleOffline, FindingSubject::Console, "", corvel->name().value(), corvel).error =
            Error{std::string(urlErrorDomain), -1004, "x", {}, {}};
    }
    void addSystem(const std::string& name, const CorvelRef& corvel)
    {
        add(FindingRank::SystemError, FindingSubject::System, ObjectType::ManagedSystem, name, corvel).state = "error";
    }
    /// Every rank, one row each but for the events.
    void addAll()
    {
        Finding& lit =
            add(FindingRank::SystemErrorLit, FindingSubject::System, ObjectType::ManagedSystem, "helios-04", harbour);
        lit.state = "incomplete";
        addSystem("helios-03", harbour);
        picture.findings.list.back().referenceCode = "X417-2208";
        add(FindingRank::IOServerError, FindingSubject::IOServer, ObjectType::VirtualIOServer, "vios-2b", harbour);
        add(FindingRank::PartitionError, FindingSubject::Partition, ObjectType::LogicalPartition,
            "<b>ledger</b>\n\u202E", harbour, 20h);
        addOffline(ridgeway);
        add(FindingRank::FeedsMissing, FindingSubject::Console, "", "Harbour B", harbour, 2min).missing = {
            ObjectType::LogicalPartition, ObjectType::Group};
        addStopped("batch-night-2", harbour);
        add(FindingRank::LEDLit, FindingSubject::System, ObjectType::ManagedSystem, "helios-02", harbour, 70h).state =
            "operating";
        Finding& group = add(FindingRank::GroupError, FindingSubject::Group, ObjectType::Group, "Payroll", harbour);
        group.groupColor = "Green";
        group.membersInError = 1;
        group.members = 16;
        for (int number = 1042; number > 1037; --number) {
            Finding& event = add(FindingRank::OpenEvent, FindingSubject::Event, ObjectType::ServiceableEvent,
                                 "Fan " + std::to_string(number), harbour);
            event.eventNumber = std::to_string(number);
            event.referenceCode = "X211-0040";
            event.callsHome = number == 1042;
            event.duplicates = number == 1041 ? 5 : 0;
        }
    }
    /// Shows what was added; by default all consoles answered in full two minutes ago.
    void show()
    {
        picture.consoles.clear();
        for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
            picture.consoles.push_back({corvel, corvel->name().value(), corvel->address().value(), {}, {}, {}});
        }
        picture.findings.needAttention = picture.findings.openEvents = 0;
        for (const Finding& finding : picture.findings.list) {
            ++(finding.rank == FindingRank::OpenEvent ? picture.findings.openEvents : picture.findings.needAttention);
        }
        Attention::shared().adopt(std::make_shared<Attention::Picture>(picture));
        drain();
    }
    void everyoneAnswered()
    {
        picture.fleet = {};
        picture.fleet.consoles = picture.fleet.answeredInFull = RESTHandler::sharedInstance().corvelList().size();
        picture.fleet.from = picture.fleet.until = now - 2min;
    }
    void open()
    {
        tab = push(makeController<AttentionViewController>());
        screen = tab->now();
    }
    /// The rows as "Errors 2" and "  name: sentence | age | console".
    std::vector<std::string> rows() const
    {
        std::vector<std::string> lines;
        for (int section = 0; section < screen->numberOfSections(TableKind::Main); ++section) {
            lines.push_back(plain(*screen->titleForHeaderInSection(TableKind::Main, section) + " " +
                                  screen->detailForHeaderInSection(TableKind::Main, section)));
            for (int row = 0; row < screen->numberOfRowsInSection(TableKind::Main, section); ++row) {
                const auto cell = cellAt<FindingCell>(*screen, row, TableKind::Main, section);
                lines.push_back("  " + plain(cell.more.isEmpty() ? cell.name + ": " + cell.sentence + " | " + cell.age +
                                                                       " | " + cell.console
                                                                 : cell.more));
            }
            const QString foot = screen->footerForSection(TableKind::Main, section);
            if (!foot.isEmpty()) {
                lines.push_back(plain(foot));
            }
        }
        return lines;
    }
    FindingCell cell(int section, int row) const { return cellAt<FindingCell>(*screen, row, TableKind::Main, section); }
    /// What a tap on the row opened, and its name.
    std::string tap(int section, int row)
    {
        openedScene.clear();
        screen->didSelectRowAtIndexPath(TableKind::Main, {section, row});
        if (openedScene.empty()) {
            return "";
        }
        goBack();
        const auto* const element = std::any_cast<XMLElement>(&openedWith);
        return openedScene + " " +
               (element != nullptr ? element->attribute("name").value_or("") : input<CorvelRef>()->name().value());
    }

    Attention::Picture picture;
    CorvelRef harbour;
    CorvelRef ridgeway;
    std::shared_ptr<AttentionViewController> tab;
    AttentionNowController* screen = nullptr;
};

} // namespace lodestar::testing
