// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// Opaque colours by name, the same in light and dark. QML knows them through Theme.qml, which says what they are for.
class UIColor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor tesselLightBlue READ tesselLightBlue CONSTANT)
    Q_PROPERTY(QColor tesselLightGreen READ tesselLightGreen CONSTANT)
    Q_PROPERTY(QColor tesselBlue READ tesselBlue CONSTANT)
    Q_PROPERTY(QColor selectedBlue READ selectedBlue CONSTANT)
    Q_PROPERTY(QColor ornisBlue READ ornisBlue CONSTANT)
    Q_PROPERTY(QColor successGreen READ successGreen CONSTANT)
    Q_PROPERTY(QColor errorRed READ errorRed CONSTANT)
    Q_PROPERTY(QColor failedRed READ failedRed CONSTANT)
    Q_PROPERTY(QColor dashboardGreen READ dashboardGreen CONSTANT)
    Q_PROPERTY(QColor dashboardOrange READ dashboardOrange CONSTANT)
    Q_PROPERTY(QColor lightGrayColor READ lightGrayColor CONSTANT)
    Q_PROPERTY(QColor chartOrange READ chartOrange CONSTANT)

public:
    static constexpr QColor tesselLightBlue() { return {113, 199, 244}; }
    static constexpr QColor tesselLightGreen() { return {123, 190, 49}; }
    static constexpr QColor tesselBlue() { return {19, 60, 91}; }
    static constexpr QColor selectedBlue() { return {0, 158, 235}; }
    static constexpr QColor ornisBlue() { return {0, 48, 139}; }
    static constexpr QColor successGreen() { return {0, 139, 17}; }
    static constexpr QColor errorRed() { return {139, 10, 0}; }
    /// A neutral grey despite its name.
    static constexpr QColor failedRed() { return {142, 142, 147}; }
    static constexpr QColor dashboardBlue() { return {66, 116, 185}; }
    static constexpr QColor dashboardRed() { return {227, 34, 38}; }
    static constexpr QColor dashboardGreen() { return {80, 176, 72}; }
    static constexpr QColor dashboardGrey() { return {145, 145, 145}; }
    static constexpr QColor dashboardYellow() { return {255, 200, 29}; }
    static constexpr QColor dashboardOrange() { return {243, 156, 18}; }

    /// The platform's, as in the light appearance.
    static constexpr QColor lightGrayColor() { return {195, 202, 211}; }
    static constexpr QColor chartOrange() { return {217, 122, 0}; }
};

} // namespace lodestar
