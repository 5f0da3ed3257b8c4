// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// A fact on a detail screen: a label over its value.
struct DetailCell {
    Q_GADGET
    QML_VALUE_TYPE(detailCell)
    Q_PROPERTY(QString textLabel MEMBER textLabel)
    Q_PROPERTY(QString detailTextLabel MEMBER detailTextLabel)
    Q_PROPERTY(bool disclosure MEMBER disclosure)

public:
    QString textLabel;
    QString detailTextLabel;
    /// Whether the row leads on: it then takes a press and shows a chevron.
    bool disclosure = false;

    friend bool operator==(const DetailCell&, const DetailCell&) = default;
};

} // namespace lodestar
