// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Console.h"

#include "Simulator/Metrics.h"

#include <algorithm>
#include <charconv>

namespace lodestar::simulator
{

namespace
{

// Looks for the text as it stands. Clients send credentials without escaping them, and tests must notice a change of
// that.
bool holdsElement(const std::string& body, const std::string& name, const std::string& text)
{
    const std::size_t start = body.find("<" + name);
    const std::size_t textStart = start == std::string::npos ? start : body.find('>', start);
    return textStart != std::string::npos &&
           body.compare(textStart + 1, text.size() + name.size() + 3, text + "</" + name + ">") == 0;
}

/// The number after the name in the target's query; 0 for none.
int queryNumber(const std::string& target, const std::string& name)
{
    const std::size_t at = target.find(name + "=", std::min(target.find('?'), target.size()));
    int number = 0;
    if (at != std::string::npos) {
        std::from_chars(target.data() + at + name.size() + 1, target.data() + target.size(), number);
    }
    return std::max(0, number);
}

bool isStruck(const std::vector<Fault>& faults, std::string_view name, const RequestKind& kind)
{
    return std::ranges::any_of(faults, [&](const Fault& each) { return each.name == name && strikes(each, kind); });
}

} // namespace

ServedInventory::ServedInventory(Inventory served, std::size_t feedBytes)
    : inventory(std::move(served)), feeds(writeFeeds(inventory, feedBytes))
{
    for (const ManagedSystem& system : inventory.systems) {
        if (system.isGone) {
            continue;
        }
        quickValues.emplace(system.id + "/SystemName", jsonText(system.name));
        quickValues.emplace(system.id + "/State", jsonText(system.state));
    }
    for (const auto* list : {&inventory.partitions, &inventory.vios}) {
        for (const Partition& partition : *list) {
            if (partition.isGone) {
                continue;
            }
            quickValues.emplace(partition.id + "/PartitionName", jsonText(partition.name));
            quickValues.emplace(partition.id + "/PartitionState", jsonText(partition.state));
        }
    }
}

Console::Console(const Settings& settings, int index, std::string address,
                 std::shared_ptr<const ServedInventory> inventory)
    : m_settings(settings), m_index(index), m_address(std::move(address)), m_served(std::move(inventory))
{
    const ConsoleIdentity identity = makeConsoleIdentity(settings.seed, index);
    m_blanks = {m_address, identity.name, identity.machine.serialNumber, identity.id};
}

Response Console::answer(const Request& request, const std::vector<Fault>& faults, const std::string& nextAddress)
{
    const RequestKind kind = kindOf(request);
    if (isStruck(faults, "basicAuth", kind)) {
        Response response = errorResponse(401, "Credentials are wanted in a header.");
        response.headers.emplace_back("WWW-Authenticate", "Basic realm=\"corvel\"");
        return response;
    }
    Draft draft;
    if (kind.area == RequestKind::Area::Logon) {
        draft.response = logon(request);
    } else if (!request.header("X-API-Session")) {
        return errorResponse(401, "There is no session.");
    } else if (!hasSession(request)) {
        return errorResponse(403, "The session is not valid.");
    } else {
        draft = answerOf(request, kind, faults);
    }
    for (const Fault& fault : faults) {
        if (strikes(fault, kind)) {
            strike(draft, {fault, request, m_address, nextAddress});
        }
    }
    if (m_settings.gzip && request.acceptsGzip()) {
        compress(draft);
    }
    return std::move(draft.response);
}

void Console::setFeed(const std::string& type, std::string text)
{
    m_ownFeeds[type] = std::make_shared<const std::string>(std::move(text));
}

void Console::changeInventory(const std::function<void(Inventory&)>& change)
{
    Inventory changed = m_served->inventory;
    change(changed);
    m_served = std::make_shared<const ServedInventory>(std::move(changed), m_settings.feedBytes);
    m_compressed.clear();
}

std::shared_ptr<const Leaf> Console::leaf()
{
    if (!m_leaf) {
        changeLeaf(Leaf::Kind::Valid);
    }
    return m_leaf;
}

void Console::changeLeaf(Leaf::Kind kind)
{
    m_leaf = makeLeaf(m_address, kind);
}

// To check a session key, clients request the console's own feed with one more accepted form than in a feed request.
RequestKind Console::kindOf(const Request& request) const
{
    using enum RequestKind::Area;
    const std::string path = request.resource();
    if (path == "/rest/api/web/Logon") {
        return {Logon, {}};
    }
    if (path.starts_with("/rest/api/pcm/")) {
        return {path.ends_with("/ProcessedMetrics") ? Metrics : MetricsDocument, {}};
    }
    if (path.find("/quick/") != std::string::npos) {
        return {Quick, {}};
    }
    for (const std::string_view type : feedTypes) {
        const std::string_view schema = type == "ServiceableEvent" ? "sem" : "uom";
        if (path == "/rest/api/" + std::string(schema) + "/" + std::string(type)) {
            const bool check = type == "ManagementConsole" &&
                               request.header("Accept").value_or("").find("uom+xml") != std::string::npos;
            return check ? RequestKind{SessionCheck, {}} : RequestKind{Feed, std::string(type)};
        }
    }
    return {Other, {}};
}

Response Console::logon(const Request& request)
{
    if (request.method != "PUT") {
        return errorResponse(405, "A logon is a PUT.");
    }
    if (!holdsElement(request.body, "UserID", m_settings.user) ||
        !holdsElement(request.body, "Password", m_settings.password)) {
        return errorResponse(401, "The user or the password is wrong.");
    }
    const auto high = m_settings.seed + static_cast<std::uint64_t>(m_index) * 104729U;
    ++m_logons;
    const std::string key = makeIdentifier(high, m_logons) + "+/" + makeIdentifier(m_logons, ~high) + "=";
    m_sessions.insert(key);
    return logonResponse(key);
}

bool Console::hasSession(const Request& request) const
{
    return m_sessions.contains(request.header("X-API-Session").value_or(""));
}

Draft Console::answerOf(const Request& request, const RequestKind& kind, const std::vector<Fault>& faults)
{
    Draft draft;
    if (request.method != "GET") {
        draft.response = errorResponse(405, "This can only be read.");
        return draft;
    }
    if (kind.area == RequestKind::Area::Quick) {
        draft.response = quick(request.resource());
        return draft;
    }
    if (kind.area == RequestKind::Area::Metrics || kind.area == RequestKind::Area::MetricsDocument) {
        draft.response = metrics(request, kind, faults);
        return draft;
    }
    const bool isFeed = kind.area == RequestKind::Area::Feed || kind.area == RequestKind::Area::SessionCheck;
    if (!isFeed) {
        draft.response = errorResponse(404, "There is no such resource.");
        return draft;
    }
    const std::string type = kind.type.empty() ? "ManagementConsole" : kind.type;
    draft.response = textResponse("application/atom+xml; charset=UTF-8", "");
    if (const auto own = m_ownFeeds.find(type); own != m_ownFeeds.end()) {
        draft.response.body = makeBody(own->second);
    } else {
        draft.response.body = makeBody(filled(m_served->feeds.find(type)->second, m_blanks));
        draft.feedType = type;
    }
    return draft;
}

Response Console::quick(const std::string& path) const
{
    const std::size_t at = path.find("/quick/");
    const std::size_t idStart = path.rfind('/', at - 1) + 1;
    const auto value = m_served->quickValues.find(path.substr(idStart, at - idStart) + path.substr(at + 6));
    return value == m_served->quickValues.end() ? errorResponse(404, "There is no such property.")
                                                : textResponse("application/json", value->second);
}

// The paths are ".../ManagedSystem/ID/ProcessedMetrics" and ".../ManagedSystem/ID/ProcessedMetrics/NUMBER.json", where
// NUMBER is the number of samples asked for.
Response Console::metrics(const Request& request, const RequestKind& kind, const std::vector<Fault>& faults) const
{
    const bool isFeed = kind.area == RequestKind::Area::Metrics;
    const std::string path = request.resource();
    const std::size_t idEnd = path.find("/ProcessedMetrics");
    const std::string id = path.substr(0, idEnd).substr(path.substr(0, idEnd).rfind('/') + 1);
    const auto system = std::ranges::find(inventory().systems, id, &ManagedSystem::id);
    if (system == inventory().systems.end()) {
        return errorResponse(404, "There is no such system.");
    }
    const std::string contentType = isFeed ? "application/atom+xml; charset=UTF-8" : "application/json";
    if (const auto own = m_ownFeeds.find(isFeed ? "Metrics" : "MetricsDocument"); own != m_ownFeeds.end()) {
        return textResponse(contentType, *own->second);
    }
    if (isFeed) {
        const std::string link = "https://" + m_address + ":" + std::to_string(consolePort) + path + "/" +
                                 std::to_string(queryNumber(request.path, "NoOfSamples")) + ".json";
        return textResponse(contentType, writeMetricsFeed(*system, link));
    }
    MetricsShape shape;
    shape.samples = std::min(std::max(0, std::atoi(path.c_str() + path.rfind('/') + 1)), m_settings.samples);
    shape.samples = isStruck(faults, "emptyMetrics", kind) ? 0 : shape.samples;
    shape.unprocessed = isStruck(faults, "unprocessedMetrics", kind);
    shape.nulls = isStruck(faults, "nullMetrics", kind);
    shape.partitions = m_settings.partitions;
    shape.seed = m_settings.seed + static_cast<std::uint64_t>(system - inventory().systems.begin());
    return textResponse(contentType, writeMetricsDocument(*system, shape));
}

void Console::compress(Draft& draft)
{
    if (draft.feedType.empty()) {
        return;
    }
    std::shared_ptr<const std::string>& packed = m_compressed[draft.feedType];
    if (!packed) {
        packed = std::make_shared<const std::string>(gzipped(readAll(*draft.response.body)));
    }
    draft.response.body = makeBody(packed);
    draft.response.headers.emplace_back("Content-Encoding", "gzip");
}

} // namespace lodestar::simulator
