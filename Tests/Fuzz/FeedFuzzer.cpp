// SPDX-License-Identifier: Apache-2.0
// Any bytes as the body of a feed: what is read of them is what libxml2's own tree of them says, and what is not there
// yields nothing.
#include "Controllers/REST/XMLElement.h"
#include "Tests/Fuzz/Require.h"
#include "Tests/REST/TreeReference.h"

#include <cstddef>
#include <cstdint>

namespace
{

using lodestar::XMLElement;
using lodestar::fuzz::require;

void requireNothing(const XMLElement& absent)
{
    require(!absent.exists() && absent.name().empty() && !absent.text() && !absent.attribute("href") &&
                absent.children("entry").empty() && absent.childCount("entry") == 0 && !absent.child("entry") &&
                !absent.path({"entry", "content"}) && absent.documentMemory() == 0,
            "nothing from what is absent");
}

void readAsScreensDo(const XMLElement& root)
{
    // No document can hold a name with a blank in it.
    requireNothing(root.child("no such"));
    requireNothing(root.path({"entry", "no such", "content"}));
    require(!root.attribute("no such") && root.childCount("no such") == 0, "nothing by a name that is not there");
    for (const XMLElement& entry : root.children("entry")) {
        const XMLElement content = entry.child("content");
        require(content == entry.path({"content"}), "path and child agree");
        require(!content || content.text().has_value(), "an element that exists has a text");
        if (!content) {
            requireNothing(content);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string difference = lodestar::firstDifference(bytes);
    require(difference.empty(), "the arena reads as the tree", difference);
    if (const auto root = XMLElement::parse(bytes)) {
        readAsScreensDo(root.value());
    }
    return 0;
}
