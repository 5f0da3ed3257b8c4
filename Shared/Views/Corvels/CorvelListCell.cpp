// SPDX-License-Identifier: Apache-2.0
#include "Views/Corvels/CorvelListCell.h"

#include "Application/Model/Corvel.h"
#include "Inventory/ConsoleInformation.h"
#include "Views/Common/CellText.h"

#include <optional>
#include <string>

namespace lodestar
{
namespace
{

/// The version text of a console whose version feed was empty.
constexpr auto versionOfNothing = "V(null)R(null).(null).(null).(null)";

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
    selectionArrow.imageName = QStringLiteral("chevron");
    startAnimating();
}

void CorvelListCell::setAnimating(bool animating)
{
    for (CellIndicator* indicator : {&statusActivityIndicator, &attentionActivityIndicator, &eventsActivityIndicator}) {
        indicator->animating = animating;
    }
    statusLabel.hidden = attentionLabel.hidden = eventsLabel.hidden = selectionArrow.hidden = animating;
}

void CorvelListCell::configure(const Corvel& corvel)
{
    startAnimating();
    highlights = false;
    versionLabel.text = versionText(corvel.version());
    addressLabel.text = textOf(corvel.address());
    nameLabel.text = textOf(corvel.name());
    if (corvel.completedFetch) {
        stopAnimating();
        highlights = true;
    }
    switch (healthOf(corvel)) {
    case Health::Offline:
        statusLabel.text = tr("Offline");
        statusLabel.state = Role::State::Offline;
        highlights = false;
        selectionArrow.hidden = true;
        break;
    case Health::Error:
        statusLabel.text = tr("Error");
        statusLabel.state = Role::State::Error;
        break;
    default:
        statusLabel.text = tr("Good");
        statusLabel.state = Role::State::Good;
    }
    attentionLabel.text = QString::number(corvel.numMSLEDs);
    eventsLabel.text = eventsText(corvel);
}

QString CorvelListCell::accessibleText() const
{
    if (statusActivityIndicator.animating) {
        //: A console in the list, read aloud while it is being fetched: %1 its name
        return tr("%1, updating").arg(nameLabel.text);
    }
    //: A console in the list, read aloud: %1 name, %2 status word, %3 and %4 counts
    return tr("%1, %2, attention %3, events %4")
        .arg(nameLabel.text, statusLabel.text, attentionLabel.text, eventsLabel.text);
}

} // namespace lodestar
