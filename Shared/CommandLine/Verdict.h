// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace lodestar
{

/// How a command ends; the numbers are the program's exit codes, by the convention of monitoring plugins.
enum class Verdict { Good = 0, Warnings = 1, Errors = 2, Unknown = 3 };

constexpr std::string_view wordOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Good:
        return "good";
    case Verdict::Warnings:
        return "warnings";
    case Verdict::Errors:
        return "errors";
    case Verdict::Unknown:
        break;
    }
    return "unknown";
}

} // namespace lodestar
