// SPDX-License-Identifier: Apache-2.0
#include "Charts/NumberFormatter.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace lodestar
{

QString NumberFormatter::stringFromNumber(double number) const
{
    const double product = number * multiplier;
    if (!std::isfinite(product)) {
        return {};
    }
    // Qt's own conversion is not used because it rounds ties away from zero. The longest double has 309 digits before
    // its point.
    std::array<char, 352> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), product, std::chars_format::fixed,
                                   std::clamp(maximumFractionDigits, 0, 17));
    std::string_view digits(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
    if (digits.find('.') != std::string_view::npos) {
        digits = digits.substr(0, digits.find_last_not_of('0') + 1);
        if (digits.back() == '.') {
            digits.remove_suffix(1);
        }
    }
    if (digits == "-0") {
        digits.remove_prefix(1);
    }
    QString text = QString::fromLatin1(digits.data(), static_cast<qsizetype>(digits.size()));
    text.replace(QLatin1Char('.'), QLocale().decimalPoint());
    return numberStyle == Style::Percent ? text + percentSymbol : text;
}

} // namespace lodestar
