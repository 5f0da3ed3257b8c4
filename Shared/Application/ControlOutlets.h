// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Outlets.h"

namespace lodestar
{

/// A button, a row or a label that can be disabled. Main thread.
class ControlOutlet : public lodestar::ViewOutlet
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(bool enabled READ isEnabled NOTIFY enabledChanged)

public:
    explicit ControlOutlet(QObject* parent = nullptr) : ViewOutlet(parent) {}
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled)
    {
        if (m_enabled != enabled) {
            m_enabled = enabled;
            Q_EMIT enabledChanged();
        }
    }

Q_SIGNALS:
    void enabledChanged();

private:
    bool m_enabled = true;
};

/// A distance, in points, by which the scene lays itself out. Main thread.
class LayoutConstraint : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(double constant READ constant NOTIFY constantChanged)

public:
    using QObject::QObject;
    double constant() const { return m_constant; }
    void setConstant(double constant)
    {
        if (m_constant != constant) {
            m_constant = constant;
            Q_EMIT constantChanged();
        }
    }

Q_SIGNALS:
    void constantChanged();

private:
    double m_constant = 0;
};

} // namespace lodestar
