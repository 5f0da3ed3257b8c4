// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/FleetSheet.h"
#include "Kit/Core/Outlets.h"

#include <map>
#include <string>
#include <vector>

namespace lodestar
{

/// The field for one user's password.
class FleetPassword : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QString user READ user CONSTANT)
    Q_PROPERTY(QString consoles READ consoles CONSTANT)
    Q_PROPERTY(lodestar::FieldOutlet* field READ field CONSTANT)

public:
    FleetPassword(std::string user, std::size_t consoles, QObject* parent);
    const std::string& name() const { return m_user; }
    QString user() const;
    /// "40 consoles".
    QString consoles() const;
    FieldOutlet* field() { return &m_field; }

private:
    const std::string m_user;
    const std::size_t m_consoles;
    FieldOutlet m_field;
};

/// One password a user. The first fields are there, twenty more at a time. Main thread.
class FleetPasswords : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(bool more READ hasMore NOTIFY countChanged)

public:
    /// How many consoles each of the rows' users has, users in the order of the rows.
    void setRows(const std::vector<SheetRow>& rows);
    int count() const { return static_cast<int>(m_passwords.size()); }
    bool hasMore() const { return m_passwords.size() < m_users.size(); }
    Q_INVOKABLE lodestar::FleetPassword* at(int index) const;
    Q_INVOKABLE void showMore();
    /// Whether there is a user, and every one has a password.
    bool areWhole() const;
    /// Those that were typed, by user.
    std::map<std::string, std::string> typed() const;

Q_SIGNALS:
    void countChanged();
    void typedChanged();

private:
    struct User {
        std::string name;
        std::size_t consoles = 0;
    };
    std::vector<User> m_users;
    std::vector<FleetPassword*> m_passwords; ///< of the first users; children of this, or QML would delete them
};

} // namespace lodestar
