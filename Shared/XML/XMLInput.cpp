// SPDX-License-Identifier: Apache-2.0
#include "XML/XMLInput.h"

#include "XML/XMLMemory.h"

#include <libxml/parserInternals.h>
#include <libxml/xmlIO.h>

namespace lodestar
{
namespace
{

/// Whether the bytes declare UTF-8 in the usual form, or no encoding at all. False for any unusual start.
bool isPlainUTF8(std::string_view bytes)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.substr(0, mark.size()) == mark) {
        bytes.remove_prefix(mark.size());
    }
    if (bytes.size() < 4 || bytes[0] != '<' || bytes.substr(0, 4).find('\0') != std::string_view::npos) {
        return false;
    }
    if (bytes.substr(0, 5) != "<?xml") {
        return true;
    }
    const std::string_view declaration = bytes.substr(0, bytes.find('>'));
    const std::size_t named = declaration.find("encoding");
    if (named == std::string_view::npos) {
        return true;
    }
    const std::string_view value = declaration.substr(named);
    return (value.substr(0, 16) == R"(encoding="UTF-8")" || value.substr(0, 16) == "encoding='UTF-8'") &&
           value.find("encoding", 1) == std::string_view::npos;
}

/// Tags shorter than this cannot hold enough attributes to matter.
constexpr std::size_t shortSpan = 4096;

/// Counts the values (quoted texts after an "=") between a "<" and the ">" that ends the tag.
bool isMonstrous(std::string_view tag)
{
    if (tag.size() < 2 || tag[1] == '!' || tag[1] == '?') {
        return false;
    }
    std::size_t values = 0;
    char quote = 0;
    for (const char c : tag) {
        if (quote != 0) {
            quote = c == quote ? '\0' : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
            ++values;
        } else if (c == '>') {
            break;
        }
    }
    return values > mostAttributes;
}

} // namespace

bool hasMonstrousTag(std::string_view bytes)
{
    // A value cannot contain "<", so a tag ends before the next "<". The search jumps ahead and looks back for a "<";
    // only a long stretch without one is read whole. So most of the bytes are never touched.
    std::size_t at = bytes.find('<');
    while (at < bytes.size() && bytes.size() - at > shortSpan) {
        const std::size_t last = bytes.substr(at + 1, shortSpan).rfind('<');
        if (last != std::string_view::npos) {
            at += 1 + last;
            continue;
        }
        const std::size_t next = bytes.find('<', at + 1);
        if (isMonstrous(bytes.substr(at, next - at))) {
            return true;
        }
        at = next;
    }
    return false;
}

xmlParserCtxtPtr makeXMLParser(std::string_view bytes)
{
    const int size = static_cast<int>(bytes.size());
    if (!isPlainUTF8(bytes)) {
        return xmlCreateMemoryParserCtxt(bytes.data(), size);
    }
    const xmlParserCtxtPtr parser = xmlNewParserCtxt();
    if (parser == nullptr) {
        return nullptr;
    }
    const xmlParserInputBufferPtr buffer = xmlParserInputBufferCreateStatic(bytes.data(), size, XML_CHAR_ENCODING_NONE);
    const xmlParserInputPtr input =
        buffer != nullptr ? xmlNewIOInputStream(parser, buffer, XML_CHAR_ENCODING_NONE) : nullptr;
    if (input == nullptr) {
        xmlFreeParserInputBuffer(buffer);
        xmlFreeParserCtxt(parser);
        return nullptr;
    }
    if (inputPush(parser, input) < 0) {
        xmlFreeInputStream(input);
        xmlFreeParserCtxt(parser);
        return nullptr;
    }
    // Tells the library that more input may come. All bytes are there already, so it has nothing to fetch. Otherwise
    // the library would drop bytes that it has read, to make room, and would move the reading position back: a fault
    // for input that is read in place.
    parser->progressive = 1;
    return parser;
}

} // namespace lodestar
