// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetPasswords.h"

#include "Kit/Core/LineText.h"
#include "Views/FleetSheet/FleetSheetText.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace lodestar
{
namespace
{

constexpr std::size_t mostMore = 20;

} // namespace

FleetPassword::FleetPassword(std::string user, std::size_t consoles, QObject* parent)
    : QObject(parent), m_user(std::move(user)), m_consoles(consoles)
{
}

QString FleetPassword::user() const
{
    return oneLine(QString::fromStdString(m_user));
}

QString FleetPassword::consoles() const
{
    return FleetSheetText::consoles(m_consoles);
}

void FleetPasswords::setRows(const std::vector<SheetRow>& rows)
{
    std::unordered_map<std::string_view, std::size_t> places;
    m_users.clear();
    for (const SheetRow& row : rows) {
        const auto [place, isNew] = places.try_emplace(row.user, m_users.size());
        if (isNew) {
            m_users.push_back({row.user});
        }
        ++m_users[place->second].consoles;
    }
    const auto before = std::exchange(m_passwords, {});
    Q_EMIT countChanged();
    // Later, as the scene lets go of its fields later, too.
    for (FleetPassword* const each : before) {
        each->deleteLater();
    }
    showMore();
}

FleetPassword* FleetPasswords::at(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < m_passwords.size()
               ? m_passwords[static_cast<std::size_t>(index)]
               : nullptr;
}

void FleetPasswords::showMore()
{
    const std::size_t end = std::min(m_passwords.size() + mostMore, m_users.size());
    while (m_passwords.size() < end) {
        const User& user = m_users[m_passwords.size()];
        m_passwords.push_back(new FleetPassword(user.name, user.consoles, this));
        connect(m_passwords.back()->field(), &FieldOutlet::textChanged, this, &FleetPasswords::typedChanged);
    }
    Q_EMIT countChanged();
}

bool FleetPasswords::areWhole() const
{
    return !m_passwords.empty() && !hasMore() &&
           std::ranges::none_of(m_passwords, [](FleetPassword* each) { return each->field()->text().isEmpty(); });
}

std::map<std::string, std::string> FleetPasswords::typed() const
{
    std::map<std::string, std::string> passwords;
    for (FleetPassword* const each : m_passwords) {
        if (!each->field()->text().isEmpty()) {
            passwords.emplace(each->name(), each->field()->text().toStdString());
        }
    }
    return passwords;
}

} // namespace lodestar
