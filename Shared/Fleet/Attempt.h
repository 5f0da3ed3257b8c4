// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/Exchange.h"
#include "Fleet/Reading.h"
#include "Inventory/Feed.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lodestar
{

/// One refresh of a console as the client saw it: what a reading is made of.
struct Attempt {
    std::string address; ///< the record's
    WallTime began;
    WallTime ended;
    std::vector<Exchange> exchanges;
    std::optional<Error> rejection;              ///< why the console is offline
    std::shared_ptr<const FeedDictionary> feeds; ///< null when the console is offline
};

} // namespace lodestar
