// SPDX-License-Identifier: Apache-2.0
#include "Simulator/SimulatorProcess.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/Corvels/CorvelListViewController.h"

namespace lodestar::testing
{
namespace
{

using ::testing::Property;

constexpr auto editorFile = "Shared/Views/Corvels/DeltaCorvelViewController";

class DeltaCorvelTest : public ViewsTest
{
protected:
    void open(CorvelRef corvel = nullptr)
    {
        editor = makeController<DeltaCorvelViewController>();
        editor->setCorvel(std::move(corvel));
        editor->loadViewIfNeeded();
    }
    std::array<FieldOutlet*, 4> fields() const
    {
        return {editor->nameField(), editor->addressField(), editor->usernameField(), editor->passwordField()};
    }
    void fill(const std::array<std::string, 4>& texts) const
    {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            fields()[i]->setText(QString::fromStdString(texts[i]));
        }
    }
    bool hasFailed() const { return editor->statusLabel()->state() == Role::State::Error; }
    static std::size_t insertedRecords() { return RESTHandler::sharedInstance().fetchCorvels().size(); }

    std::shared_ptr<DeltaCorvelViewController> editor;
};

TEST_F(DeltaCorvelTest, OpensEmptyToAddAndFilledToEditButSavesNoRegisteredConsole)
{
    open();
    EXPECT_EQ(editor->title(), "Add Corvel");
    EXPECT_TRUE(editor->creatingInstance() && !editor->hasCreated());
    EXPECT_TRUE(editor->nameField()->text().isEmpty());
    EXPECT_THAT(unnumberedLog(editorFile), ElementsAre("viewDidLoad: DeltaCorvelViewController instantiation"));

    const CorvelRef corvel = addCorvel("Harbour A", "a.example");
    open(corvel);
    EXPECT_EQ(editor->navigationBar()->text(), "Edit Corvel");
    EXPECT_FALSE(editor->creatingInstance());
    EXPECT_THAT(fields(),
                ElementsAre(Property(&FieldOutlet::text, "Harbour A"), Property(&FieldOutlet::text, "a.example"),
                            Property(&FieldOutlet::text, "oversight"), Property(&FieldOutlet::text, "secret")));

    // What was typed stays in the record, in memory.
    fill({"Renamed", "b.example", "u", "p"});
    editor->saveCorvel();
    EXPECT_EQ(editor->statusLabel()->text(), "Corvel has already been added");
    editor->cancel();
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow", "CloseDeltaCorvel"));
    EXPECT_EQ(corvel->name(), "Renamed");
    EXPECT_EQ(corvel->address(), "b.example");
    EXPECT_EQ(insertedRecords(), 1U);
}

TEST_F(DeltaCorvelTest, EveryFieldIsNeededAndTheFieldsComeBackAfterTwoSeconds)
{
    open();
    int endedEditing = 0;
    QObject::connect(editor.get(), &ViewController::endEditingRequested, [&endedEditing] { ++endedEditing; });
    const auto enabledFields = [this] { return std::ranges::count_if(fields(), &FieldOutlet::isEnabled); };
    const auto before = std::chrono::steady_clock::now();
    for (std::size_t empty = 0; empty < 4; ++empty) {
        fill({"n", "a", "u", "p"});
        fields()[empty]->setText("");
        editor->saveCorvel();
        EXPECT_EQ(editor->statusLabel()->text(), "Please enter all fields");
        EXPECT_TRUE(hasFailed());
        EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow"));
        EXPECT_EQ(enabledFields(), 0);
    }
    EXPECT_EQ(endedEditing, 4);
    EXPECT_EQ(insertedRecords(), 0U);
    // Blanks are text.
    fill({" ", " ", " ", " "});
    EXPECT_TRUE(editor->fieldsValidate());

    ASSERT_TRUE(runUntil([&] { return enabledFields() == 4; }));
    EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(1900));
    // One line to hide, however often it was shown.
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusShouldHide"));
}

TEST_F(DeltaCorvelTest, CancelDuringALogonAddsNothingAndAfterAFailedOneDeletesTheRecordThatSavesShare)
{
    addCorvel("Harbour A", "a.example");
    const auto startLogon = [this] {
        open();
        fill({"New", "127.9.9.9", "u", "p"}); // nobody listens there
        editor->saveCorvel();
    };
    startLogon();
    editor->cancel();
    const std::weak_ptr<ViewController> weak = editor;
    editor.reset();
    ASSERT_TRUE(runUntil([&] { return weak.expired(); }));
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow", "CloseDeltaCorvel"));
    EXPECT_EQ(RESTHandler::sharedInstance().corvelList().size(), 1U);
    EXPECT_EQ(insertedRecords(), 1U);

    startLogon();
    EXPECT_EQ(editor->statusLabel()->text(), "verifying...");
    EXPECT_EQ(editor->statusLabel()->state(), Role::State::None);
    EXPECT_TRUE(editor->isBusy());
    editor->saveCorvel(); // does nothing while the first is under way
    ASSERT_TRUE(runUntil([&] { return hasFailed(); }));
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow"));
    EXPECT_EQ(editor->statusLabel()->text(), "This address cannot be reached.");
    EXPECT_THAT(unnumberedLog(editorFile).back(), ::testing::MatchesRegex("saveCorvel:: Error: .+ - > saveCorvel:"));
    const CorvelRef record = editor->corvel();
    EXPECT_EQ(record->demo(), 0);
    EXPECT_EQ(insertedRecords(), 2U);
    EXPECT_EQ(RESTHandler::sharedInstance().corvelList().size(), 1U);

    fill({"New", "a.example", "u", "p"});
    editor->saveCorvel();
    EXPECT_EQ(editor->statusLabel()->text(), "Corvel has already been added");
    EXPECT_EQ(editor->corvel(), record);
    EXPECT_EQ(insertedRecords(), 2U);
    // Another screen's save stores it, too.
    StoreStack::shared().saveContext();
    editor->cancel();
    EXPECT_EQ(insertedRecords(), 1U);
    EXPECT_FALSE(record->isInserted());
    StoreStack::shared().saveContext();
    EXPECT_THAT(storedNames(), ElementsAre("Harbour A"));
}

/// Adding a real console, in the list's sheet or without a list.
class AddingTest : public DeltaCorvelTest
{
protected:
    void loadList()
    {
        list = makeController<CorvelListViewController>();
        list->loadViewIfNeeded();
    }
    std::shared_ptr<DeltaCorvelViewController> startAdding()
    {
        open();
        if (list) {
            list->addCorvel();
            editor = std::dynamic_pointer_cast<DeltaCorvelViewController>(list->semiModal()->sharedController());
        }
        fill({"Harbour A", fleet.address(0), fleet.user(), fleet.password()});
        QObject::connect(editor->statusLabel(), &LabelOutlet::textChanged,
                         [this, label = editor->statusLabel()] { statuses << label->text(); });
        editor->saveCorvel();
        return editor;
    }
    static const std::vector<CorvelRef>& consoles() { return RESTHandler::sharedInstance().corvelList(); }
    bool hasKey() const { return UserDefaults::standard().stringForKey(fleet.address(0)).has_value(); }

    simulator::SimulatorProcess fleet{{}};
    std::shared_ptr<CorvelListViewController> list;
    QStringList statuses; ///< what the editors have told
};

TEST_F(AddingTest, TheEditorAddsAConsoleOnceItHasEverything)
{
    loadList();
    EXPECT_TRUE(list->tableView()->isHidden());
    startAdding();
    ASSERT_TRUE(runUntil([&] { return list->semiModal() == nullptr; }));
    EXPECT_EQ(statuses, QStringList({"verifying...", "gathering data..."}));
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow", "StatusWillShow", "CloseDeltaCorvel"));
    ASSERT_EQ(consoles().size(), 1U);
    EXPECT_FALSE(list->tableView()->isHidden());
    EXPECT_EQ(list->tableView()->count(), 1);
    EXPECT_TRUE(consoles().front()->completedFetch);
    EXPECT_TRUE(hasKey());

    // The sheet can be pressed until it has slid away.
    editor->cancel();
    EXPECT_THAT(takeNotifications(), ElementsAre());
    EXPECT_TRUE(consoles().front()->isInserted());
    EXPECT_THAT(storedNames(), ElementsAre("Harbour A"));
}

TEST_F(AddingTest, AnEditorWhoseSheetIsGoneAddsItsConsoleBesideTheNextOne)
{
    fleet.setLatency(200);
    loadList();
    const CorvelRef first = startAdding()->corvel();
    ASSERT_TRUE(runUntil([&] { return first->isOnline.load(); }));
    list->dismissSemiModalView(); // as the lock does
    startAdding();
    ASSERT_TRUE(runUntil([] { return !consoles().empty(); }));
    EXPECT_NE(list->semiModal(), nullptr) << "nobody closes another's sheet";
    ASSERT_TRUE(runUntil([this] { return hasFailed(); }));
    EXPECT_EQ(editor->statusLabel()->text(), "Corvel has already been added");
    EXPECT_EQ(consoles().size(), 1U);
    EXPECT_EQ(list->tableView()->count(), 1);
    EXPECT_TRUE(hasKey());
    editor->cancel();
    EXPECT_EQ(list->semiModal(), nullptr);
}

TEST_F(AddingTest, CancellingWhileItGathersLeavesNoTraceAndTakesNothingFromTheNext)
{
    fleet.setLatency(200);
    const auto cancelWhileItGathers = [this] {
        startAdding();
        CorvelRef record = editor->corvel();
        EXPECT_TRUE(runUntil([&] { return record->isOnline.load(); }));
        editor->cancel();
        return record;
    };
    cancelWhileItGathers();
    ASSERT_TRUE(runUntil([this] { return !hasKey(); }));
    EXPECT_TRUE(consoles().empty());
    EXPECT_EQ(insertedRecords(), 0U);

    const CorvelRef former = cancelWhileItGathers();
    startAdding();
    ASSERT_TRUE(runUntil([] { return !consoles().empty(); }));
    EXPECT_NE(former->restData(), nullptr) << "the former fetch has ended";
    EXPECT_TRUE(hasKey());
}

} // namespace
} // namespace lodestar::testing
