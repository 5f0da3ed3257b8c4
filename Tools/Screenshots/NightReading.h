// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/Model/Corvel.h"
#include "Fleet/Reading.h"
#include "Inventory/Feed.h"

#include <map>
#include <string>

namespace lodestar::simulator
{
struct Deed;
}

namespace lodestar::scenes
{

/// How a console answers.
struct Condition {
    enum class Offline { No, Silent, CertificateChanged };
    Offline offline = Offline::No;
    std::map<std::string, int, std::less<>> missing; ///< feeds' types with the status that is answered

    /// Does a deed of a story that is none of the inventory's.
    void change(const simulator::Deed& deed);
};

/// What a refresh that ended then would have told of the console.
Reading readingOf(const Condition& condition, const Corvel& corvel, const FeedDictionary& feeds, WallTime ended);

} // namespace lodestar::scenes
