// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Controllers/REST/RXPromise.h"
#include "Inventory/Feed.h"
#include "Inventory/Metrics/MetricsDocument.h"
#include "Platform/Queues/OperationQueue.h"
#include "Platform/URLLoading/URLConnection.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// A console's session key; none when the console gave none and none is stored.
using SessionKey = std::optional<std::string>;

/// Whether a stored session key is tried against the console before it is trusted.
enum class CheckToken { No, Yes };

/// The console client: logon and session keys, inventory, single values, and the working list of consoles. One
/// instance a process. It shows no messages and never saves the object context.
class RESTHandler
{
public:
    static RESTHandler& sharedInstance();

    /// Every network completion runs on it.
    const OperationQueue& queue() const { return m_queue; }

    /// The working list, in store order, new records at the end; screens index it by row. Main thread, but for
    /// `corvelListSnapshot`.
    const std::vector<CorvelRef>& corvelList() const { return m_corvelList; }
    void setCorvelList(std::vector<CorvelRef> list);
    void addCorvel(CorvelRef corvel);
    void removeCorvelAtIndex(std::size_t index);
    /// The list as it is now, from any thread. Keep the pointer in a variable while going through the list: a range-for
    /// over the call itself would let it go.
    std::shared_ptr<const std::vector<CorvelRef>> corvelListSnapshot() const;
    /// Every record of the store, in the store's order; none when the fetch fails. Main thread.
    std::vector<CorvelRef> fetchCorvels() const;

    URLRequest loginRequestForCorvel(const Corvel& corvel) const;
    URLRequest sessionValidRequestWithToken(const std::string& token, const Corvel& corvel) const;
    /// The key with which the console's requests are to be made. Rejected when the logon fails. While a key is tried or
    /// got, connections for the console's feeds are made ready.
    RXPromise<SessionKey> login(const CorvelRef& corvel, CheckToken checkToken, Urgency urgency = Urgency::Person);

    /// One feed's root. Rejected when the request fails or ends with a status other than 200.
    RXPromise<XMLElement> fetchDataOfType(std::string_view type, const CorvelRef& corvel, std::string_view schema,
                                          const SessionKey& key, Urgency urgency = Urgency::Person);
    /// All six feeds in parallel; never rejected: a feed that failed is "NA".
    RXPromise<std::shared_ptr<const FeedDictionary>>
    fetchAllDataForCorvel(const CorvelRef& corvel, const SessionKey& key, Urgency urgency = Urgency::Person);
    /// Counts managed systems in error and with a lit attention LED into the record; always fulfilled with "OK".
    RXPromise<std::string> processInformationForCorvel(const CorvelRef& corvel);
    /// The text behind a link, without its quotes. Blocks the calling thread until the answer or the time-out.
    std::optional<std::string> fetchDataFromAtomLink(const std::string& link, const Corvel& corvel) const;
    XMLElement getDemoDataForContentType(std::string_view type) const;

    /// The processed performance metrics of the managed system that goes by the identifier. Rejected with the reason
    /// "Processing did not happen" when the console has not processed any, and when what it sends as the document
    /// cannot be read.
    RXPromise<MetricsDocument> fetchPCMDataForManagedSystem(const std::optional<std::string>& systemID,
                                                            const CorvelRef& corvel, const SessionKey& key);

private:
    RESTHandler();
    ~RESTHandler() = default;

    OperationQueue m_queue{"RESTHandler"};
    std::vector<CorvelRef> m_corvelList;
    mutable std::mutex m_snapshotMutex; ///< held for the copy of a pointer only: the dashboard's wait asks all the time
    std::shared_ptr<const std::vector<CorvelRef>> m_snapshot;
};

} // namespace lodestar
