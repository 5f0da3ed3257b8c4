// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>

namespace lodestar
{

/// The limit on attributes in one start tag; no feed comes near it. The parser compares each attribute of a tag, and
/// each name space declared in the tag, with every other: a tag of a megabyte would take seconds, a larger one minutes.
inline constexpr int mostAttributes = 1000;
/// The limit on different names (of elements, attributes, prefixes, name spaces, entities and instructions); all feeds
/// together have fewer. The library's table of names stops growing at some hundred places, so each further name is
/// compared with more and more others: a million names take half a minute.
inline constexpr int mostNames = 4096;
/// The limit on allocations for declarations; no feed comes near it, and consoles declare nothing. The parser compares
/// the values that a declaration lists with each other.
inline constexpr int mostDeclarationPieces = 4096;

/// Tells whether libxml2 was refused memory on this thread since the watch began. The library does not always tell: it
/// takes a name that it could not store for a name that is not there, and in recovery it goes on with less.
///
/// The first watch installs itself as the library's allocator, on top of the system's: no other thread of the process
/// may be parsing then. One watch at a time on each thread.
class XMLMemoryWatch
{
public:
    XMLMemoryWatch();
    ~XMLMemoryWatch();
    XMLMemoryWatch(const XMLMemoryWatch&) = delete;
    XMLMemoryWatch& operator=(const XMLMemoryWatch&) = delete;

    bool ranOut() const;
    /// Refuses the parser memory for more than about `mostAttributes` in a tag, `mostNames` and
    /// `mostDeclarationPieces`. Limiting the memory covers every encoding and every place where a name may stand. The
    /// parser must live until its parse has ended.
    void limit(const xmlParserCtxt& parser);
    /// Whether the parser was refused memory for going beyond those limits.
    bool wasBeyondLimits() const;
};

} // namespace lodestar
