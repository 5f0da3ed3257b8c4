// SPDX-License-Identifier: Apache-2.0
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Platform/UserDefaults.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/Corvels/DeltaCorvelViewController.h"

namespace lodestar::testing
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto editorFile = "Shared/Views/Corvels/DeltaCorvelViewController";
/// Nobody listens there.
constexpr auto nobody = "127.9.9.9";

class DeltaCorvelTest : public ViewsTest
{
protected:
    void TearDown() override
    {
        editor.reset();
        ViewsTest::TearDown();
    }
    void open(CorvelRef corvel = nullptr)
    {
        editor = makeController<DeltaCorvelViewController>();
        editor->setCorvel(std::move(corvel));
        editor->loadViewIfNeeded();
    }
    void fill(const char* name, const char* address, const char* username, const char* password) const
    {
        editor->nameField()->setText(name);
        editor->addressField()->setText(address);
        editor->usernameField()->setText(username);
        editor->passwordField()->setText(password);
    }
    bool fieldsEnabled() const
    {
        const bool enabled = editor->nameField()->isEnabled();
        for (const FieldOutlet* field : {editor->addressField(), editor->usernameField(), editor->passwordField()}) {
            EXPECT_EQ(field->isEnabled(), enabled);
        }
        return enabled;
    }
    bool hasFailed() const { return editor->statusLabel()->state() == Role::State::Error; }
    static std::size_t insertedRecords()
    {
        return StoreStack::shared().managedObjectContext().fetchAll(Corvel::entityName).value().size();
    }

    std::shared_ptr<DeltaCorvelViewController> editor;
};

TEST_F(DeltaCorvelTest, OpensEmptyToAddAndFilledToEdit)
{
    open();
    EXPECT_EQ(editor->title(), "Add Corvel");
    EXPECT_TRUE(editor->creatingInstance());
    EXPECT_FALSE(editor->hasCreated());
    EXPECT_TRUE(editor->nameField()->text().isEmpty());
    EXPECT_THAT(messages(editorFile), ElementsAre("DeltaCorvelViewController instantiation"));
    EXPECT_EQ(lines(editorFile).front().method, "-[DeltaCorvelViewController viewDidLoad]");

    open(addCorvel("Harbour A", "a.example"));
    EXPECT_EQ(editor->title(), "Edit Corvel");
    EXPECT_EQ(editor->navigationBar()->text(), "Edit Corvel");
    EXPECT_FALSE(editor->creatingInstance());
    EXPECT_EQ(editor->nameField()->text(), "Harbour A");
    EXPECT_EQ(editor->addressField()->text(), "a.example");
    EXPECT_EQ(editor->usernameField()->text(), "oversight");
    EXPECT_EQ(editor->passwordField()->text(), "secret");

    int resigned = 0;
    QObject::connect(editor->nameField(), &FieldOutlet::resignRequested, [&resigned] { ++resigned; });
    EXPECT_TRUE(editor->textFieldShouldReturn(editor->nameField()));
    EXPECT_EQ(resigned, 1);
}

TEST_F(DeltaCorvelTest, EveryFieldIsNeededAndTheFieldsComeBackAfterTwoSeconds)
{
    open();
    int endedEditing = 0;
    QObject::connect(editor.get(), &ViewController::endEditingRequested, [&endedEditing] { ++endedEditing; });
    const std::vector<std::array<const char*, 4>> incomplete = {
        {"", "a", "u", "p"}, {"n", "", "u", "p"}, {"n", "a", "", "p"}, {"n", "a", "u", ""}};
    auto before = std::chrono::steady_clock::now();
    for (const auto& [name, address, username, password] : incomplete) {
        before = std::chrono::steady_clock::now();
        fill(name, address, username, password);
        editor->saveCorvel();
        EXPECT_EQ(editor->statusLabel()->text(), "Please enter all fields");
        EXPECT_EQ(editor->statusLabel()->state(), Role::State::Error);
        EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow"));
        EXPECT_FALSE(fieldsEnabled());
    }
    EXPECT_EQ(endedEditing, 4);
    EXPECT_FALSE(editor->hasCreated());
    EXPECT_EQ(insertedRecords(), 0U);
    // Blanks are text.
    fill(" ", " ", " ", " ");
    EXPECT_TRUE(editor->fieldsValidate());

    ASSERT_TRUE(runUntil([&] { return fieldsEnabled(); }));
    EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(1900));
    // One line to hide, however often it was shown; its text stays.
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusShouldHide"));
    EXPECT_EQ(editor->statusLabel()->text(), "Please enter all fields");
}

TEST_F(DeltaCorvelTest, ARegisteredConsoleCannotBeSavedAndKeepsItsChangesInMemory)
{
    const CorvelRef corvel = addCorvel("Harbour A", "a.example");
    open(corvel);
    fill("Renamed", "b.example", "u", "p");
    editor->saveCorvel();
    EXPECT_EQ(editor->statusLabel()->text(), "Corvel has already been added");
    editor->cancel();
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow", "CloseDeltaCorvel"));
    EXPECT_EQ(corvel->name(), "Renamed");
    EXPECT_EQ(corvel->address(), "b.example");
    EXPECT_EQ(insertedRecords(), 1U);
}

TEST_F(DeltaCorvelTest, AFailedLogonLeavesARecordThatTheNextSaveReusesAndCancelDeletes)
{
    addCorvel("Harbour A", "a.example");
    open();
    fill("New", nobody, "u", "p");
    editor->saveCorvel();
    EXPECT_EQ(editor->statusLabel()->text(), "verifying...");
    EXPECT_EQ(editor->statusLabel()->state(), Role::State::None);
    EXPECT_TRUE(editor->isBusy());
    editor->saveCorvel(); // does nothing while the first is under way
    ASSERT_TRUE(runUntil([&] { return hasFailed(); }));
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow"));
    EXPECT_EQ(editor->statusLabel()->text(), "This address cannot be reached.");
    const LoggedLine failure = lines(editorFile).back();
    EXPECT_EQ(failure.method, "-[DeltaCorvelViewController saveCorvel:]");
    EXPECT_THAT(failure.message, ::testing::MatchesRegex("Error: .+ - > saveCorvel:"));
    EXPECT_TRUE(editor->hasCreated());
    const CorvelRef record = editor->corvel();
    EXPECT_EQ(record->demo(), 0);
    EXPECT_EQ(insertedRecords(), 2U);
    EXPECT_EQ(RESTHandler::sharedInstance().corvelList().size(), 1U);

    fill("New", "a.example", "u", "p");
    editor->saveCorvel();
    EXPECT_EQ(editor->statusLabel()->text(), "Corvel has already been added");
    EXPECT_EQ(editor->corvel(), record);
    EXPECT_EQ(insertedRecords(), 2U);

    editor->cancel();
    EXPECT_EQ(insertedRecords(), 1U);
    EXPECT_FALSE(record->isInserted());
}

TEST_F(DeltaCorvelTest, ALeftOverRecordReachesTheStoreWithTheNextSave)
{
    open();
    fill("Left over", nobody, "u", "p");
    editor->saveCorvel();
    ASSERT_TRUE(runUntil([&] { return hasFailed(); }));
    StoreStack::shared().saveContext();
    EXPECT_THAT(storedNames(), ElementsAre("Left over"));
}

TEST_F(DeltaCorvelTest, CancelDuringTheLogonAddsNothingAndShowsNothing)
{
    open();
    fill("New", nobody, "u", "p");
    editor->saveCorvel();
    editor->cancel();
    const std::weak_ptr<ViewController> weak = editor;
    editor.reset();
    ASSERT_TRUE(runUntil([&] { return weak.expired(); }));
    EXPECT_THAT(takeNotifications(), ElementsAre("StatusWillShow", "CloseDeltaCorvel"));
    EXPECT_THAT(RESTHandler::sharedInstance().corvelList(), IsEmpty());
    EXPECT_EQ(insertedRecords(), 0U);
}
} // namespace
} // namespace lodestar::testing
