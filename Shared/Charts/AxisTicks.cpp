// SPDX-License-Identifier: Apache-2.0
#include "Charts/AxisTicks.h"

#include <QLocale>

#include <array>
#include <cmath>
#include <limits>

namespace lodestar
{
namespace
{

constexpr qsizetype mostTicks = 200;
constexpr double headroom = 0.02;  // Share of the values' range that stays free beyond them.
constexpr double mostEmpty = 0.15; // Share that may stay empty below the values, so that the axis begins at a tick.
constexpr int mostFixedDigits = 7; // Before or after the point; a number with more has an exponent.

double powerOfTen(int exponent)
{
    // The quotient is exact for the exponents that screens show; pow() with a negative exponent is not.
    return exponent >= 0 ? std::pow(10.0, exponent) : 1 / std::pow(10.0, -exponent);
}

/// The interval that is shown when all values are the same.
PlotInterval around(double value)
{
    const double room = value == 0 ? 1 : std::abs(value) / 8;
    return {value > 0 || value < 0 ? value - room : 0, value + room};
}

} // namespace

double TickStep::size() const
{
    return exponent >= 0 ? factor * powerOfTen(exponent) : factor / powerOfTen(-exponent);
}

QString TickStep::text(double value) const
{
    const double magnitude = std::abs(value);
    if (magnitude < size() / 2) {
        return QStringLiteral("0");
    }
    QString text;
    const int leading = static_cast<int>(std::floor(std::log10(magnitude) + 1e-9));
    if (leading >= mostFixedDigits || exponent < -mostFixedDigits) {
        text = QString::number(value, 'e', qBound(0, leading - exponent, 16));
        text.replace(QLatin1String("e+0"), QLatin1String("e")).replace(QLatin1String("e-0"), QLatin1String("e-"));
        text.remove(QLatin1Char('+'));
    } else {
        text = QString::number(value, 'f', std::max(0, -exponent));
    }
    return text.replace(QLatin1Char('.'), QLocale().decimalPoint());
}

TickStep tickStep(double length, double most)
{
    const double raw = length / std::max(most, 1.0);
    if (!(raw > 0) || !std::isfinite(raw)) {
        return {};
    }
    TickStep step{1, static_cast<int>(std::floor(std::log10(raw)))};
    // A tiny tolerance, so that rounding does not make a length of exactly ten steps longer than ten.
    for (const int factor : {1, 2, 5}) {
        step.factor = factor;
        if (step.size() >= raw * (1 - 1e-9)) {
            return step;
        }
    }
    return {1, step.exponent + 1};
}

QList<double> ticksWithin(const PlotInterval& interval, const TickStep& step)
{
    QList<double> ticks;
    const double tolerance = interval.length() * 1e-9;
    const double size = step.size();
    const double first = std::ceil((interval.from - tolerance) / size);
    const double last = std::floor((interval.to + tolerance) / size);
    for (double number = first; number <= last && ticks.size() < mostTicks; ++number) {
        // Dividing gives 3 × 0.1 = 0.3; multiplying by 0.1 would give 0.30000000000000004.
        const double units = number * step.factor;
        ticks << (step.exponent >= 0 ? units * powerOfTen(step.exponent) : units / powerOfTen(-step.exponent));
        if (number + 1 == number) {
            break;
        }
    }
    return ticks;
}

PlotInterval valueAxis(PlotInterval values, bool withZero, double most)
{
    if (values.isEmpty()) {
        values = {0, 1};
    }
    if (withZero) {
        values.include(0.0);
    }
    const double magnitude = std::max(std::abs(values.from), std::abs(values.to));
    // Also applies to values that differ by less than numbers of their size can tell apart.
    if (!(values.length() > magnitude * 1e-7)) {
        values = around((values.from + values.to) / 2);
    }
    const double room = headroom * values.length();
    const double half = tickStep(values.length() + 2 * room, most).size() / 2;
    PlotInterval axis{2 * half * std::floor((values.from - room) / (2 * half)),
                      half * std::ceil((values.to + room) / half)};
    // An axis best begins at a tick; but it begins half a step higher if too much of the plot would be empty.
    const double nearer = half * std::floor((values.from - room) / half);
    if (nearer - axis.from > mostEmpty * values.length()) {
        axis.from = nearer;
    }
    // Without negative values the axis has no negative part, and without positive values no positive part.
    if (values.from >= 0) {
        axis.from = std::max(axis.from, 0.0);
    }
    if (values.to <= 0) {
        axis.to = std::min(axis.to, 0.0);
    }
    return axis;
}

int labelStride(double leastIndices)
{
    for (int power = 1; power <= 100'000'000; power *= 10) {
        for (const int factor : {1, 2, 4, 5}) {
            if (factor * power >= leastIndices) {
                return factor * power;
            }
        }
    }
    return std::numeric_limits<int>::max();
}

} // namespace lodestar
