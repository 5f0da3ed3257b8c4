// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace lodestar
{

/// A function that fetches afresh, as the log names it when the fetch fails.
struct FeedFetch {
    std::string_view selector;
    int line;
};

/// When the control of a pull to refresh goes back.
enum class PullEnds {
    AtOnce,      ///< at the pull; the list's own indicator shows the fetch
    OnSettlement ///< when the fetch has settled
};

/// Insets of hairlines from a row's start and end, in points.
struct SeparatorInset {
    double left;
    double right;
};

/// The differences between the lists of a console's feeds. Texts are marked with
/// QT_TRANSLATE_NOOP("FeedListViewController", …) and translated where they are shown.
struct FeedListTraits {
    std::string_view fileName; ///< path and class, for the log
    int instantiationLine;     ///< line number of `viewDidLoad`'s log line
    std::string_view type;     ///< the feed's type
    const char* title;
    /// Names in the log for the fetches of `fetchNewRESTData`, the pull and the refresh button; most lists have one
    /// name.
    FeedFetch newDataFetch;
    FeedFetch pullFetch = newDataFetch;
    FeedFetch buttonFetch = newDataFetch;
    PullEnds pullEnds = PullEnds::AtOnce;
    SeparatorInset separators = {10, 15};
    SeparatorInset resultSeparators = {10, 17};
    double rowHeight = 50; ///< in points, at 100 % text
    bool searchable = true;
    const char* noDataImage;
    const char* noDataText;
    /// A second no-data label above the first; null for none.
    const char* noDataHeadline = nullptr;
    /// Shown below the picture when the list was fetched and is empty.
    const char* emptyText;
};

} // namespace lodestar
