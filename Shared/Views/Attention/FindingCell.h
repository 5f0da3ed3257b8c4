// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Table.h"

#include <QList>
#include <QString>

namespace lodestar
{

/// A row of the Attention tab, as a value: a badge, a name over a sentence, and at the end an age over a console.
struct FindingCell {
    Q_GADGET
    QML_VALUE_TYPE(findingCell)
    Q_PROPERTY(QString badge MEMBER badge)
    // A number to QML: what is compiled of it cannot read an enumeration of another module out of a value.
    Q_PROPERTY(int badgeState READ badgeStateNumber)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(bool namedByText MEMBER namedByText)
    Q_PROPERTY(QString sentence MEMBER sentence)
    Q_PROPERTY(bool quotes MEMBER quotes)
    Q_PROPERTY(QString age MEMBER age)
    Q_PROPERTY(QString console MEMBER console)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText)
    Q_PROPERTY(QString more MEMBER more)
    Q_PROPERTY(bool leadsOn MEMBER leadsOn)
    Q_PROPERTY(QList<lodestar::SwipeButton> rightButtons MEMBER rightButtons)

public:
    QString badge{}; ///< the name of a picture
    /// What colours a picture without colours of its own; None is the accent.
    Role::State badgeState = Role::State::None;
    QString name{};
    bool namedByText = false; ///< the name is a text, which is told by its beginning
    QString sentence{};
    bool quotes = false; ///< the sentence is a console's text: cut, where one of ours is drawn smaller before
    QString age{};
    QString console{}; ///< empty where the name or the header says it
    QString accessibleText{};
    QString more{};      ///< a row that is only this text, "Show all 67", has nothing else
    bool leadsOn = true; ///< can be pressed and has a chevron
    QList<SwipeButton> rightButtons{};

    int badgeStateNumber() const { return static_cast<int>(badgeState); }
    friend bool operator==(const FindingCell&, const FindingCell&) = default;
};

} // namespace lodestar
