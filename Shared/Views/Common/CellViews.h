// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Role.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <algorithm>

namespace lodestar
{

/// The views of a table cell as values. They are to a row what a controller's outlets are to a screen. A row changes by
/// getting a new cell, so these values notify nobody.

/// A text in a cell, and the state that the text tells, if it tells one. In a list of search results, `match` is the
/// searched text, which is marked wherever the label contains it; elsewhere `match` is empty.
struct CellLabel {
    Q_GADGET
    QML_VALUE_TYPE(cellLabel)
    Q_PROPERTY(QString text READ line)
    // A number to QML: what is compiled of it cannot read an enumeration of another module out of a value.
    Q_PROPERTY(int state READ stateNumber)
    Q_PROPERTY(bool hidden MEMBER hidden)
    Q_PROPERTY(QString match MEMBER match)

public:
    QString text;
    Role::State state = Role::State::None;
    bool hidden = false;
    QString match{};

    int stateNumber() const { return static_cast<int>(state); }
    /// The text as a row draws it: a console's line ends would make the row grow.
    QString line() const
    {
        static const auto endsLine = [](QChar each) {
            return each == u'\n' || each == u'\r' || each == QChar::LineSeparator || each == QChar::ParagraphSeparator;
        };
        if (std::ranges::none_of(text, endsLine)) {
            return text;
        }
        QString drawn = text;
        std::ranges::replace_if(drawn, endsLine, u' ');
        return drawn;
    }

    friend bool operator==(const CellLabel&, const CellLabel&) = default;
};

/// A picture in a cell, given by the name of its resource.
struct CellImage {
    Q_GADGET
    QML_VALUE_TYPE(cellImage)
    Q_PROPERTY(QString imageName MEMBER imageName)
    Q_PROPERTY(bool hidden MEMBER hidden)

public:
    QString imageName;
    bool hidden = false;

    friend bool operator==(const CellImage&, const CellImage&) = default;
};

/// An activity indicator in a cell; hidden while it does not run.
struct CellIndicator {
    Q_GADGET
    QML_VALUE_TYPE(cellIndicator)
    Q_PROPERTY(bool animating MEMBER animating)

public:
    bool animating = false;

    friend bool operator==(const CellIndicator&, const CellIndicator&) = default;
};

} // namespace lodestar
