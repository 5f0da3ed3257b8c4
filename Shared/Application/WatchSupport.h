// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application/AttentionOpener.h"

#include <QObject>

namespace lodestar
{

/// What the watch needs of the desktop: its messages, its network, the window that a tap on a message opens. The watch
/// starts once the history is open. Main thread.
class WatchSupport : public QObject
{
    Q_OBJECT

public:
    /// The window must outlive this object.
    explicit WatchSupport(FeedbackWindow& window);
    ~WatchSupport() override;

private:
    AttentionOpener m_opener;
};

} // namespace lodestar
