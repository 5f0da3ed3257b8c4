// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>

namespace lodestar
{

/// Shows in a label that the keychain is being waited for, in place of the label's own text. Says nothing while the
/// wait is too short to be noticed. Main thread.
class KeychainWait
{
    Q_DECLARE_TR_FUNCTIONS(KeychainWait)

public:
    /// The label must outlive this object.
    explicit KeychainWait(LabelOutlet& label) : m_label(label)
    {
        setText({});
        m_timer.setSingleShot(true);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer,
                         [this] { show(tr("Waiting for the system's keychain...")); });
    }

    /// The label's own text; the label is hidden while the text is empty and nothing is waited for.
    void setText(const QString& text)
    {
        m_text = text;
        if (m_waits == 0 || m_timer.isActive()) {
            show(m_text);
        }
    }
    /// Call `end` once for every `begin`.
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
