// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Csv.h"
#include "Fleet/FindingBands.h"
#include "Kit/Core/ViewController.h"

namespace lodestar
{

/// One segment of the Attention tab: a screen's content without a bar of its own. It is on no stack itself: its host,
/// the screen that holds the segments, opens screens and presents sheets for it. The host loads a segment when it is
/// first chosen and tells it when it appears and disappears. Main thread.
class AttentionSegment : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")

public:
    /// The screen to open other screens from and to present sheets on; outlives the segment's use. Set once.
    ViewController& host() { return *m_host; }
    void setHost(ViewController& host) { m_host = &host; }

    /// The rows, as a table for scripts and spreadsheets.
    virtual Table shownTable() const = 0;

    /// What a person chose to see in the segments; by default everything.
    const FindingFilter& filter() const { return m_filter; }
    void setFilter(FindingFilter filter)
    {
        m_filter = std::move(filter);
        filterDidChange();
    }

protected:
    virtual void filterDidChange() {}

private:
    ViewController* m_host = this;
    FindingFilter m_filter;
};

} // namespace lodestar
