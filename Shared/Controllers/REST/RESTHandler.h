// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Controllers/REST/Exchange.h"
#include "Controllers/REST/RXPromise.h"
#include "Controllers/REST/SessionKey.h"
#include "Inventory/Feed.h"
#include "Inventory/Metrics/MetricsDocument.h"
#include "Platform/Queues/OperationQueue.h"
#include "Platform/URLLoading/URLRequest.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// Whether to try a stored session key against the console before trusting it.
enum class CheckToken { No, Yes };

/// The console client: logon and session keys, inventory, single values, and the working list of consoles. One instance
/// for the process. It shows no messages and never saves the object context.
class RESTHandler
{
public:
    static RESTHandler& sharedInstance();

    /// The queue on which every network completion runs.
    const OperationQueue& queue() const { return m_queue; }

    /// The working list in store order, new records at the end. Screens index it by row. Main thread; other threads use
    /// `corvelListSnapshot`.
    const std::vector<CorvelRef>& corvelList() const { return m_corvelList; }
    void setCorvelList(std::vector<CorvelRef> list);
    void addCorvel(CorvelRef corvel);
    void removeCorvelAtIndex(std::size_t index);
    /// The list as it is now. Any thread. Keep the pointer in a variable while iterating: a range-for over the call
    /// itself would free the list.
    std::shared_ptr<const std::vector<CorvelRef>> corvelListSnapshot() const;
    /// Every record of the store, in the store's order; empty when the fetch fails. Main thread.
    std::vector<CorvelRef> fetchCorvels() const;

    URLRequest loginRequestForCorvel(const Corvel& corvel) const;
    URLRequest sessionValidRequestWithToken(const std::string& token, const Corvel& corvel) const;
    /// The session key for the console's requests. Rejected when the logon fails. While the key is checked or fetched,
    /// connections for the console's feeds are made ready.
    RXPromise<SessionKey> login(const CorvelRef& corvel, CheckToken checkToken, const Asking& asking = {});

    /// The root of one feed. Rejected when the request fails or ends with a status other than 200.
    RXPromise<XMLElement> fetchDataOfType(std::string_view type, const CorvelRef& corvel, std::string_view schema,
                                          const SessionKey& key, const Asking& asking = {});
    /// Fetches all six feeds in parallel. Never rejected: a feed that failed is "NA".
    RXPromise<std::shared_ptr<const FeedDictionary>>
    fetchAllDataForCorvel(const CorvelRef& corvel, const SessionKey& key, const Asking& asking = {});
    /// Counts the managed systems in error and those with a lit attention LED, and stores both numbers in the record.
    /// Always fulfilled with "OK".
    RXPromise<std::string> processInformationForCorvel(const CorvelRef& corvel);
    /// Fetches the text behind a link; quotes are removed. Blocks the calling thread until the answer or the time-out.
    std::optional<std::string> fetchDataFromAtomLink(const std::string& link, const Corvel& corvel) const;
    XMLElement getDemoDataForContentType(std::string_view type) const;

    /// The processed performance metrics of the managed system with that identifier. Rejected with the reason
    /// "Processing did not happen" when the console has not processed any, and when the console's document cannot be
    /// read.
    RXPromise<MetricsDocument> fetchPCMDataForManagedSystem(const std::optional<std::string>& systemID,
                                                            const CorvelRef& corvel, const SessionKey& key);

private:
    RESTHandler();
    ~RESTHandler() = default;

    OperationQueue m_queue;
    std::vector<CorvelRef> m_corvelList;
    mutable std::mutex m_snapshotMutex; ///< held only while a pointer is copied: the dashboard polls the list
    std::shared_ptr<const std::vector<CorvelRef>> m_snapshot;
};

} // namespace lodestar
