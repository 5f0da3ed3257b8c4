// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"

namespace lodestar
{

/// The two-line title view of a pushed screen's bar, 200 by 44 points: a title over a subtitle. A member of its
/// controller.
class TitleHeader : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of a controller")
    Q_PROPERTY(lodestar::LabelOutlet* titleLabel READ titleLabel CONSTANT)
    Q_PROPERTY(lodestar::LabelOutlet* subtitleLabel READ subtitleLabel CONSTANT)

public:
    LabelOutlet* titleLabel() { return &m_titleLabel; }
    LabelOutlet* subtitleLabel() { return &m_subtitleLabel; }

    /// Builds the view, with placeholders. Call once, on the main thread.
    void setCustomNavigationBar();
    /// Any thread. Setting the texts before the view was built is a programming error and ends the process.
    void setHeaderTitle(const QString& title, const QString& subtitle);

private:
    LabelOutlet m_titleLabel;
    LabelOutlet m_subtitleLabel;
    bool m_isBuilt = false;
};

} // namespace lodestar
