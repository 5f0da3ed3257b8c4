// SPDX-License-Identifier: Apache-2.0
#include "XML/XMLElement.h"

#include "XML/XMLDocumentBuilder.h"

namespace lodestar
{
namespace
{

/// Calls `visit` with the index of each child element of that name until `visit` returns false.
template <typename Visit>
void forEachChild(const XMLDocument& document, XMLDocument::Index parent, std::string_view name, Visit visit)
{
    const XMLDocument::Name wanted = document.find(name);
    if (wanted == XMLDocument::noName) {
        return;
    }
    const XMLDocument::Index end = document.end(parent);
    for (auto i = document.childrenBegin(parent); i < end; i = document.end(i)) {
        if (document.name(i) == wanted && !visit(i)) {
            return;
        }
    }
}

} // namespace

Result<XMLElement> XMLElement::parse(const std::string& bytes)
{
    Result<std::shared_ptr<const XMLDocument>> document = XMLDocumentBuilder::parse(bytes.c_str(), bytes.size());
    if (!document) {
        return document.error();
    }
    return XMLElement(std::move(document).value(), 0);
}

std::string_view XMLElement::name() const
{
    return exists() ? m_document->nameText(m_document->name(m_index)) : std::string_view();
}

std::vector<XMLElement> XMLElement::children(std::string_view name) const
{
    std::vector<XMLElement> found;
    if (exists()) {
        forEachChild(*m_document, m_index, name, [&](XMLDocument::Index index) {
            found.push_back(XMLElement(m_document, index));
            return true;
        });
    }
    return found;
}

std::size_t XMLElement::childCount(std::string_view name) const
{
    std::size_t count = 0;
    if (exists()) {
        forEachChild(*m_document, m_index, name, [&](XMLDocument::Index) {
            ++count;
            return true;
        });
    }
    return count;
}

std::optional<std::string> XMLElement::text() const
{
    if (!exists()) {
        return {};
    }
    return std::string(m_document->text(m_index));
}

std::optional<std::string> XMLElement::attribute(std::string_view name) const
{
    if (!exists()) {
        return {};
    }
    const XMLDocument::Name wanted = m_document->find(name);
    const XMLDocument::Attribute* const found =
        wanted != XMLDocument::noName ? m_document->attribute(m_index, wanted) : nullptr;
    if (found == nullptr) {
        return {};
    }
    return std::string(m_document->value(*found));
}

XMLElement XMLElement::path(std::initializer_list<std::string_view> names) const
{
    // Walks down by index; only the found element takes a reference to the document.
    if (!exists()) {
        return {};
    }
    XMLDocument::Index at = m_index;
    for (const std::string_view name : names) {
        bool found = false;
        forEachChild(*m_document, at, name, [&](XMLDocument::Index index) {
            at = index;
            found = true;
            return false;
        });
        if (!found) {
            return {};
        }
    }
    return {m_document, at};
}

std::size_t XMLElement::documentMemory() const
{
    return exists() ? m_document->memory() : 0;
}

} // namespace lodestar
