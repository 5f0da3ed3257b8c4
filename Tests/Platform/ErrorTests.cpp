// SPDX-License-Identifier: Apache-2.0
#include "Platform/Error.h"

#include <gtest/gtest.h>

namespace lodestar
{
namespace
{

TEST(ErrorTests, DescriptionLeavesOutWhatIsEmptyAndStaysOneLine)
{
    EXPECT_EQ(description({}), "");
    EXPECT_EQ(description({"URLError", 0, "", "", nullptr}), "URLError");
    EXPECT_EQ(description({"URLError", 28, "", "", nullptr}), "URLError 28");
    EXPECT_EQ(description({"", 0, "", "why", nullptr}), "(why)");
    const auto below = std::make_shared<const Error>(Error{"ObjectStore", 11, "malformed", "", nullptr});
    EXPECT_EQ(description({"URLError", -3, "Timed\nout", "idle\r\nfor long", below}),
              "URLError -3: Timed out (idle  for long; underlying: ObjectStore 11: malformed)");
}
TEST(ErrorTests, AnErrorThatNobodyDescribedStillTellsSomething)
{
    EXPECT_EQ(shownDescription({"RXPromise", -1000, {}, {}, nullptr}),
              "The operation couldn\u2019t be completed. (RXPromise error -1000.)");
    EXPECT_EQ(shownDescription({"RXPromise", -1000, {}, "No answer.", nullptr}),
              "The operation couldn\u2019t be completed. No answer.");
    EXPECT_EQ(shownDescription({"URLError", -1001, "The request timed out.", "why", nullptr}),
              "The request timed out.");
}

} // namespace
} // namespace lodestar
