// SPDX-License-Identifier: Apache-2.0
#include "Views/ResourceGroups/RGListCell.h"

#include "Inventory/ResourceGroup.h"
#include "Views/Common/CellText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lodestar
{
namespace
{

struct Tag {
    std::string_view color;
    const char* image;
    const char* spoken;
};

constexpr std::array<Tag, 9> tags = {{
    {"Cyan", "rg_cyan", QT_TRANSLATE_NOOP("lodestar::RGListCell", "cyan")},
    {"Green", "rg_green", QT_TRANSLATE_NOOP("lodestar::RGListCell", "green")},
    {"Red", "rg_red", QT_TRANSLATE_NOOP("lodestar::RGListCell", "red")},
    {"Purple", "rg_purple", QT_TRANSLATE_NOOP("lodestar::RGListCell", "purple")},
    {"Blue", "rg_blue", QT_TRANSLATE_NOOP("lodestar::RGListCell", "blue")},
    {"Grey", "rg_grey", QT_TRANSLATE_NOOP("lodestar::RGListCell", "grey")},
    {"Yellow", "rg_yellow", QT_TRANSLATE_NOOP("lodestar::RGListCell", "yellow")},
    {"Orange", "rg_orange", QT_TRANSLATE_NOOP("lodestar::RGListCell", "orange")},
    {"Pink", "rg_pink", QT_TRANSLATE_NOOP("lodestar::RGListCell", "pink")},
}};

} // namespace

void RGStateCounts::add(std::string_view state)
{
    const auto health = ResourceGroup::healthOfMember(state);
    good += health == Health::Good ? 1 : 0;
    off += health == Health::Idle ? 1 : 0;
    alert += health == Health::Alert ? 1 : 0;
    error += health == Health::Error ? 1 : 0;
}

void RGListCell::setGroupColor(std::string_view name)
{
    const auto* const tag = std::ranges::find(tags, name, &Tag::color);
    if (tag != tags.end()) {
        groupTag.imageName = QString::fromLatin1(tag->image);
    }
}

void RGListCell::setStateCounts(const RGStateCounts& counts)
{
    goodCountLabel.text = QString::number(counts.good);
    offCountLabel.text = QString::number(counts.off);
    alertCountLabel.text = QString::number(counts.alert);
    errorCountLabel.text = QString::number(counts.error);
}

void RGListCell::setResourceCount(int count)
{
    resourceCountLabel.text = tr("%n Resources", nullptr, count);
}

QString RGListCell::accessibleText() const
{
    QStringList parts = {groupNameLabel.text};
    const auto* const tag = std::ranges::find_if(
        tags, [this](const Tag& known) { return groupTag.imageName == QLatin1String(known.image); });
    if (tag != tags.end()) {
        parts << tr(tag->spoken);
    }
    parts << resourceCountLabel.text;
    if (updating) {
        parts << tr("updating...");
        return spoken(std::move(parts));
    }
    //: A resource group's states, read aloud: counts
    parts << tr("%1 good, %2 off, %3 alert, %4 error")
                 .arg(goodCountLabel.text, offCountLabel.text, alertCountLabel.text, errorCountLabel.text);
    return spoken(std::move(parts));
}

} // namespace lodestar
