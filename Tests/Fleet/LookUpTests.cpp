// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ManagedSystem.h"
#include "Tests/Fleet/ReadingFixture.h"

namespace lodestar::test
{

using Outcome = Reading::Outcome;
using LookUpTests = ReadingTest;

TEST_F(LookUpTests, LookUpsOfScreensCountUntilTheConsoleIsReadAgain)
{
    const std::string uom = "https://" + host + "/rest/api/uom/";
    const auto lookUp = [&](const std::string& id) {
        return fetchLinkedText(uom + "ManagedSystem/" + id + "/quick/SystemName", corvel, ObjectType::LogicalPartition);
    };
    refreshed(corvel);
    const auto before = readingOf(corvel);
    const auto systems = recordsOf<ManagedSystem>(feedOfType(*corvel, ObjectType::ManagedSystem));
    const std::string system = *systems.front().identifier();
    EXPECT_EQ(lookUp(system), systems.front().name());
    EXPECT_EQ(readingOf(corvel), before) << "what succeeds is no news";

    EXPECT_TRUE(lookUp("nobody")) << "the text of the refusal";
    const auto failed = readingOf(corvel);
    EXPECT_EQ(failed->outcome, Outcome::Partial);
    EXPECT_THAT(failed->missingFeeds(), ElementsAre("LogicalPartition"));
    const FeedReading& partitions = feedOf(*failed, ObjectType::LogicalPartition);
    EXPECT_EQ(statusOf(*partitions.error), 404);
    EXPECT_EQ(partitions.failedLookUps, 1U);
    EXPECT_EQ(partitions.readAt, feedOf(*before, ObjectType::LogicalPartition).readAt);

    // The same link answers: all is as it was.
    FeedReading answered;
    answered.type = ObjectType::LogicalPartition;
    Readings::shared().addLookUp(corvel, uom + "ManagedSystem/nobody/quick/SystemName", answered);
    EXPECT_EQ(readingOf(corvel)->outcome, Outcome::Complete);
    EXPECT_EQ(feedOf(*readingOf(corvel), ObjectType::LogicalPartition).began,
              feedOf(*before, ObjectType::LogicalPartition).began);

    // A group's member in error is known by its identity; a refusal says nothing of it.
    const auto group =
        XMLElement::parse("<Group><AssociatedManagedSystems><link href='" + uom + "ManagedSystem/" + system +
                          "'/><link href='" + uom + "ManagedSystem/nobody'/></AssociatedManagedSystems></Group>");
    const auto members = ResourceGroup(group.value()).members();
    EXPECT_EQ(fetchMemberState(members[0], corvel), systems.front().state());
    Readings::shared().addMember(corvel, "somebody", true);
    EXPECT_TRUE(fetchMemberState(members[1], corvel));
    EXPECT_EQ(readingOf(corvel)->membersInError->size(), 1U);
    EXPECT_THAT(readingOf(corvel)->missingFeeds(), ElementsAre("Group"));
    ASSERT_TRUE(settled(fetchFeedWithStoredKey(corvel, "Group")).ok());
    EXPECT_EQ(readingOf(corvel)->outcome, Outcome::Complete) << "the links are read anew";
    Readings::shared().addMember(corvel, "nobody", false);
    EXPECT_NE(readingOf(corvel)->membersInError, nullptr);

    lookUp("nobody");
    EXPECT_EQ(refreshed(corvel)->outcome, Outcome::Complete);
    EXPECT_EQ(readingOf(corvel)->membersInError, nullptr);
    corvel->setDemo(true);
    EXPECT_EQ(lookUp("nobody"), "demo placeholder");
    EXPECT_EQ(readingOf(corvel)->outcome, Outcome::Complete);
}

} // namespace lodestar::test
