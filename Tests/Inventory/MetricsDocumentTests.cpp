// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Metrics/MetricsDocument.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace lodestar::test
{

namespace
{

MetricsDocument parsed(const std::string& text)
{
    auto document = MetricsDocument::parse(text);
    EXPECT_TRUE(document.ok()) << text;
    return document ? document.value() : MetricsDocument();
}

} // namespace

TEST(MetricsDocumentTest, ReadsWhatIsThereAndNothingElse)
{
    const MetricsDocument document = parsed(
        "\xEF\xBB\xBF"
        R"({"a":{"b":[{"c":[1.5,null]},7]},"text":"é\n","true":true,"null":null,"empty":[],"minus":-3,"digits":"12"})");
    const MetricsValue root = document.root();
    const auto list = root.path({"a", "b"}).elements();
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0].member("c").first().number(), 1.5);
    EXPECT_TRUE(list[0].member("c").elements().at(1).isNull());
    EXPECT_EQ(list[1].number(), 7);
    EXPECT_EQ(root.member("text").text(), "é\n");
    EXPECT_EQ(root.member("minus").number(), -3);
    EXPECT_TRUE(root.member("null").exists() && root.member("null").isNull());
    for (const MetricsValue& none :
         {MetricsValue(), root.member("nothing"), root.path({"text", "a"}), root.first(), root.member("empty").first(),
          root.path({"null", "a"}), root.path({"true", "a"})}) {
        EXPECT_FALSE(none.exists() || none.isNull() || none.number() || none.text() || none.member("a").exists());
        EXPECT_TRUE(none.elements().empty() && !none.first().exists() && !none.path({"a", "b"}).exists());
    }
    EXPECT_FALSE(root.member("digits").number() || root.member("true").number() || root.member("null").number());
    EXPECT_TRUE(!root.member("minus").text() && root.member("a").elements().empty());
}

TEST(MetricsDocumentTest, RefusesWhatIsNoDocument)
{
    const auto expectRefusal = [](const std::string& text) {
        const auto document = MetricsDocument::parse(text);
        ASSERT_FALSE(document.ok()) << text.substr(0, 60);
        EXPECT_EQ(document.error().domain, metricsErrorDomain);
        EXPECT_NE(document.error().code, 0);
        EXPECT_FALSE(document.error().localizedDescription.empty());
    };
    for (const char* text :
         {"", " ", "null", "7", R"("text")", "<feed/>", "{", R"({"a":1)", R"({"a":01})", R"({"a":1-2})",
          "{\"a\":\"\xFF\"}", R"({"a":NaN})", R"({"a":123456789012345678901234567890)"}) {
        expectRefusal(text);
    }
    expectRefusal(std::string(5000, '['));
    expectRefusal("[" + std::string(MetricsDocument::largest, ' ') + "]");
}

TEST(MetricsDocumentTest, NumberThatIsTooLargeCostsOnlyItself)
{
    const MetricsDocument document = parsed(
        R"({"t\"1e999":"1e999 \\","a":[123456789012345678901234567890,-98765432109876543210,1e999,-1E+400,1e-999,)" +
        std::string(400, '9') + ",5]}");
    const auto values = document.root().member("a").elements();
    std::vector<std::optional<double>> numbers;
    for (const MetricsValue& value : values) {
        numbers.push_back(value.number());
    }
    constexpr auto none = std::nullopt;
    EXPECT_THAT(numbers, testing::ElementsAre(123456789012345678901234567890.0, -98765432109876543210.0, none, none,
                                              0.0, none, 5.0));
    EXPECT_EQ(document.root().member("t\"1e999").text(), "1e999 \\");
}

} // namespace lodestar::test
