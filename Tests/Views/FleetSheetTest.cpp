// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/FileSaver.h"
#include "Kit/Core/Toasts.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/FleetSheet/FleetAgainViewController.h"
#include "Views/FleetSheet/FleetChooseViewController.h"
#include "Views/FleetSheet/FleetRowCell.h"
#include "Views/FleetSheet/FleetSheetViewController.h"
#include "Views/FleetSheet/FleetUnusableViewController.h"
#include "Views/FleetSheet/FleetVerifyViewController.h"

#include <QClipboard>
#include <QGuiApplication>

namespace lodestar::testing
{
namespace
{

using ::testing::IsEmpty;

class FleetSheetScreensTest : public ViewsTest
{
protected:
    FleetSheetScreensTest()
    {
        const auto add = [](auto scene, auto give) {
            Storyboard::main().registerScene(scene, std::move(give), QUrl());
        };
        add(Scenes::fleetSheetView, [](NoInput) { return makeController<FleetSheetViewController>(); });
        add(Scenes::fleetChooseView, [](FleetFileInput file) {
            auto screen = makeController<FleetChooseViewController>();
            screen->setFile(std::move(file));
            return screen;
        });
        add(Scenes::fleetUnusableView, [](std::shared_ptr<const FleetSheet> sheet) {
            auto screen = makeController<FleetUnusableViewController>();
            screen->setSheet(std::move(sheet));
            return screen;
        });
        add(Scenes::fleetVerifyView, [](std::shared_ptr<FleetImport> checks) {
            auto screen = makeController<FleetVerifyViewController>();
            screen->setImport(std::move(checks));
            return screen;
        });
        list = makeController<CorvelListViewController>();
        stack = makeController<NavigationController>(list);
        stack->beginAppearance();
        FileSaver::answerWith([this](const QString& /*suggested*/) { return path; });
    }
    ~FleetSheetScreensTest() override
    {
        FileSaver::answerWith(nullptr);
        stack->endAppearance();
        Toasts::shared().dismiss();
    }

    template <typename Screen>
    Screen& top() const
    {
        auto* const screen = qobject_cast<Screen*>(stack->topViewController());
        if (screen == nullptr) {
            throw std::runtime_error("another screen is on top");
        }
        return *screen;
    }
    /// Opens the file as a sheet and waits for what is told of it.
    FleetChooseViewController& choose(const std::string& text)
    {
        std::ofstream(path.toStdString(), std::ios::binary) << text;
        stack->popToRoot();
        list->openFleetSheet();
        top<FleetSheetViewController>().importSheet();
        auto& screen = top<FleetChooseViewController>();
        runUntil([&screen] { return !screen.foundLabel()->text().isEmpty(); });
        return screen;
    }
    /// The table as one line a header, with its count, and a row.
    static std::vector<std::string> rowsOf(TableOutlet& table)
    {
        std::vector<std::string> lines;
        for (int i = 0; i < table.count(); ++i) {
            if (table.isHeaderAt(i)) {
                lines.push_back((table.data(table.index(i), TableOutlet::HeaderTitle).toString() + " " +
                                 table.data(table.index(i), TableOutlet::HeaderDetail).toString())
                                    .toStdString());
            } else {
                lines.push_back(table.configureCell(i).value<FleetRowCell>().accessibleText().toStdString());
            }
        }
        return lines;
    }
    std::string console(int index) const
    {
        return fmt::format("C{0},{1},{2}\n", index, fleet.address(index), fleet.user());
    }

    simulator::SimulatorProcess fleet{{.consoles = 4, .systems = 1, .faults = {"refuseLogon:1", "refuseFeed:Group:2"}}};
    const ScratchFolder files;
    QString path = QString::fromStdString(files.file("fleet-2026.csv"));
    std::shared_ptr<CorvelListViewController> list;
    std::shared_ptr<NavigationController> stack;
};

TEST_F(FleetSheetScreensTest, ASheetIsToldTriedAndAddedAtOnce)
{
    auto& screen =
        choose("name,address,user,rack,password\n" + console(0) + console(1) + console(2) + "Gone,127.255.255.254," +
               fleet.user() + "\nX,,ops\nY,y.example\nZ," + fleet.address(0) + ",ops\nW,http://w,ops\n");
    EXPECT_EQ(screen.fileLabel()->text(), "fleet-2026.csv");
    EXPECT_EQ(screen.rowsLabel()->text(), "8 rows");
    EXPECT_EQ(screen.foundLabel()->text(), "Name, address and user were found in its first line.");
    EXPECT_EQ(screen.notReadLabel()->text(),
              "Passwords are never read from a sheet: “password” is left out.\nNot used: “rack”.");
    EXPECT_EQ(screen.newLabel()->text(), "4");
    EXPECT_EQ(screen.unusableLabel()->text(), "4");
    screen.openUnusable();
    EXPECT_THAT(rowsOf(*top<FleetUnusableViewController>().tableView()),
                ElementsAre("Row 6: no address, X", "Row 7: no user, y.example, Y",
                            "Row 8: the same address as row 2, " + fleet.address(0) + ", Z",
                            "Row 9: not an address, http://w, W"));
    top<FleetUnusableViewController>().share()->copy();
    EXPECT_EQ(
        QGuiApplication::clipboard()->text(),
        QString::fromStdString("name,address,user,line,problem\r\nX,,ops,6,no_address\r\nY,y.example,,7,no_user\r\nZ," +
                               fleet.address(0) + ",ops,8,same_address\r\nW,http://w,ops,9,bad_address\r\n"));
    stack->pop();
    EXPECT_EQ(screen.passwords()->count(), 1);
    EXPECT_EQ(screen.passwords()->at(0)->consoles(), "4 consoles");
    EXPECT_EQ(screen.verifyLabel()->text(), "Verify 4 Consoles");
    EXPECT_FALSE(screen.verifyLabel()->isEnabled());
    screen.verify();
    EXPECT_EQ(stack->topViewController(), &screen) << "nothing is tried without a password";

    screen.passwords()->at(0)->field()->setText(QString::fromStdString(fleet.password()));
    EXPECT_TRUE(screen.verifyLabel()->isEnabled());
    screen.verify();
    auto& verify = top<FleetVerifyViewController>();
    EXPECT_TRUE(verify.isRunning());
    EXPECT_EQ(verify.title(), "Verifying");
    EXPECT_TRUE(verify.addLabel()->isHidden());
    ASSERT_TRUE(runUntil([&] { return !verify.isRunning(); }));
    EXPECT_EQ(verify.figureLabel()->text(), "2 / 4");
    EXPECT_EQ(verify.statusLabel()->text(), "verified and ready to be added");
    EXPECT_EQ(verify.announcement(), "2 of 4 verified and ready to be added");
    const auto version = rowsOf(*verify.tableView()).at(6);
    EXPECT_THAT(rowsOf(*verify.tableView()),
                ElementsAre("Not added 2", "C1, refused, Wrong user or password, " + fleet.address(1),
                            "Gone, no answer, Connection refused, 127.255.255.254", "Try These 2 Again",
                            "Save Them as a Sheet", "Verified 2", version,
                            "C2, verified, 1 of 6 missing, " + fleet.address(2)));
    EXPECT_THAT(version, AllOf(StartsWith("C0, verified, V"), EndsWith(fleet.address(0))));
    EXPECT_THAT(RESTHandler::sharedInstance().corvelList(), IsEmpty());

    path = QString::fromStdString(files.file("rest.csv"));
    verify.tableView()->select(4);
    EXPECT_THAT(files.read("rest.csv"), AllOf(StartsWith("name,address,user\r\nC1,"), HasSubstr("Gone"),
                                              ::testing::Not(HasSubstr(fleet.password()))));

    // Those that were refused are asked for again.
    fleet.clearFault("refuseLogon:1");
    verify.tableView()->select(3);
    ASSERT_NE(verify.semiModal(), nullptr);
    auto* const again = qobject_cast<FleetAgainViewController*>(verify.semiModal()->controller());
    EXPECT_EQ(again->passwords()->at(0)->consoles(), "1 console");
    again->verify();
    EXPECT_EQ(verify.semiModal(), nullptr);
    ASSERT_TRUE(runUntil([&] { return !verify.isRunning(); }));
    EXPECT_EQ(verify.addLabel()->text(), "Add 3 Consoles");
    EXPECT_EQ(verify.addNote()->text(), "All 3 are added together, or none.");
    EXPECT_TRUE(list->tableView()->isHidden());
    verify.add();
    EXPECT_EQ(stack->depth(), 1);
    EXPECT_EQ(Toasts::shared().text(), "Added 3 consoles");
    EXPECT_FALSE(list->tableView()->isHidden());
    EXPECT_EQ(list->tableView()->rows(), 3);
    EXPECT_EQ(list->countLabel()->text(), "3 consoles");

    // The same sheet again: what is registered is left alone. And the fleet as a sheet.
    EXPECT_EQ(choose("name,address,user\n" + console(0) + console(3)).registeredLabel()->text(), "1");
    stack->popToRoot();
    list->openFleetSheet();
    EXPECT_EQ(top<FleetSheetViewController>().exportLabel()->text(), "Export 3 Consoles");
    top<FleetSheetViewController>().exportSheet();
    EXPECT_EQ(readFleetSheet(files.read("rest.csv"), {}).value().rows.size(), 3U);
    EXPECT_THAT(storedNames(), ElementsAre("C0", "C1", "C2"));
}

TEST_F(FleetSheetScreensTest, WhatIsNoSheetIsSaidAndLeavingAddsNothing)
{
    const auto refusal = [this](const std::string& text) {
        auto& screen = choose(text);
        EXPECT_TRUE(screen.sheetCard()->isHidden());
        EXPECT_TRUE(screen.verifyLabel()->isHidden());
        EXPECT_EQ(screen.foundLabel()->state(), Role::State::Alert);
        return screen.foundLabel()->text().toStdString();
    };
    EXPECT_EQ(refusal("C0,a.example,ops\n"), "There is no first line with name, address and user.");
    EXPECT_EQ(refusal(std::string("\x7f"
                                  "ELF\0\1",
                                  6)),
              "This is not a CSV file.");
    EXPECT_EQ(refusal("name,address,user\n\"open"), "This is not a CSV file.");
    std::filesystem::remove(path.toStdString());
    top<FleetChooseViewController>().chooseAnother();
    ASSERT_TRUE(
        runUntil([this] { return top<FleetChooseViewController>().foundLabel()->text() == "There is no such file."; }));

    std::string many = "name,address,user\n";
    for (int i = 0; i < 21; ++i) {
        many += fmt::format("C,c{}.example,ops{}\n", i, i);
    }
    auto& large = choose(many);
    const auto type = [&large] {
        for (int i = 0; i < large.passwords()->count(); ++i) {
            large.passwords()->at(i)->field()->setText(QStringLiteral("secret"));
        }
        return large.verifyLabel()->isEnabled();
    };
    EXPECT_FALSE(type()) << "the last user has no field yet";
    large.passwords()->showMore();
    EXPECT_TRUE(type());
    EXPECT_FALSE(large.passwords()->hasMore());

    fleet.setFault("stallFeed:Group");
    const auto start = [this] {
        auto& screen = choose("name,address,user\n" + console(0) + console(2));
        screen.passwords()->at(0)->field()->setText(QString::fromStdString(fleet.password()));
        Toasts::shared().dismiss();
        screen.verify();
        auto& verify = top<FleetVerifyViewController>();
        runUntil([&] {
            QCoreApplication::processEvents(); // the screen is drawn by a timer
            const std::vector<std::string> rows = rowsOf(*verify.tableView());
            return rows.size() == 3 && rows[1] == "C0, gathering, " + fleet.address(0);
        });
        EXPECT_THAT(rowsOf(*verify.tableView()), ::testing::Contains("Now 2"));
        return &verify;
    };
    start()->leave();
    EXPECT_EQ(Toasts::shared().text(), "Stopped. Nothing was added.");
    EXPECT_EQ(top<FleetChooseViewController>().passwords()->count(), 1) << "one may go on from here";
    start();
    Toasts::shared().dismiss();
    stack->pop(); // by Escape or a swipe
    drain();
    EXPECT_TRUE(Toasts::shared().isPresented());
    EXPECT_THAT(RESTHandler::sharedInstance().fetchCorvels(), IsEmpty());
    EXPECT_FALSE(UserDefaults::standard().stringForKey(fleet.address(0)));

    // An empty list offers the demonstration.
    stack->popToRoot();
    list->lookAtDemo();
    EXPECT_FALSE(list->tableView()->isHidden());
    EXPECT_THAT(storedNames(), ElementsAre("Demo Corvel"));
    EXPECT_EQ(list->countLabel()->text(), "") << "a sheet of the demonstration alone has no row";
}

} // namespace
} // namespace lodestar::testing
