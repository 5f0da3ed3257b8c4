// SPDX-License-Identifier: Apache-2.0
#include "Controllers/REST/RESTSupport.h"

#include "Controllers/REST/RXPromise.h"
#include "Inventory/Record.h"
#include "Platform/URLLoading/ErrorWords.h"
#include "Platform/UserDefaults.h"
#include "XML/XMLElement.h"

#include <fmt/core.h>

#include <cstdint>
#include <optional>
#include <utility>

namespace lodestar
{

namespace
{

struct Lead {
    std::size_t followers;
    /// Bounds of the first follower; they exclude overlong forms, surrogates and values beyond Unicode.
    std::uint8_t firstLow;
    std::uint8_t firstHigh;
};

std::optional<Lead> leadOf(std::uint8_t byte)
{
    if (byte < 0x80) {
        return Lead{0, 0, 0};
    }
    if (byte >= 0xC2 && byte <= 0xDF) {
        return Lead{1, 0x80, 0xBF};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        return Lead{2, static_cast<std::uint8_t>(byte == 0xE0 ? 0xA0 : 0x80),
                    static_cast<std::uint8_t>(byte == 0xED ? 0x9F : 0xBF)};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        return Lead{3, static_cast<std::uint8_t>(byte == 0xF0 ? 0x90 : 0x80),
                    static_cast<std::uint8_t>(byte == 0xF4 ? 0x8F : 0xBF)};
    }
    return std::nullopt;
}

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

bool isUTF8(std::string_view bytes)
{
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = leadOf(static_cast<std::uint8_t>(bytes[i]));
        if (!lead || bytes.size() - i <= lead->followers) {
            return false;
        }
        for (std::size_t k = 1; k <= lead->followers; ++k) {
            const auto follower = static_cast<std::uint8_t>(bytes[i + k]);
            const std::uint8_t low = k == 1 ? lead->firstLow : 0x80;
            const std::uint8_t high = k == 1 ? lead->firstHigh : 0xBF;
            if (follower < low || follower > high) {
                return false;
            }
        }
        i += lead->followers + 1;
    }
    return true;
}

} // namespace lodestar
