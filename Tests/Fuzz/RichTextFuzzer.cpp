// SPDX-License-Identifier: Apache-2.0
// Any bytes as a rich text: what comes of them is text in UTF-8 within every limit that the reader promises.
#include "Tests/Fuzz/Require.h"
#include "Views/About/RichText/RichText.h"

#include <cstddef>
#include <cstdint>
#include <utf8proc.h>

namespace
{

using lodestar::fuzz::require;

bool isLength(int length)
{
    return std::abs(length) <= 31680;
}

/// UTF-8 without control characters but tabs and breaks.
bool isText(const std::string& text)
{
    utf8proc_int32_t character = 0;
    for (std::size_t at = 0; at < text.size();) {
        const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data() + at),
                                             static_cast<utf8proc_ssize_t>(text.size() - at), &character);
        if (length < 1 || (character < 0x20 && character != '\t' && character != '\n') || character == 0x7F) {
            return false;
        }
        at += static_cast<std::size_t>(length);
    }
    return true;
}

void requireSound(const std::vector<lodestar::RichTextParagraph>& paragraphs, std::size_t size)
{
    std::size_t pieces = paragraphs.size();
    std::size_t bytes = 0;
    for (const lodestar::RichTextParagraph& paragraph : paragraphs) {
        require(isLength(paragraph.leftIndent) && isLength(paragraph.firstLineIndent) &&
                    isLength(paragraph.spaceBefore) && isLength(paragraph.spaceAfter),
                "lengths within their range");
        require(isText(paragraph.marker), "a marker in UTF-8", paragraph.marker);
        pieces += paragraph.runs.size();
        for (const lodestar::RichTextRun& run : paragraph.runs) {
            require(!run.text.empty() && isText(run.text), "text in UTF-8", run.text);
            require(run.style.halfPoints > 0 && run.style.halfPoints <= 800, "a size within its range");
            bytes += run.text.size();
        }
    }
    require(pieces <= lodestar::RichTextLimits::pieces + 1, "bounded pieces");
    require(bytes <= 3 * size, "no more text than was given");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // As they are, and as the inside of a rich text.
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    requireSound(lodestar::readRichText(bytes), size);
    const std::string rich = "{\\rtf1" + bytes;
    requireSound(lodestar::readRichText(rich), rich.size());
    return 0;
}
