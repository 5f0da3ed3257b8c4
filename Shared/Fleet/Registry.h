// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Controllers/REST/RXPromise.h"
#include "Inventory/ResourceGroup.h"
#include "Platform/URLLoading/URLRequest.h"
#include "XML/XMLElement.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lodestar
{

class UserDefaults;
/// @file
/// The registry of consoles: screens and others use it to change records and to fetch into them. Main thread, unless a
/// function says otherwise. Adding to the working list, removing from it and forgetting what was fetched post
/// "CorvelsDidChange".

/// Makes a record in the store's context; the next save stores it. The working list does not hold it yet.
CorvelRef insertNewCorvel();
/// Gives the record another address, and forgets what was read at the one before.
void changeAddress(Corvel& corvel, const std::string& address);
/// Removes the record from the context; the next save removes it from the store. Forgets its reading.
void deleteCorvel(const CorvelRef& corvel);
/// Saves the context. After a failure the next save tries again: a screen could do nothing about it.
void saveIgnoringErrors();

/// The working list's record at the row; null when the list has no such row (any more).
CorvelRef corvelAtRow(int row);
/// Whether the working list holds the record.
bool isRegistered(const CorvelRef& corvel);
/// Whether the working list holds a record with this one's address. The record itself counts too.
bool isAddressRegistered(const Corvel& corvel);

/// Appends a demonstration console to the working list; the next save stores it.
void addDemoCorvel();
/// Removes the working list's record at the index from list and store, its session key, its reading and its history.
void deleteCorvelAtIndex(std::size_t index);
/// Removes every record from list and store, also those that are only being added, with all readings and the history.
void deleteEveryCorvel();
/// Removes everything from the defaults: from the process's own, session keys and settings alike.
void removeEveryDefault(UserDefaults& defaults);
/// Forgets what was fetched of the working list's consoles, so that they are fetched anew.
void forgetFetchedData();
/// Removes the session key of a deleted record, unless a registered console has the same address. For a logon that was
/// under way when its record was deleted and stored the key afterwards.
void forgetSessionKeyOfUnregistered(const Corvel& corvel);

/// Logs on to the console, marks its record online, fetches its six feeds into the record and counts them. Rejected
/// when the logon fails; a feed that fails is "NA". Before the promise settles, what happened is in `Readings`, and for
/// a record of the working list in the history, too. The caller's handlers must then call one of the next three
/// functions.
RXPromise<std::string> fetchInventory(const CorvelRef& corvel, Urgency urgency = Urgency::Person);
/// Ends a refresh of a record in the working list: stores the version that the console reports in the record, and marks
/// the record as fetched.
void finishRefresh(Corvel& corvel);
/// Ends a refresh that was rejected: marks the record as fetched and offline. Earlier fetched feeds stay.
void failRefresh(Corvel& corvel);
/// Ends the adding of a record: does what `finishRefresh` does, and appends the record to the working list.
void finishAdding(const CorvelRef& corvel);

/// Whether a fetched record may be finished by `finishRefresh`: not when it was deleted meanwhile, and then its session
/// key goes, too; nor when a later pull has reset it, since that pull's own refresh is running.
bool mayFinishRefresh(const CorvelRef& corvel);
/// A whole refresh of a record in the working list: fetches the inventory, then finishes or fails the record. Settles
/// as `fetchInventory` does. What was fetched before stays until then.
RXPromise<std::string> refreshCorvel(const CorvelRef& corvel, Urgency urgency = Urgency::Person);

/// Fetches one feed of the console with the console's stored session key, and adds the attempt to the console's
/// reading. A key that the console no longer accepts leads to a refusal, until the console list logs on anew. Rejected
/// when there is no console. The type must be in the feed table. Any thread.
RXPromise<XMLElement> fetchFeedWithStoredKey(const CorvelRef& corvel, std::string_view type);

/// The text that the console answers at the link, without its quotes; nothing when the text cannot be had or there is
/// no console. Blocks its caller. A failure counts in the console's reading as one of the feed that the link was read
/// from; without a type it counts nowhere. Any thread.
std::optional<std::string> fetchLinkedText(const std::string& link, const CorvelRef& corvel,
                                           std::string_view type = {});
/// Likewise the state of a group's member; nothing, too, when the member has no address. Error counts in the console's
/// reading.
std::optional<std::string> fetchMemberState(const ResourceGroup::Member& member, const CorvelRef& corvel);

} // namespace lodestar
