// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"
#include "Views/FleetSheet/FleetPasswords.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace lodestar
{

/// The sheet that asks for the passwords of consoles that refused them. A field that stays empty keeps its password.
class FleetAgainViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(lodestar::FleetPasswords* passwords READ passwords CONSTANT)

public:
    struct Host {
        std::function<void(const std::map<std::string, std::string>& passwords)> again;
        std::function<void()> leave; ///< takes the sheet down
    };

    FleetAgainViewController(const std::vector<SheetRow>& refused, Host host);

    FleetPasswords* passwords() { return &m_passwords; }
    /// In points, at 100 % text.
    double height() const;

    Q_INVOKABLE void verify();
    Q_INVOKABLE void cancel();

private:
    FleetPasswords m_passwords;
    const Host m_host;
    bool m_isLeft = false; ///< the sheet can be pressed while it slides away
};

} // namespace lodestar
