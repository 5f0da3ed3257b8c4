// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace lodestar
{

/// A method that fetches afresh, as its failures are logged.
struct FeedFetch {
    std::string_view selector;
    int line;
};

/// When a pull's control goes back.
enum class PullEnds {
    AtOnce,      ///< with the pull: the list's own indicator tells how the fetch goes on
    OnSettlement ///< when the fetch has settled
};

/// Of hairlines, points from a row's start and end.
struct SeparatorInset {
    double left;
    double right;
};

/// How one list of a console's feed differs from the others. Texts are marked with
/// QT_TRANSLATE_NOOP("FeedListViewController", …) and translated where they are shown.
struct FeedListTraits {
    std::string_view fileName; ///< for the log: path and class
    int instantiationLine;     ///< of the log line of `viewDidLoad`
    std::string_view type;     ///< of the feed
    const char* title;
    /// What `fetchNewRESTData`, the pull and the refresh button are called in the log; most lists have one method.
    FeedFetch newDataFetch;
    FeedFetch pullFetch = newDataFetch;
    FeedFetch buttonFetch = newDataFetch;
    PullEnds pullEnds = PullEnds::AtOnce;
    SeparatorInset separators = {10, 15};
    SeparatorInset resultSeparators = {10, 17};
    double rowHeight = 50; ///< points, at 100 % text
    bool searchable = true;
    const char* noDataImage;
    const char* noDataText;
    /// A second no-data label above the first; null for none.
    const char* noDataHeadline = nullptr;
    /// Said below the picture by a list that was fetched and has nothing in it.
    const char* emptyText;
};

} // namespace lodestar
