// SPDX-License-Identifier: Apache-2.0
#include "Feedback/Redaction.h"

#include "Feedback/LogText.h"

#include <fmt/core.h>

#include <algorithm>
#include <cctype>

namespace lodestar
{

namespace
{

constexpr std::size_t shortest = 4;

std::string percentEncoded(std::string_view secret)
{
    std::string text;
    for (const char c : secret) {
        const auto byte = static_cast<unsigned char>(c);
        const bool plain = std::isalnum(byte) != 0 || c == '-' || c == '.' || c == '_' || c == '~';
        text += plain ? std::string(1, c) : fmt::format("%{:02X}", byte);
    }
    return text;
}

void replaceAll(std::string& text, std::string_view part, std::string_view by)
{
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) {
        text.replace(at, part.size(), by);
        at += by.size();
    }
}

std::string asXml(std::string text)
{
    replaceAll(text, "&", "&amp;");
    replaceAll(text, "<", "&lt;");
    replaceAll(text, ">", "&gt;");
    return text;
}

/// Every form in which a secret may appear, longest first: when one secret is the start of another, replacing the
/// shorter first would leave the end of the longer.
std::vector<std::string> disguises(const std::vector<std::string>& secrets)
{
    std::vector<std::string> all;
    for (const std::string& secret : secrets) {
        if (secret.size() < shortest) {
            continue;
        }
        std::string logged;
        appendLogText(logged, secret);
        all.insert(all.end(), {secret, std::move(logged), percentEncoded(secret), asXml(secret)});
    }
    std::sort(all.begin(), all.end(), [](const std::string& a, const std::string& b) {
        return a.size() != b.size() ? a.size() > b.size() : a < b;
    });
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

/// Replaces the text between the end of each `opening` and the next of the `closing` characters.
void removeBetween(std::string& text, std::string_view opening, std::string_view skipped, std::string_view closing)
{
    for (std::size_t at = text.find(opening); at != std::string::npos; at = text.find(opening, at)) {
        at += opening.size();
        const std::size_t start = text.find_first_not_of(skipped, at);
        const std::size_t end = std::min(text.find_first_of(closing, start), text.size());
        if (start != std::string::npos && end > start) {
            text.replace(start, end - start, redactionMark);
        }
    }
}

/// Replaces the content of each element with that name.
void removeContent(std::string& text, std::string_view element)
{
    for (std::size_t at = text.find(element); at != std::string::npos; at = text.find(element, at)) {
        const std::size_t start = text.find('>', at);
        at += element.size();
        const std::size_t end = text.find('<', at);
        if (start < end && end != std::string::npos) {
            text.replace(start + 1, end - start - 1, redactionMark);
        }
    }
}

} // namespace

std::string redacted(std::string_view text, const std::vector<std::string>& secrets)
{
    std::string result(text);
    for (const std::string& secret : disguises(secrets)) {
        replaceAll(result, secret, redactionMark);
    }
    for (const std::string_view header : {"X-API-Session:", "X-API-Session=", "X-API-Session\":"}) {
        removeBetween(result, header, " \"'", " \"'<>,;\n\\");
    }
    removeContent(result, "<X-API-Session");
    removeContent(result, "<Password");
    return result;
}

} // namespace lodestar
