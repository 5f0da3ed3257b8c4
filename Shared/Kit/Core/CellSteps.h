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

/// Completes the cells of one table's drawn rows: one row at a time from the top, each in steps that may block. Rows
/// out of view wait, and no step runs while screens slide. Main thread.
class CellSteps : public QObject
{
    Q_OBJECT

public:
    /// Makes one step. Returns the complete cell after the last step, nothing before.
    using Step = std::function<std::optional<QVariant>()>;

    using QObject::QObject;

    /// Runs the steps of a row and then passes the complete cell to `show`. Earlier steps that still waited for this
    /// row are dropped.
    void complete(QQuickItem& row, int index, Step step, std::function<void(const QVariant&)> show);
    /// To be called when a waiting row may have come into view.
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
