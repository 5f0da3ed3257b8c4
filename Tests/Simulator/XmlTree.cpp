// SPDX-License-Identifier: Apache-2.0
#include "Tests/Simulator/XmlTree.h"

namespace lodestar::simulator::test
{

namespace
{

std::string taken(xmlChar* text)
{
    std::string copy = text == nullptr ? std::string() : reinterpret_cast<const char*>(text);
    xmlFree(text);
    return copy;
}

} // namespace

XmlTree::XmlTree(const std::string& text)
    : m_document(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                               XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET))
{
}

std::vector<xmlNode*> XmlTree::all(const std::vector<std::string_view>& path) const
{
    return all(xmlDocGetRootElement(m_document.get()), path);
}

std::vector<xmlNode*> XmlTree::all(xmlNode* from, const std::vector<std::string_view>& path)
{
    std::vector<xmlNode*> nodes = {from};
    for (const std::string_view name : path) {
        std::vector<xmlNode*> next;
        for (const xmlNode* node : nodes) {
            for (xmlNode* child = node->children; child != nullptr; child = child->next) {
                if (child->type == XML_ELEMENT_NODE && name == reinterpret_cast<const char*>(child->name)) {
                    next.push_back(child);
                }
            }
        }
        nodes = std::move(next);
    }
    return nodes;
}

std::vector<std::string> XmlTree::texts(const std::vector<std::string_view>& path) const
{
    std::vector<std::string> texts;
    for (xmlNode* node : all(path)) {
        texts.push_back(text(node));
    }
    return texts;
}

std::string XmlTree::text(xmlNode* node)
{
    return taken(xmlNodeGetContent(node));
}

std::string XmlTree::attribute(xmlNode* node, const char* name)
{
    return taken(xmlGetProp(node, reinterpret_cast<const xmlChar*>(name)));
}

} // namespace lodestar::simulator::test
