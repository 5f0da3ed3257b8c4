// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

namespace lodestar
{

class FeedbackWindow;
class TabBarController;

/// Brings the window to the front with the first screen of the Attention tab, as a tap on a message wants it. Behind
/// the passcode screen, it is shown once the passcode was given. Main thread.
class AttentionOpener : public QObject
{
    Q_OBJECT

public:
    /// The window must outlive this object.
    explicit AttentionOpener(FeedbackWindow& window);
    void open();

private:
    TabBarController* mainInterface() const;
    void select();
    void becameActive();

    FeedbackWindow& m_window;
    bool m_isWanted = false; ///< a passcode screen is, or may come, before the tab
};

} // namespace lodestar
