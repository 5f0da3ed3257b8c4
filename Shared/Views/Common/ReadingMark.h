// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Reading.h"
#include "Kit/Core/Role.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string_view>

namespace lodestar
{

/// How old something read is, or what is missing of it, as a short text. Empty before anything was read.
struct ReadingMark {
    Q_GADGET
    QML_VALUE_TYPE(readingMark)
    Q_PROPERTY(QString text MEMBER text)
    // A number to QML: what is compiled of it cannot read an enumeration of another module out of a value.
    Q_PROPERTY(int state READ stateNumber)
    Q_PROPERTY(QString spoken MEMBER spoken)

public:
    QString text{};
    /// None while all is well; Alert for what is old, Incomplete for what is missing, Offline.
    Role::State state = Role::State::None;
    QString spoken{}; ///< what a screen reader says

    int stateNumber() const { return static_cast<int>(state); }
    friend bool operator==(const ReadingMark&, const ReadingMark&) = default;
};

/// A console's mark: "2 min ago", "partitions missing", "2 of 6 missing", "since 02:58", "read 2 h ago".
ReadingMark markOfConsole(const Reading& reading, WallTime now);
/// The mark of one of its feeds: "2 min ago", "read 2 h ago", "Partitions not read".
ReadingMark markOfFeed(const Reading& reading, std::string_view type, WallTime now);

} // namespace lodestar
