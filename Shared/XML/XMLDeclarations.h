// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

#include <cstddef>

namespace lodestar
{

/// Has the parser take a document's declarations as libxml2's own tree would, as far as elements can tell, in time and
/// memory that grow with the document's size only. Entities are known and checked, but their text is read once and not
/// at each reference; values that only a declaration gives are dropped, since no element has them.
void setDeclarationEvents(xmlSAXHandler& events);

/// What parameter entities have brought into a document's declarations, which the library does not limit itself.
class XMLExpansion
{
public:
    /// False once it is out of all proportion.
    bool add(const xmlEntity& entity);

private:
    std::size_t m_bytes = 0;
};

} // namespace lodestar
