// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Error.h"

#include <string>
#include <string_view>

namespace lodestar
{

/// Domain of the command line's own errors. Their description is the sentence that a person reads.
inline constexpr std::string_view commandLineErrorDomain = "CommandLine";
enum CommandLineFailure {
    commandFailed = 1,
    commandMisused,      ///< the arguments are none that the command takes
    commandInterrupted,  ///< by a signal; there is nothing to say
    commandOutputClosed, ///< nobody reads the output any more; likewise
};

inline Error failure(std::string sentence, CommandLineFailure code = commandFailed)
{
    return {std::string(commandLineErrorDomain), code, std::move(sentence), {}, nullptr};
}
inline Error misuse(std::string sentence)
{
    return failure(std::move(sentence), commandMisused);
}
inline Error interrupted()
{
    return failure({}, commandInterrupted);
}

} // namespace lodestar
