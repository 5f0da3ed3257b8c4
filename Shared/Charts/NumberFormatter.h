// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace lodestar
{

/// Turns a chart's numbers into text. Rounds to the nearest, ties to the even digit (2.25 with one digit is "2.2").
/// Trailing zeros after the point are left off. Digits are not grouped, so that a slice's value stays short.
struct NumberFormatter {
    enum class Style { Decimal, Percent };

    Style numberStyle = Style::Decimal;
    int maximumFractionDigits = 0; ///< Values outside 0 to 17 count as the nearer of the two.
    double multiplier = 1;         ///< Applies to both styles; the percent style itself multiplies by nothing.
    QString percentSymbol = QStringLiteral("%"); ///< Appended in the percent style; may be empty.

    /// The text, with the process's decimal point; empty when number times multiplier is not finite.
    QString stringFromNumber(double number) const;
};

} // namespace lodestar
