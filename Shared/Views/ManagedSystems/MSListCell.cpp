// SPDX-License-Identifier: Apache-2.0
#include "Views/ManagedSystems/MSListCell.h"

#include "Kit/Core/UIColor+Tessel.h"
#include "Views/Common/CellText.h"
#include "XML/XMLElement.h"

#include <string>
#include <utility>

namespace lodestar
{
namespace
{

constexpr double nameLeftBesideBadge = 45;

} // namespace

MSListCell::MSListCell(const XMLElement& system, const QString& match)
{
    const std::string state = system.child("State").text().value_or("");
    // States are judged by their exact wording, case included.
    m_isError = state.find("error") != std::string::npos || state.find("incomplete") != std::string::npos;
    m_isLEDLit = system.child("PhysicalSystemAttentionLEDState").text() == "true";
    if (m_isError || m_isLEDLit) {
        const char* const badge = !m_isLEDLit ? "ms_stateerror" : !m_isError ? "ms_lederror" : "ms_botherror";
        m_statusImage = {QString::fromLatin1(badge), false};
        m_nameLeftConstraint = nameLeftBesideBadge;
    }
    m_nameLabel.text = textOf(system.child("SystemName"));
    m_nameLabel.match = match;
    m_statusLabel.text = QString::fromStdString(state);
    const bool isOperating = state == "operating";
    m_statusLabel.color = isOperating ? UIColor::successGreen() : UIColor::grayColor();
    m_statusMark = isOperating ? QStringLiteral("good") : m_isError ? QStringLiteral("error") : QStringLiteral("off");
}

QString MSListCell::accessibleText() const
{
    QStringList parts = {m_nameLabel.text, m_statusLabel.text};
    if (m_isError) {
        parts << tr("error");
    }
    if (m_isLEDLit) {
        parts << tr("attention LED on");
    }
    parts.removeDuplicates();
    return spoken(std::move(parts));
}

} // namespace lodestar
