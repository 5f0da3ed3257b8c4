// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

#include <string_view>

namespace lodestar
{

/// Makes a parser of the bytes, which must outlive it. The parser reads the bytes in place unless they must be
/// converted; the library's own functions would copy them first. Null without memory. There must be at least one byte
/// and at most 2^31 - 1, followed by a zero byte.
xmlParserCtxtPtr makeXMLParser(std::string_view bytes);

/// Whether a start tag in UTF-8 has more than `mostAttributes`.
bool hasMonstrousTag(std::string_view bytes);

} // namespace lodestar
