// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// Puts sentences together that are made of parts.
class Sentence : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The parts in order, without the empty ones, with the language's comma between them.
    Q_INVOKABLE static QString joined(QStringList parts);
};

} // namespace lodestar
