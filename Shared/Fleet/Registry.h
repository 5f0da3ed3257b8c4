// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Controllers/REST/RXPromise.h"
#include "Platform/URLLoading/URLRequest.h"
#include "XML/XMLElement.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

/// The registry of consoles: what is done with records and what is fetched into them, for screens and for whoever else
/// works with consoles. Main thread, where nothing else is said.

/// A new record in the store's context; the next save stores it. It is not in the working list yet.
CorvelRef insertNewCorvel();
/// Takes the record out of the context, to be gone from the store with the next save.
void deleteCorvel(const CorvelRef& corvel);
/// Saves the context. A failure is left to the next save: nothing that a screen could do would help.
void saveIgnoringErrors();

/// The working list's record at a row; null for a row that is not there (any more).
CorvelRef corvelAtRow(int row);
/// Whether the working list holds the record.
bool isRegistered(const CorvelRef& corvel);
/// Whether the working list holds a record of the address; the record itself is not left out.
bool isAddressRegistered(const Corvel& corvel);

/// Puts a demonstration console behind the working list; the next save stores it.
void addDemoCorvel();
/// Takes the working list's record at the place out of list and store, with its session key.
void deleteCorvelAtIndex(std::size_t index);
/// Takes every record out of list and store, those among them that are only being added.
void deleteEveryCorvel();
/// Removes every user default, session keys and settings alike.
void removeEveryDefault();
/// Forgets what was fetched of the working list's consoles, which are to be fetched anew.
void forgetFetchedData();
/// A logon that was under way when its record was deleted stores its session key afterwards: takes that key away again,
/// unless a registered console has the same address.
void forgetSessionKeyOfUnregistered(const Corvel& corvel);

/// Logs on to the console, marks its record online, gives it its six feeds and counts them. Rejected when the logon
/// fails; a feed that fails is "NA". The promise's handlers end what was begun, with one of the three functions below.
RXPromise<std::string> fetchInventory(const CorvelRef& corvel, Urgency urgency = Urgency::Person);
/// Ends the refresh of a record of the working list: the version that the console tells is stored in the record, and
/// the record counts as fetched.
void finishRefresh(Corvel& corvel);
/// Ends a refresh that was rejected: the record counts as fetched, and as offline. What was fetched before stays.
void failRefresh(Corvel& corvel);
/// Ends the adding of a record as `finishRefresh` does, and puts the record behind the working list.
void finishAdding(const CorvelRef& corvel);

/// One feed of the console, asked for with the session key that is stored for it: a key that the console no longer
/// takes is a refusal, until the console list logs on anew. Rejected for no console. The type is one of the feed table.
/// Any thread.
RXPromise<XMLElement> fetchFeedWithStoredKey(const CorvelRef& corvel, std::string_view type);

/// What the console answers at the link, quotes removed; nothing when it cannot be had and for no console. Blocks its
/// caller. Any thread.
std::optional<std::string> fetchLinkedText(const std::string& link, const CorvelRef& corvel);

} // namespace lodestar
