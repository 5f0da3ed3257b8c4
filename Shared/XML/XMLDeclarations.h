// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

#include <cstddef>

namespace lodestar
{

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

/// What the parser's `_private` points to while it reads declarations.
class XMLDeclarationReader
{
public:
    virtual ~XMLDeclarationReader() = default;
    XMLExpansion& expansion() { return m_expansion; }
    /// Ends the parse: the document is too large in some way.
    virtual void refuse() = 0;

private:
    XMLExpansion m_expansion;
};

/// Makes the parser handle a document's declarations. Elements come out as they would in libxml2's own tree, in time
/// and memory that grow only with the document's size. Entities are known and checked, but their text is read once, not
/// at each reference. Attribute values that only a declaration gives are dropped, since elements do not have them.
void setDeclarationEvents(xmlSAXHandler& events);

} // namespace lodestar
