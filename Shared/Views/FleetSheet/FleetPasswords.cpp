// SPDX-License-Identifier: Apache-2.0
#include "Views/FleetSheet/FleetPasswords.h"

#include "Kit/Core/LineText.h"
#include "Views/FleetSheet/FleetSheetText.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace lodestar
{
namespace
{

constexpr int mostMore = 20;

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
    std::unordered_map<std::string, std::size_t> counts;
    std::vector<std::string> users;
    for (const SheetRow& row : rows) {
        if (++counts[row.user] == 1) {
            users.push_back(row.user);
        }
    }
    m_shown = 0;
    Q_EMIT countChanged();
    // Later, as the scene lets go of its fields later, too.
    for (FleetPassword* const before : std::exchange(m_passwords, {})) {
        before->deleteLater();
    }
    for (const std::string& user : users) {
        m_passwords.push_back(new FleetPassword(user, counts[user], this));
        connect(m_passwords.back()->field(), &FieldOutlet::textChanged, this, &FleetPasswords::typedChanged);
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
    m_shown = std::min(m_shown + mostMore, static_cast<int>(m_passwords.size()));
    Q_EMIT countChanged();
}

bool FleetPasswords::areWhole() const
{
    return !m_passwords.empty() &&
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
