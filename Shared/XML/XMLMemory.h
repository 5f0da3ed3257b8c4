// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

namespace lodestar
{

/// More attributes in one start tag than any feed's. The parser compares each attribute of a tag, and each name space
/// declared in it, with every other: one tag of a megabyte would keep it for seconds and a larger one for minutes.
inline constexpr int mostAttributes = 1000;
/// More different names (of elements, attributes, prefixes, name spaces, entities and instructions) than all feeds
/// together have. The library's table of them stops to grow at some hundred places, so that each further name is
/// compared with more others: a million take half a minute.
inline constexpr int mostNames = 4096;
/// More pieces of memory than the declarations of any feed take; consoles declare nothing. The values that a
/// declaration lists are compared with each other.
inline constexpr int mostDeclarationPieces = 4096;

/// Tells whether libxml2 was refused memory on this thread since the watch began. The library itself does not always:
/// a name that it could not keep is to it a name that is not there, and in recovery it goes on with less.
///
/// Installs itself as the library's allocator, on the system's own, when the first watch is made: no other thread of
/// the process may be parsing then. One watch a thread at a time.
class XMLMemoryWatch
{
public:
    XMLMemoryWatch();
    ~XMLMemoryWatch();
    XMLMemoryWatch(const XMLMemoryWatch&) = delete;
    XMLMemoryWatch& operator=(const XMLMemoryWatch&) = delete;

    bool ranOut() const;
    /// Refuses the parser room for more than about `mostAttributes` in a tag, `mostNames` and
    /// `mostDeclarationPieces`: room is asked for in every encoding and wherever a name may stand. The parser lives
    /// until its parse has ended.
    void limit(const xmlParserCtxt& parser);
    /// Whether that room was refused.
    bool wasBeyondLimits() const;
};

} // namespace lodestar
