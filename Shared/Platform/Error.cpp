// SPDX-License-Identifier: Apache-2.0
#include "Platform/Error.h"

#include <algorithm>

namespace lodestar
{

namespace
{

/// Puts the text on one line: a log entry stays one line, whatever a console put into its answer.
std::string singleLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return text;
}

void append(std::string& line, std::string_view separator, const std::string& text)
{
    if (!text.empty()) {
        line.append(line.empty() ? std::string_view() : separator).append(text);
    }
}

void appendPair(std::string& pairs, std::string_view key, const std::string& value)
{
    if (!value.empty()) {
        append(pairs, ", ", std::string(key) + "=" + value);
    }
}

} // namespace

std::string description(const Error& error)
{
    std::string line = error.domain;
    if (error.code != 0) {
        append(line, " ", std::to_string(error.code));
    }
    append(line, ": ", error.localizedDescription);
    std::string more = error.failureReason;
    if (error.underlying != nullptr) {
        append(more, "; ", "underlying: " + description(*error.underlying));
    }
    if (!more.empty()) {
        append(line, " ", "(" + more + ")");
    }
    return singleLine(std::move(line));
}

std::string userInfoDescription(const Error& error)
{
    std::string pairs;
    appendPair(pairs, "localizedDescription", error.localizedDescription);
    appendPair(pairs, "failureReason", error.failureReason);
    if (error.underlying != nullptr) {
        appendPair(pairs, "underlying", description(*error.underlying));
    }
    return singleLine("{" + pairs + "}");
}

std::string shownDescription(const Error& error)
{
    if (!error.localizedDescription.empty()) {
        return error.localizedDescription;
    }
    constexpr std::string_view failed = "The operation couldn\u2019t be completed. ";
    std::string sentence(failed);
    if (!error.failureReason.empty()) {
        return sentence + error.failureReason;
    }
    return sentence + "(" + error.domain + " error " + std::to_string(error.code) + ".)";
}

} // namespace lodestar
