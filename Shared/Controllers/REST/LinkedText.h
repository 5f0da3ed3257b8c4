// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Platform/Error.h"

#include <optional>
#include <string>

namespace lodestar
{

/// What came of a look-up through a link. Both are there when the server refused: the screens show the text of a
/// refusal in the place of the text that was asked for.
struct LinkedText {
    std::optional<std::string> text;
    std::optional<Error> error; ///< why the text, if any, is not the one that was asked for
};

/// Fetches the text behind a link with the console's stored session key; quotes are removed. Blocks the calling thread
/// until the answer or the time-out. Any thread.
LinkedText lookUpLink(const std::string& link, const Corvel& corvel);

} // namespace lodestar
