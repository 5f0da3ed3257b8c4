// SPDX-License-Identifier: Apache-2.0
#include "Tests/Support/TreeReference.h"

#include "XML/XMLDocumentBuilder.h"
#include "XML/XMLElement.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>

namespace lodestar
{
namespace
{

std::string_view view(const xmlChar* text)
{
    return reinterpret_cast<const char*>(text);
}

/// Lengths before the texts, so that no text can pass for the structure.
std::string field(std::string_view text)
{
    return std::to_string(text.size()) + ":" + std::string(text);
}

std::string_view localName(const xmlChar* name, const xmlNs* ns)
{
    const std::string_view qualified = view(name);
    const std::size_t colon = qualified.find(':');
    const bool declared = ns != nullptr && ns->prefix != nullptr;
    return declared || colon == 0 || colon == std::string_view::npos || colon + 1 == qualified.size()
               ? qualified
               : qualified.substr(colon + 1);
}

void appendOwnText(const xmlNode& node, std::string& text)
{
    if ((node.type == XML_TEXT_NODE || node.type == XML_CDATA_SECTION_NODE) && node.content != nullptr) {
        text += view(node.content);
    }
}

/// Appends the lines of an element and of all below it, and its text to `text`; returns the number of elements.
std::size_t appendTree(const xmlNode& element, std::vector<std::string>& lines, std::string& text)
{
    const std::size_t line = lines.size();
    lines.emplace_back();
    const std::size_t textBegin = text.size();
    std::size_t count = 1;
    for (const xmlNode* node = element.children; node != nullptr; node = node->next) {
        if (node->type == XML_ELEMENT_NODE) {
            count += appendTree(*node, lines, text);
        }
        appendOwnText(*node, text);
    }
    std::string attributes;
    std::set<std::string_view> seen;
    for (const xmlAttr* attribute = element.properties; attribute != nullptr; attribute = attribute->next) {
        const std::string_view name = localName(attribute->name, attribute->ns);
        if (seen.insert(name).second) {
            std::string value;
            for (const xmlNode* node = attribute->children; node != nullptr; node = node->next) {
                appendOwnText(*node, value);
            }
            attributes += " " + field(name) + "=" + field(value);
        }
    }
    lines[line] = std::to_string(count) + " " + field(localName(element.name, element.ns)) + attributes + " " +
                  field(std::string_view(text).substr(textBegin)) + "\n";
    return count;
}

/// Through the arena for what only it can list, the names of attributes, and through the element for every answer.
void appendElement(const XMLDocument& document, XMLDocument::Index own, const XMLElement& element, std::string& out)
{
    const XMLDocument::Index end = document.end(own);
    std::string attributes;
    std::set<std::string_view> seen;
    for (const XMLDocument::Attribute& attribute : document.attributes(own)) {
        const std::string_view name = document.nameText(attribute.name);
        if (seen.insert(name).second) {
            attributes += " " + field(name) + "=" + field(element.attribute(name).value_or("(no attribute)"));
        }
    }
    out += std::to_string(end - own) + " " + field(element.name()) + attributes + " " +
           field(element.text().value_or("(no text)")) + "\n";

    struct Namesakes {
        std::vector<XMLElement> elements;
        std::size_t next = 0;
    };
    std::map<std::string_view, Namesakes> children;
    for (XMLDocument::Index child = own + 1; child < end; child = document.end(child)) {
        const std::string_view name = document.nameText(document.name(child));
        const auto [entry, isNew] = children.try_emplace(name);
        auto& [elements, next] = entry->second;
        if (isNew) {
            elements = element.children(name);
            if (elements.empty() || elements.size() != element.childCount(name) ||
                !(elements.front() == element.child(name))) {
                out += "(child, children and childCount disagree)\n";
            }
        }
        appendElement(document, child, next < elements.size() ? elements[next] : XMLElement(), out);
        ++next;
    }
}

bool isElement(const xmlNode& node, std::string_view name)
{
    return node.type == XML_ELEMENT_NODE && localName(node.name, node.ns) == name;
}

const xmlNode* firstChild(const xmlNode* parent, std::string_view name)
{
    const xmlNode* node = parent != nullptr ? parent->children : nullptr;
    while (node != nullptr && !isElement(*node, name)) {
        node = node->next;
    }
    return node;
}

std::string textBelow(const xmlNode& element)
{
    std::vector<std::string> lines;
    std::string text;
    appendTree(element, lines, text);
    return text;
}

/// What `read` makes of the root of the library's own tree.
template <typename Read>
std::string withTree(std::string_view bytes, const Read& read)
{
    xmlResetLastError();
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
        xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                      XML_PARSE_RECOVER | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
        &xmlFreeDoc);
    const xmlError* error = xmlGetLastError();
    if (error != nullptr && error->code == XML_ERR_NO_MEMORY) {
        return "(error)";
    }
    const xmlNode* root = document ? xmlDocGetRootElement(document.get()) : nullptr;
    return root != nullptr ? read(*root) : "(none)";
}

} // namespace

std::string readTree(std::string_view bytes)
{
    return withTree(bytes, [](const xmlNode& root) {
        std::vector<std::string> lines;
        std::string text;
        appendTree(root, lines, text);
        std::string all;
        for (const std::string& line : lines) {
            all += line;
        }
        return all;
    });
}

std::string readTreeChildText(std::string_view bytes, std::string_view name)
{
    return withTree(bytes, [name](const xmlNode& root) -> std::string {
        const xmlNode* const child = firstChild(&root, name);
        return child != nullptr ? "=" + textBelow(*child) : "(none)";
    });
}

std::vector<std::string> readTreeEntries(std::string_view bytes, const std::vector<std::string_view>& path)
{
    std::vector<std::string> texts;
    withTree(bytes, [&](const xmlNode& root) {
        for (const xmlNode* node = root.children; node != nullptr; node = node->next) {
            if (isElement(*node, "entry")) {
                const xmlNode* at = node;
                for (const std::string_view name : path) {
                    at = firstChild(at, name);
                }
                texts.push_back(at != nullptr ? textBelow(*at) : "(none)");
            }
        }
        return std::string();
    });
    return texts;
}

std::string readArena(std::string_view bytes)
{
    const Result<XMLElement> root = XMLElement::parse(std::string(bytes));
    if (!root) {
        return "(error)";
    }
    if (!root.value()) {
        return "(none)";
    }
    const auto document = XMLDocumentBuilder::parse(std::string(bytes).c_str(), bytes.size());
    std::string all;
    appendElement(*document.value(), 0, root.value(), all);
    return all;
}

std::string firstDifference(std::string_view bytes)
{
    const std::string tree = readTree(bytes);
    const std::string arena = readArena(bytes);
    if (tree == arena) {
        return {};
    }
    const auto at = std::mismatch(tree.begin(), tree.end(), arena.begin(), arena.end());
    const auto position = static_cast<std::size_t>(at.first - tree.begin());
    const std::size_t from = position < 60 ? 0 : position - 60;
    return "tree:  " + tree.substr(from, 160) + "\narena: " + arena.substr(from, 160);
}

} // namespace lodestar
