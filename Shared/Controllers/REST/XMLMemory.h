// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

namespace lodestar
{

/// More attributes in one start tag than any feed's. The parser compares each attribute of a tag, and each name space
/// declared in it, with every other: one tag of a megabyte would keep it for seconds and a larger one for minutes.
inline constexpr int mostAttributes = 1000;

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
    /// Refuses the parser room for more than about `mostAttributes` in a tag, which is where they are told in every
    /// encoding. The parser lives until its parse has ended.
    void limitAttributesOf(const xmlParserCtxt& parser);
    /// Whether that room was refused.
    bool hadMonstrousTag() const;
};

} // namespace lodestar
