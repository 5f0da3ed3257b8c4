// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Csv.h"
#include "Kit/Core/Menu.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace lodestar
{

/// Hands on the rows of a list as comma-separated values, to a file or to the clipboard: those that the list shows at
/// that moment, in their order, with all fields of their objects. A constant property of the list's controller, whose
/// member it is. Main thread.
class ListShare : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(lodestar::MenuOutlet* menu READ menu CONSTANT)

public:
    /// `name` names the list and becomes the file's name.
    ListShare(std::function<QString()> name, std::function<Table()> table);

    /// Save as File, Copy.
    MenuOutlet* menu() { return &m_menu; }
    Q_INVOKABLE void present();
    Q_INVOKABLE void save();
    void copy();

private:
    const std::function<QString()> m_name;
    const std::function<Table()> m_table;
    MenuOutlet m_menu;
};

} // namespace lodestar
