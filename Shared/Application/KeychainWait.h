// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>

namespace lodestar
{

/// A label's text that gives way, while the keychain is being waited for, to one that says so. A keychain that answers
/// at once is not mentioned. Main thread.
class KeychainWait
{
    Q_DECLARE_TR_FUNCTIONS(KeychainWait)

public:
    /// The label outlives this.
    explicit KeychainWait(LabelOutlet& label) : m_label(label)
    {
        setText({});
        m_timer.setSingleShot(true);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer,
                         [this] { show(tr("Waiting for the system's keychain...")); });
    }

    /// What the label says otherwise; hidden when that is nothing.
    void setText(const QString& text)
    {
        m_text = text;
        if (m_waits == 0 || m_timer.isActive()) {
            show(m_text);
        }
    }
    /// Each begin has its end.
    void begin()
    {
        constexpr std::chrono::milliseconds unnoticed{500};
        if (m_waits++ == 0) {
            m_timer.start(unnoticed);
        }
    }
    void end()
    {
        if (--m_waits == 0) {
            m_timer.stop();
            show(m_text);
        }
    }

private:
    void show(const QString& text)
    {
        m_label.setText(text);
        m_label.setHidden(text.isEmpty());
    }

    LabelOutlet& m_label;
    QString m_text;
    QTimer m_timer;
    int m_waits = 0;
};

} // namespace lodestar
