// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Role.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// One row of the connection screen as a value; its section says how it is drawn.
struct ConnectionRow {
    Q_GADGET
    QML_VALUE_TYPE(connectionRow)
    Q_PROPERTY(int mark READ markNumber)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString detail MEMBER detail)
    Q_PROPERTY(QString trailing MEMBER trailing)
    Q_PROPERTY(QString failure MEMBER failure)
    Q_PROPERTY(bool small MEMBER small)
    Q_PROPERTY(QString spoken READ spoken)

public:
    Role::State mark = Role::State::None;
    QString title{};
    QString detail{};
    QString trailing{}; ///< how long it took
    QString failure{};  ///< stands on a plate below
    bool small = false; ///< a fact's value is a sentence or a fingerprint, not a word

    // A number to QML: what is compiled of it cannot read an enumeration of another module out of a value.
    int markNumber() const { return static_cast<int>(mark); }
    /// The row's text for screen readers and copies, as one sentence.
    QString spoken() const;
    friend bool operator==(const ConnectionRow&, const ConnectionRow&) = default;
};

/// A card of the connection screen with what stands above and below it.
struct ConnectionSection {
    Q_GADGET
    QML_VALUE_TYPE(connectionSection)
    Q_PROPERTY(int kind READ kindNumber)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString detail MEMBER detail)
    Q_PROPERTY(QList<lodestar::ConnectionRow> rows MEMBER rows)
    Q_PROPERTY(bool refreshes MEMBER refreshes)
    Q_PROPERTY(QString foot MEMBER foot)
    Q_PROPERTY(QList<double> parts MEMBER parts)
    Q_PROPERTY(QString partsNames MEMBER partsNames)
    Q_PROPERTY(QString partsSum MEMBER partsSum)

public:
    enum Kind { Verdict, Steps, Stages, Feeds, Facts };
    Q_ENUM(Kind)

    Kind kind = Facts;
    QString title{};
    QString detail{}; ///< at the title's end
    QList<ConnectionRow> rows{};
    bool refreshes = false; ///< ends with the row that refreshes the console
    QString foot{};
    QList<double> parts{}; ///< shares of the attempt's time, in order; empty for no bar
    QString partsNames{};
    QString partsSum{};

    int kindNumber() const { return kind; }
    friend bool operator==(const ConnectionSection&, const ConnectionSection&) = default;
};

} // namespace lodestar
