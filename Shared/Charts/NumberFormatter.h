// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace lodestar
{

/// Turns a chart's numbers into text. Rounds to the nearest, ties to the even digit (2.25 with one digit is "2.2");
/// fraction digits that are zero are left off; no grouping, so that a slice's value stays short.
struct NumberFormatter {
    enum class Style { Decimal, Percent };

    Style numberStyle = Style::Decimal;
    int maximumFractionDigits = 0;               ///< Taken within 0 to 17.
    double multiplier = 1;                       ///< Applied in both styles; the percent style adds none of its own.
    QString percentSymbol = QStringLiteral("%"); ///< Appended in the percent style; may be empty.

    /// The text with the process's decimal point; empty when the product is not finite.
    QString stringFromNumber(double number) const;

    bool operator==(const NumberFormatter&) const = default;
};

} // namespace lodestar
