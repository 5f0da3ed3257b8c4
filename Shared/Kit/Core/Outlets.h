// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/Role.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace lodestar
{

/// Outlets are the views of a screen as its controller sees them: small observable objects, which are constant
/// properties of the controller under the outlet's own name. QML items bind to them; tests read them. Setters may be
/// called from any thread and take effect on the main thread: at once when called there, otherwise later.

/// A view that can be hidden and disabled.
class ViewOutlet : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(bool hidden READ isHidden WRITE setHidden NOTIFY hiddenChanged)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)

public:
    explicit ViewOutlet(QObject* parent = nullptr) : QObject(parent) {}
    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden);
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);

Q_SIGNALS:
    void hiddenChanged();
    void enabledChanged();

private:
    bool m_hidden = false;
    bool m_enabled = true;
};

/// A text, and the state that it tells of if it tells of one.
class LabelOutlet : public lodestar::ViewOutlet
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(lodestar::Role::State state READ state WRITE setState NOTIFY stateChanged)

public:
    explicit LabelOutlet(QObject* parent = nullptr) : ViewOutlet(parent) {}
    const QString& text() const { return m_text; }
    void setText(const QString& text);
    Role::State state() const { return m_state; }
    void setState(Role::State state);

Q_SIGNALS:
    void textChanged();
    void stateChanged();

private:
    QString m_text;
    Role::State m_state = Role::State::None;
};

/// An activity indicator. It is hidden while it does not run, unless told otherwise.
class IndicatorOutlet : public lodestar::ViewOutlet
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(bool animating READ isAnimating NOTIFY animatingChanged)

public:
    explicit IndicatorOutlet(QObject* parent = nullptr) : ViewOutlet(parent) {}
    bool isAnimating() const { return m_animating; }
    void startAnimating();
    void stopAnimating();

Q_SIGNALS:
    void animatingChanged();

private:
    void setAnimating(bool animating);
    bool m_animating = false;
};

/// A text field. QML writes the user's typing into `text`.
class FieldOutlet : public lodestar::ViewOutlet
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    explicit FieldOutlet(QObject* parent = nullptr) : ViewOutlet(parent) {}
    const QString& text() const { return m_text; }
    void setText(const QString& text);
    /// Takes the keyboard focus away from the field; does nothing when the field does not have it.
    void resignFirstResponder();

Q_SIGNALS:
    void textChanged();
    void resignRequested();

private:
    QString m_text;
};

/// A picture, given by the name of its resource without extension.
class ImageOutlet : public lodestar::ViewOutlet
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QString imageName READ imageName WRITE setImageName NOTIFY imageNameChanged)

public:
    explicit ImageOutlet(QObject* parent = nullptr) : ViewOutlet(parent) {}
    const QString& imageName() const { return m_imageName; }
    void setImageName(const QString& name);

Q_SIGNALS:
    void imageNameChanged();

private:
    QString m_imageName;
};

/// A switch. QML writes the user's change into `on`.
class SwitchOutlet : public lodestar::ViewOutlet
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(bool on READ isOn WRITE setOn NOTIFY onChanged)

public:
    explicit SwitchOutlet(QObject* parent = nullptr) : ViewOutlet(parent) {}
    bool isOn() const { return m_on; }
    void setOn(bool on);

Q_SIGNALS:
    void onChanged();

private:
    bool m_on = false;
};

/// A few choices side by side, one of them chosen. QML writes the user's choice into `selectedSegmentIndex`.
class SegmentedControlOutlet : public lodestar::ViewOutlet
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(int selectedSegmentIndex READ selectedSegmentIndex WRITE setSelectedSegmentIndex NOTIFY
                   selectedSegmentIndexChanged)

public:
    explicit SegmentedControlOutlet(QObject* parent = nullptr) : ViewOutlet(parent) {}
    int selectedSegmentIndex() const { return m_selectedSegmentIndex; }
    void setSelectedSegmentIndex(int index);

Q_SIGNALS:
    void selectedSegmentIndexChanged();

private:
    int m_selectedSegmentIndex = 0;
};

} // namespace lodestar
