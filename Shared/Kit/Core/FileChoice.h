// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <utility>

namespace lodestar
{

/// What a file dialogue is opened for, and whom it tells of the choice. Main thread.
class FileChoice : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the opener of the dialogue")
    Q_PROPERTY(bool saves MEMBER saves CONSTANT)
    Q_PROPERTY(QUrl folder MEMBER folder CONSTANT)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString filter MEMBER filter CONSTANT)

public:
    using QObject::QObject;
    bool saves = false;
    QUrl folder;                             ///< shown at first
    QString name;                            ///< suggested, to save
    QString filter;                          ///< to open
    std::function<void(const QUrl&)> chosen; ///< called once; an empty address is Cancel

    Q_INVOKABLE void choose(const QUrl& url) { std::exchange(chosen, nullptr)(url); }
};

} // namespace lodestar
