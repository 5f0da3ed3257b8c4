// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTSupport.h"

#include "Controllers/REST/RXPromise.h"
#include "Inventory/Record.h"
#include "Platform/URLLoading/URLError.h"
#include "Platform/UserDefaults.h"
#include "XML/XMLElement.h"

#include <fmt/core.h>

#include <optional>
#include <utility>

namespace lodestar
{

namespace
{

SessionKey usable(SessionKey key)
{
    return key && key->size() <= longestSessionKey ? std::move(key) : std::nullopt;
}

} // namespace

std::string consoleURL(const Corvel& corvel, std::string_view schema, std::string_view type)
{
    return fmt::format("https://{}:12443/rest/api/{}/{}", shownText(corvel.address()), schema, type);
}

SessionKey storedSessionKey(const Corvel& corvel)
{
    const auto address = corvel.address();
    return address ? usable(UserDefaults::standard().stringForKey(*address)) : std::nullopt;
}

Result<SessionKey> sessionKeyOfAnswer(std::string_view body)
{
    const Result<XMLElement> root = XMLElement::parse(body);
    if (!root) {
        return root.error();
    }
    return usable(root.value().child("X-API-Session").text());
}

std::string causeOf(const Result<URLLoad>& load)
{
    return load ? fmt::format("status {}", load.value().response.statusCode) : description(load.error());
}

Error logonRefusal(int statusCode)
{
    Error error = promise::errorWithReason("");
    error.localizedDescription = wordsForLogonStatus(statusCode);
    return error;
}

} // namespace lodestar
