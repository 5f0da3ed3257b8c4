// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/UIColor+Tessel.h"

namespace lodestar
{

QColor UIColor::tesselLightBlue()
{
    return {113, 199, 244};
}

QColor UIColor::tesselLightGreen()
{
    return {123, 190, 49};
}

QColor UIColor::tesselBlue()
{
    return {19, 60, 91};
}

QColor UIColor::selectedBlue()
{
    return {0, 158, 235};
}

QColor UIColor::ornisBlue()
{
    return {0, 48, 139};
}

QColor UIColor::successGreen()
{
    return {0, 139, 17};
}

QColor UIColor::errorRed()
{
    return {139, 10, 0};
}

QColor UIColor::failedRed()
{
    return {142, 142, 147};
}

QColor UIColor::dashboardBlue()
{
    return {66, 116, 185};
}

QColor UIColor::dashboardRed()
{
    return {227, 34, 38};
}

QColor UIColor::dashboardGreen()
{
    return {80, 176, 72};
}

QColor UIColor::dashboardGrey()
{
    return {145, 145, 145};
}

QColor UIColor::dashboardYellow()
{
    return {255, 200, 29};
}

QColor UIColor::dashboardOrange()
{
    return {243, 156, 18};
}

QColor UIColor::grayColor()
{
    return {0x66, 0x70, 0x7E};
}

QColor UIColor::darkGrayColor()
{
    return {0x55, 0x55, 0x55};
}

QColor UIColor::lightGrayColor()
{
    return {0xC3, 0xCA, 0xD3};
}

QColor UIColor::redColor()
{
    return {0xE3, 0x22, 0x26};
}

QColor UIColor::orangeColor()
{
    return {0xB3, 0x59, 0x00};
}

} // namespace lodestar
