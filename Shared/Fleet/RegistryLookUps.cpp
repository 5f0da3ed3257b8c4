// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/LinkedText.h"
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Inventory/Identity.h"

#include <chrono>
#include <utility>

namespace lodestar
{
namespace
{

LinkedText lookUp(const std::string& link, const CorvelRef& corvel, std::string_view type)
{
    FeedReading told;
    told.began = std::chrono::system_clock::now();
    const auto began = std::chrono::steady_clock::now();
    LinkedText linked = lookUpLink(link, *corvel);
    // What was forgotten with a record must not come back.
    if (!type.empty() && !corvel->isDeleted()) {
        told.duration = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - began);
        told.type = type;
        told.error = linked.error;
        told.status = linked.error ? statusOf(*linked.error) : 0;
        Readings::shared().addLookUp(corvel, link, told);
    }
    return linked;
}

} // namespace

std::optional<std::string> fetchLinkedText(const std::string& link, const CorvelRef& corvel, std::string_view type)
{
    return corvel ? lookUp(link, corvel, type).text : std::nullopt;
}

std::optional<std::string> fetchMemberState(const ResourceGroup::Member& member, const CorvelRef& corvel)
{
    const auto link = ResourceGroup::stateLinkOf(member);
    if (!link || !corvel) {
        return std::nullopt;
    }
    LinkedText linked = lookUp(*link, corvel, ResourceGroup::type);
    if (!linked.error && linked.text && !corvel->isDeleted()) {
        const bool isInError = ResourceGroup::healthOfMember(*linked.text) == Health::Error;
        Readings::shared().addMember(corvel, identityOfMember(member), isInError);
    }
    return std::move(linked.text);
}

} // namespace lodestar
