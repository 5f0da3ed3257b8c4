// SPDX-License-Identifier: Apache-2.0
#include "Fleet/ServiceReport.h"

#include <gmock/gmock.h>

namespace lodestar
{
namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

TEST(ServiceReportTests, ValuesStayWholeAndWithinTheirLinesInBothTexts)
{
    const std::string longName(300, 'x');
    const ServiceReport report{
        .title = "Serviceable event #1042",
        .text = "  fan_1 *failed*\r\nretry: at\u2028 07:41:12 \u202Eevil",
        .blocks = {
            {{"Status", "Open, Pending approval"}, {"System", longName}},
            {{"Location", "\u05D0\u05D1 17\tx"}, {"Serial", "\xFF\x1B[31m06A17C2"}, {"", "Made by Lodestar 1.0"}}}};
    EXPECT_EQ(plainText(report), "Serviceable event #1042\n\nfan_1 *failed* retry: at  07:41:12 evil\n\n"
                                 "Status: Open, Pending approval\nSystem: " +
                                     longName +
                                     "\n\nLocation: \u2068\u05D0\u05D1 17 x\u2069\nSerial: \uFFFD[31m06A17C2\n"
                                     "Made by Lodestar 1.0\n");
    const std::string markdown = markdownText(report);
    EXPECT_THAT(markdown, HasSubstr("## Serviceable event \\#1042\n\nfan\\_1 \\*failed\\* retry: at  07:41:12 evil\n\n"
                                    "**Status:** Open, Pending approval  \n**System:** " +
                                    longName + "\n\n"));
    EXPECT_THAT(markdown, Not(HasSubstr("  \n\n"))) << "a block's last line has no line end of its own";
}

TEST(ServiceReportTests, AddressesAreTakenOutOfEveryTextAndNothingElseIs)
{
    const std::string kept = "V3R2.4.0.1, 07:41:12, 1.2.3, 1.2.3.4.5, 300.1.1.1, 5B:0E:41:C7, harbour-base, std::x, "
                             "harbour-b.examples, \u0443\u0437\u0435\u043B\u043E\u043A";
    ServiceReport report{.title = "System 10.24.8.61",
                         .text = "No answer of 10.24.8.62: HARBOUR-B.example:12443 (fe80::1, 2001:db8::7:1).",
                         .blocks = {{{"Kept", kept},
                                     {"Console", "harbour-b.example, 192.0.2.1."},
                                     {"Beside", "10.0.0.1-10.0.0.9 eth0_10.0.0.1 \u201C10.0.0.1\u201D \uFF1A10.0.0.1 "
                                                "10.0.0.1\u060C \u30A2\u30C9\u30EC\u30B910.0.0.1\u306B"},
                                     {"Names", "vm-harbour-b.example_1 \u201Charbour-b.example\u201D "
                                               "\u306Fharbour-b.example\u306B \u0443\u0437\u0435\u043B\u060C"}}}};
    report = withoutAddresses(std::move(report), {"harbour-b.example", "", "\u0443\u0437\u0435\u043B"}, "[-]");
    EXPECT_EQ(report.title, "System [-]");
    EXPECT_EQ(report.text, "No answer of [-]: [-]:12443 ([-], [-]).");
    EXPECT_EQ(report.blocks[0][0].value, kept);
    EXPECT_EQ(report.blocks[0][1].value, "[-], [-].");
    EXPECT_EQ(report.blocks[0][2].value, "[-]-[-] eth0_[-] \u201C[-]\u201D \uFF1A[-] [-]\u060C "
                                         "\u30A2\u30C9\u30EC\u30B9[-]\u306B");
    EXPECT_EQ(report.blocks[0][3].value, "vm-[-]_1 \u201C[-]\u201D \u306F[-]\u306B [-]\u060C");
}

} // namespace
} // namespace lodestar
