// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

#include <string_view>

namespace lodestar
{

/// A parser of the bytes, which must outlive it. It reads them where they are unless they must be converted: the
/// library's own way copies them first. Null without memory. There must be some bytes, not more than 2^31 - 1, and a
/// zero after them.
xmlParserCtxtPtr makeXMLParser(std::string_view bytes);

/// Whether a start tag has more than `mostAttributes`, in UTF-8.
bool hasMonstrousTag(std::string_view bytes);

} // namespace lodestar
