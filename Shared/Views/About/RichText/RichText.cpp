// SPDX-License-Identifier: Apache-2.0
#include "Views/About/RichText/RichText.h"

#include "Views/About/RichText/RichTextCharacters.h"
#include "Views/About/RichText/RichTextReader.h"

#include <algorithm>

namespace lodestar
{
namespace
{

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view signature = "{\\rtf";

RichTextDocument readPlainText(std::string_view bytes)
{
    RichTextDocument document;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        std::string line = sanitizedUtf8(bytes.substr(0, end));
        document.paragraphs.emplace_back();
        if (!line.empty()) {
            document.paragraphs.back().runs.push_back({std::move(line), {}});
        }
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
        if (document.paragraphs.size() >= RichTextLimits::pieces) {
            document.truncated = !bytes.empty();
            break;
        }
    }
    return document;
}

} // namespace

RichTextDocument readRichText(std::string_view bytes)
{
    const bool tooLong = bytes.size() > RichTextLimits::bytes;
    bytes = bytes.substr(0, RichTextLimits::bytes);
    if (bytes.substr(0, byteOrderMark.size()) == byteOrderMark) {
        bytes.remove_prefix(byteOrderMark.size());
    }
    const std::string_view text = bytes.substr(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
    RichTextDocument document =
        text.substr(0, signature.size()) == signature ? RichTextReader(text).read() : readPlainText(bytes);
    document.truncated = document.truncated || tooLong;
    return document;
}

} // namespace lodestar
