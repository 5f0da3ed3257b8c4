// SPDX-License-Identifier: Apache-2.0
// Any bytes as the body of a feed: what is read of them is what libxml2's own tree of them says, what is not there
// yields nothing, and the time that they take is in proportion to their number, however often they are repeated.
#include "Tests/Fuzz/Require.h"
#include "Tests/Support/TreeReference.h"
#include "XML/XMLElement.h"

#include <cstddef>
#include <cstdint>
#include <ctime>

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

double threadMicroseconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

/// A hundred times what a feed takes under the sanitizers would be missed in few bytes and found in many: the input
/// once more, over and over, with each "0" a number of its own, so that names, values and declarations differ.
void requireTimeInProportion(std::string_view bytes)
{
    constexpr std::size_t size = 50'000;
    constexpr double start = 20'000; // microseconds, for what is bounded by itself and for a machine with other work
    constexpr double each = 1;       // microsecond a byte
    // Whole stretches, since each single append is watched by the fuzzer and would take more time than the parse.
    std::string repeated;
    for (int i = 0; repeated.size() < size; ++i) {
        const std::string number = std::to_string(i);
        std::string_view left = bytes;
        for (std::size_t zero = left.find('0'); zero != std::string_view::npos; zero = left.find('0')) {
            repeated.append(left.substr(0, zero)).append(number);
            left.remove_prefix(zero + 1);
        }
        repeated.append(left);
    }
    const double begin = threadMicroseconds();
    const bool read = XMLElement::parse(repeated).ok();
    const double took = threadMicroseconds() - begin;
    require(took <= start + each * static_cast<double>(repeated.size()), "time in proportion to the bytes",
            std::to_string(took) + " us for " + std::to_string(repeated.size()) +
                (read ? " bytes" : " bytes, refused"));
}

/// Whether it is this input's turn for what would take too long for each.
bool isDrawn(std::string_view bytes)
{
    return !bytes.empty() && std::hash<std::string_view>()(bytes) % 32 == 0;
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
    if (isDrawn(bytes)) {
        requireTimeInProportion(bytes);
    }
    return 0;
}
