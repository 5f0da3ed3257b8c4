// SPDX-License-Identifier: Apache-2.0
#include "Platform/UtcStamp.h"

#include <cstddef>

namespace lodestar
{

namespace
{

/// Formatted by hand and in place, for speed: every line of the log begins with a stamp.
void appendDigits(std::string& text, int value, std::size_t count, char end)
{
    text.append(count, '0');
    for (auto digit = text.rbegin(); count > 0; --count, ++digit, value /= 10) {
        *digit = static_cast<char>('0' + value % 10);
    }
    text += end;
}

/// A time split into whole seconds and the thousandths after them.
void appendSecond(std::string& text, std::time_t second, char end)
{
    struct tm utc = {};
    constexpr int firstYear = 1900;
    const bool fits =
        ::gmtime_r(&second, &utc) != nullptr && utc.tm_year >= -firstYear && utc.tm_year < 10000 - firstYear;
    if (!fits) {
        const std::time_t zero = 0;
        ::gmtime_r(&zero, &utc);
    }
    appendDigits(text, utc.tm_year + firstYear, 4, '-');
    appendDigits(text, utc.tm_mon + 1, 2, '-');
    appendDigits(text, utc.tm_mday, 2, 'T');
    appendDigits(text, utc.tm_hour, 2, ':');
    appendDigits(text, utc.tm_min, 2, ':');
    appendDigits(text, utc.tm_sec, 2, end);
}

} // namespace

std::string utcStamp(std::time_t second)
{
    std::string text;
    appendSecond(text, second, 'Z');
    return text;
}

void appendUtcStamp(std::string& text, std::chrono::system_clock::time_point time)
{
    using namespace std::chrono;
    // Rounds down, so that the thousandths are never negative, even for times before 1970.
    const auto second = floor<seconds>(time);
    appendSecond(text, system_clock::to_time_t(second), '.');
    appendDigits(text, static_cast<int>(floor<milliseconds>(time - second).count()), 3, 'Z');
}

} // namespace lodestar
