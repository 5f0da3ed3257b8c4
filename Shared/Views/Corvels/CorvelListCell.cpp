// SPDX-License-Identifier: Apache-2.0
#include "Views/Corvels/CorvelListCell.h"

#include "Application/Model/Corvel.h"
#include "Inventory/ConsoleInformation.h"

#include <optional>
#include <string>

namespace lodestar
{
namespace
{

/// The version text of a console whose version feed was empty.
constexpr auto versionOfNothing = "V(null)R(null).(null).(null).(null)";

QString text(const std::optional<std::string>& value)
{
    return value ? QString::fromStdString(*value) : QString();
}

QString versionText(const std::optional<std::string>& version)
{
    if (version == versionOfNothing) {
        return CorvelListCell::tr("N/A");
    }
    // A record that was never fetched has no version; "(null)" is shown for it.
    return version ? QString::fromStdString(*version) : QStringLiteral("(null)");
}

QString eventsText(const Corvel& corvel)
{
    const Feed events = feedOfType(corvel, ObjectType::ServiceableEvent);
    return events.isNA() ? QStringLiteral("0") : QString::number(events.entryCount());
}

} // namespace

CorvelListCell::CorvelListCell()
{
    m_selectionArrow.imageName = QStringLiteral("chevron");
    startAnimating();
}

void CorvelListCell::startAnimating()
{
    m_selectionArrow.hidden = true;
    m_statusLabel.hidden = m_attentionLabel.hidden = m_eventsLabel.hidden = true;
    m_statusActivityIndicator.animating = true;
    m_attentionActivityIndicator.animating = true;
    m_eventsActivityIndicator.animating = true;
}

void CorvelListCell::stopAnimating()
{
    m_statusActivityIndicator.animating = false;
    m_attentionActivityIndicator.animating = false;
    m_eventsActivityIndicator.animating = false;
    m_selectionArrow.hidden = false;
    m_statusLabel.hidden = m_attentionLabel.hidden = m_eventsLabel.hidden = false;
}

void CorvelListCell::configure(const Corvel& corvel)
{
    startAnimating();
    m_highlights = false;
    m_versionLabel.text = versionText(corvel.version());
    m_addressLabel.text = text(corvel.address());
    m_nameLabel.text = text(corvel.name());
    if (corvel.completedFetch) {
        stopAnimating();
        m_highlights = true;
    }
    switch (healthOf(corvel)) {
    case Health::Offline:
        m_statusLabel.text = tr("Offline");
        m_statusLabel.state = Role::State::Offline;
        m_highlights = false;
        m_selectionArrow.hidden = true;
        break;
    case Health::Error:
        m_statusLabel.text = tr("Error");
        m_statusLabel.state = Role::State::Error;
        break;
    default:
        m_statusLabel.text = tr("Good");
        m_statusLabel.state = Role::State::Good;
    }
    m_attentionLabel.text = QString::number(corvel.numMSLEDs);
    m_eventsLabel.text = eventsText(corvel);
}

QString CorvelListCell::accessibleText() const
{
    if (m_statusActivityIndicator.animating) {
        //: A console in the list, read aloud while it is being fetched: %1 its name
        return tr("%1, updating").arg(m_nameLabel.text);
    }
    //: A console in the list, read aloud: %1 name, %2 status word, %3 and %4 counts
    return tr("%1, %2, attention %3, events %4")
        .arg(m_nameLabel.text, m_statusLabel.text, m_attentionLabel.text, m_eventsLabel.text);
}

} // namespace lodestar
