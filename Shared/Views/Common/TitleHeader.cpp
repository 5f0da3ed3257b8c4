// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/TitleHeader.h"

namespace lodestar
{

void TitleHeader::setCustomNavigationBar()
{
    m_titleLabel.setText(QStringLiteral("Title"));
    m_subtitleLabel.setText(QStringLiteral("Subtitle"));
    m_isBuilt = true;
}

void TitleHeader::setHeaderTitle(const QString& title, const QString& subtitle)
{
    // The types guarantee that both lines exist and are labels, so only the building is checked.
    if (!m_isBuilt) {
        qFatal("Assertion failed: self.navigationItem.titleView != nil");
    }
    m_titleLabel.setText(title);
    m_subtitleLabel.setText(subtitle);
}

} // namespace lodestar
