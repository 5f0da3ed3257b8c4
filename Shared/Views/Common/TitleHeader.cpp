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
    // That both lines are there and are labels, the types see to.
    if (!m_isBuilt) {
        qFatal("Assertion failed: self.navigationItem.titleView != nil");
    }
    m_titleLabel.setText(title);
    m_subtitleLabel.setText(subtitle);
}

} // namespace lodestar
