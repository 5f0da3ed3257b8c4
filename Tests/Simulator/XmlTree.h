// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar::simulator::test
{

/// A document read strictly, to check what the simulator writes with other eyes than the client's.
class XmlTree
{
public:
    explicit XmlTree(const std::string& text);

    bool wellFormed() const { return m_document != nullptr; }
    /// The elements of the path below the root, by local name, through every branch.
    std::vector<xmlNode*> all(const std::vector<std::string_view>& path) const;
    static std::vector<xmlNode*> all(xmlNode* from, const std::vector<std::string_view>& path);
    /// The texts of those elements.
    std::vector<std::string> texts(const std::vector<std::string_view>& path) const;
    static std::string text(xmlNode* node);
    static std::string attribute(xmlNode* node, const char* name);

private:
    struct Free {
        void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    };
    std::unique_ptr<xmlDoc, Free> m_document;
};

} // namespace lodestar::simulator::test
