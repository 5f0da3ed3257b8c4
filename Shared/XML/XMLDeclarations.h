// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

#include <cstddef>

namespace lodestar
{

/// Makes the parser handle a document's declarations. Elements come out as they would in libxml2's own tree, in time
/// and memory that grow only with the document's size. Entities are known and checked, but their text is read once, not
/// at each reference. Attribute values that only a declaration gives are dropped, since elements do not have them.
void setDeclarationEvents(xmlSAXHandler& events);

/// The amount of text that parameter entities have added to a document's declarations. The library itself sets no
/// limit.
class XMLExpansion
{
public:
    /// False once that amount is too large.
    bool add(const xmlEntity& entity);

private:
    std::size_t m_bytes = 0;
};

} // namespace lodestar
