// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Csv.h"
#include "Tests/Support/LongRun.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cstdlib>
#include <random>

namespace lodestar::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using Rows = std::vector<std::vector<std::string>>;

/// What another reader of the format makes of a file: a line a row, each cell in hexadecimal digits. It fails for a
/// cell that a spreadsheet may run, and for rows of different lengths.
constexpr auto otherReader = R"(
import csv, re, sys
with open(sys.argv[1], newline="", encoding="utf-8") as source, open(sys.argv[2], "w") as result:
    rows = list(csv.reader(source, strict=True))
    assert len({len(row) for row in rows}) == 1
    for row in rows:
        for cell in row:
            begin = cell.lstrip(" \n\r\t\"")
            assert not re.match("[=+@-]", begin) or re.fullmatch(r"-\d+(\.\d+)?(e[+-]?\d+)?", cell, re.I), cell
            assert cell[:1] not in "\t\r" or not cell, cell
        print(",".join(cell.encode().hex() or "_" for cell in row), file=result)
)";

std::string hexOf(const std::string& text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    for (const char each : text) {
        hex += digits[static_cast<unsigned char>(each) / 16];
        hex += digits[static_cast<unsigned char>(each) % 16];
    }
    return hex.empty() ? "_" : hex;
}

/// Cells of pieces that mean something in some reader or other.
std::string randomCell(std::mt19937& random)
{
    static const std::vector<std::string> pieces = {"=",
                                                    "+",
                                                    "-",
                                                    "@",
                                                    "\t",
                                                    "\r",
                                                    "\n",
                                                    " ",
                                                    "\"",
                                                    ",",
                                                    ";",
                                                    "'",
                                                    "1",
                                                    "9",
                                                    ".",
                                                    "e",
                                                    "a b",
                                                    "",
                                                    "\u00e4\u4e2d",
                                                    "\U0001F680",
                                                    "\u05d0",
                                                    "HYPERLINK(\"x\")"};
    std::string cell;
    for (auto i = random() % 6; i > 0; --i) {
        cell += pieces[random() % pieces.size()];
    }
    return cell;
}

TEST(CsvTests, AnotherReaderGetsEveryCellAndNoFormula)
{
    std::mt19937 random(7);
    Table table{{"a", "=b", "c;d", "e\te"}, {}};
    std::string expected;
    const auto expect = [&expected](const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            expected += (i > 0 ? "," : "") + hexOf(cells[i]);
        }
        expected += '\n';
    };
    expect({"a", "'=b", "c;d", "e\te"});
    // What is written as it is, and what is not.
    table.rows = {{"-5", "-0.25", "-1e-05", "12"}, {"it's", "a=1", "'quoted'", ""}, {"=1", " =1", "\"=1", "@x"},
                  {"-5-5", "--5", "-", "+49 1"},   {"\tx", "\rx", "'=1", "\n+1"},   {"-1.", "-.5", "\u00a0=1", "-1e"}};
    expect({"-5", "-0.25", "-1e-05", "12"});
    expect({"it's", "a=1", "'quoted'", ""});
    expect({"'=1", "' =1", "'\"=1", "'@x"});
    expect({"'-5-5", "'--5", "'-", "'+49 1"});
    expect({"'\tx", "'\rx", "''=1", "'\n+1"});
    expect({"'-1.", "'-.5", "'\u00a0=1", "'-1e"});
    const std::size_t known = expected.size();
    for (int i = rounds(2000, 50'000); i > 0; --i) {
        table.rows.push_back({randomCell(random), randomCell(random), randomCell(random), randomCell(random)});
    }

    const ScratchFolder folder;
    std::ofstream(folder.file("list.csv"), std::ios::binary) << csvOf(table);
    std::ofstream(folder.file("reader.py")) << otherReader;
    const std::string command = "cd " + folder.path().string() + " && python3 reader.py list.csv cells 2> errors";
    ASSERT_EQ(std::system(command.c_str()), 0) << folder.read("errors");
    const std::string cells = folder.read("cells");
    EXPECT_EQ(cells.substr(0, known), expected);
    EXPECT_EQ(std::ranges::count(cells, '\n'), static_cast<std::ptrdiff_t>(table.rows.size() + 1));

    const auto again = readCsv(folder.read("list.csv"));
    ASSERT_TRUE(again.ok());
    EXPECT_EQ(again.value().titles, table.titles);
    ASSERT_EQ(again.value().rows.size(), table.rows.size());
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        ASSERT_EQ(again.value().rows[row], table.rows[row]);
    }
    EXPECT_EQ(csvOf({{"a"}, {{"M\xFCller"}, {"\xE2\x82"}}}), "a\r\nM\uFFFDller\r\n\uFFFD\uFFFD\r\n");
}

TEST(CsvTests, ReadsWhatSpreadsheetsWrite)
{
    struct Case {
        std::string text;
        std::vector<std::string> titles;
        Rows rows;
    };
    const std::vector<Case> cases = {
        {"\xEF\xBB\xBFname,address\r\nA,a.example\r\n", {"name", "address"}, {{"A", "a.example"}}},
        {"\"name, all\";user\n\"x;\"\"y\"\"\r\nz\";\n", {"name, all", "user"}, {{"x;\"y\"\r\nz", ""}}},
        {"a\tb\rc,d\te\r", {"a", "b"}, {{"c,d", "e"}}},
        {"a,b\n\n\r\n1\n\"\"\n,,", {"a", "b"}, {{"1"}, {""}, {"", "", ""}}},
        {"a\n'=1\n'x\nb\"c\n\"d\"e\n", {"a"}, {{"=1"}, {"'x"}, {"b\"c"}, {"de"}}},
        {"", {}, {}},
        {"\r\n\n", {}, {}},
    };
    for (const Case& each : cases) {
        const auto table = readCsv(each.text);
        ASSERT_TRUE(table.ok()) << each.text;
        EXPECT_EQ(table.value().titles, each.titles) << each.text;
        EXPECT_EQ(table.value().rows, each.rows) << each.text;
    }
    std::vector<std::size_t> lines;
    ASSERT_TRUE(readCsv("a\n\n1\n\"2\n2\"\n3", &lines).ok());
    EXPECT_THAT(lines, ElementsAre(3, 4, 5));
}

TEST(CsvTests, RefusesWhatIsNoTableAndStaysFast)
{
    const auto codeOf = [](const std::string& bytes) {
        const auto table = readCsv(bytes);
        return table.ok() ? 0 : table.error().code;
    };
    EXPECT_EQ(codeOf(std::string("\x89PNG\r\n\x1a\n\0\0", 10)), csvNotText);
    EXPECT_EQ(codeOf(std::string("a,b\0c", 5)), csvNotText);
    EXPECT_EQ(codeOf("name\nM\xFCller\n"), csvNotText);
    EXPECT_EQ(codeOf("a,\"b\nc"), csvOpenQuote);
    EXPECT_EQ(codeOf("a,\"b\"\""), csvOpenQuote);
    EXPECT_EQ(codeOf(std::string(csvMostBytes + 1, 'a')), csvTooLarge);
    EXPECT_EQ(codeOf(std::string(csvMostColumns, ',')), csvTooLarge);
    EXPECT_EQ(codeOf(std::string(csvMostBytes, ',')), csvTooLarge);
    std::string rows;
    for (std::size_t i = 0; i < csvMostRows + 2; ++i) {
        rows += "a\n";
    }
    EXPECT_EQ(codeOf(rows), csvTooLarge);

    // Texts in which a reader that looks back or ahead takes the square of the time.
    std::string lines = "name,address,user\r\n";
    for (int i = 0; i < 100'000; ++i) {
        lines += "\"console " + std::to_string(i) + "\",c" + std::to_string(i) + ".example,\"ad\"\"min\"\r\n";
    }
    const std::vector<std::string> texts = {lines, "\"" + std::string(1'000'000, '"') + "\"",
                                            std::string(1'000'000, ' ') + "=", "a\n" + std::string(1'000'000, '\'')};
    for (const std::string& text : texts) {
        const auto begin = std::chrono::steady_clock::now();
        const auto table = readCsv(text);
        ASSERT_TRUE(table.ok());
        const auto again = readCsv(csvOf(table.value()));
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
        EXPECT_TRUE(again.ok() && again.value().rows == table.value().rows);
    }
}

} // namespace
} // namespace lodestar::test
