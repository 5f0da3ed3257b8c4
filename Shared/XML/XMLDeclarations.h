// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

#include <cstddef>

namespace lodestar
{

/// What the parser's `_private` points to while it reads declarations.
struct XMLDeclarationState {
    /// The amount of text that parameter entities have added to the document's declarations. The library itself sets no
    /// limit.
    std::size_t expandedBytes = 0;
    bool refused = false; ///< the document is too large in some way: nothing more is read
};

/// Makes the parser handle a document's declarations. Elements come out as they would in libxml2's own tree, in time
/// and memory that grow only with the document's size. Entities are known and checked, but their text is read once, not
/// at each reference. Attribute values that only a declaration gives are dropped, since elements do not have them.
void setDeclarationEvents(xmlSAXHandler& events);

} // namespace lodestar
