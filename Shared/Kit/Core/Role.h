// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// What a colour is for. Cells, outlets and buttons name a role; Theme.qml alone says what a role looks like in light
/// and in dark.
namespace Role
{

Q_NAMESPACE
QML_ELEMENT

/// How something is, as word and mark.
enum class State {
    None, ///< nothing is said: the view keeps its own look
    Good,
    Off,
    Idle,
    Alert,
    Error,
    BadgedError, ///< an error that a badge shows: the word stays as quiet as an idle one's
    Offline,
    Incomplete, ///< not all of it is known
    Waiting     ///< nothing is known yet
};
Q_ENUM_NS(State)

/// What a swiped row's button does.
enum class Button { Standard, Quiet, Positive, Favourite, Destructive };
Q_ENUM_NS(Button)

} // namespace Role

} // namespace lodestar
