// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Queues/MainSteps.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QVariant>

#include <functional>
#include <optional>
#include <vector>

namespace lodestar
{

/// Completes the cells of one table's drawn rows, a row at a time from the top, each in steps that may block. Rows that
/// are not seen wait, and nothing is done while screens slide. Main thread.
class CellSteps : public QObject
{
    Q_OBJECT

public:
    /// Makes one step; the whole cell after the last.
    using Step = std::function<std::optional<QVariant>()>;

    using QObject::QObject;

    /// The row's cell goes to `show` when it is whole. What the row still waited for is dropped.
    void complete(QQuickItem& row, int index, Step step, std::function<void(const QVariant&)> show);
    /// A row that waits may have come into view.
    void wake();

private:
    struct Waiting {
        QPointer<QQuickItem> row;
        int index;
        Step step;
        std::function<void(const QVariant&)> show;
        bool begun = false;
    };
    std::vector<Waiting>::iterator next();
    NextStep work();

    std::vector<Waiting> m_waiting;
    bool m_working = false;
    int m_rest = 0; ///< pauses before the next step
};

} // namespace lodestar
