// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <vector>

namespace lodestar
{

/// One choice of an alert or an action sheet.
struct MenuChoice {
    Q_GADGET
    QML_VALUE_TYPE(menuChoice)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(bool destructive MEMBER destructive)
    Q_PROPERTY(QString imageName MEMBER imageName)
    Q_PROPERTY(QString detail MEMBER detail)

public:
    QString title;
    bool destructive = false;
    QString imageName{}; ///< action sheets only
    QString detail{};    ///< action sheets only: a count or a state at the row's end
    friend bool operator==(const MenuChoice&, const MenuChoice&) = default;
};

/// An alert or an action sheet as its controller holds it; a constant property of the controller, like every outlet.
/// Main thread.
class MenuOutlet : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(bool presented READ isPresented NOTIFY presentedChanged)
    Q_PROPERTY(QString title READ title NOTIFY presentedChanged)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(QVariantList choices READ choices NOTIFY presentedChanged)
    Q_PROPERTY(int cancelIndex READ cancelIndex NOTIFY presentedChanged)

public:
    using Handler = std::function<void(int index)>;

    using QObject::QObject;
    bool isPresented() const { return m_presented; }
    const QString& title() const { return m_title; }
    const QString& message() const { return m_message; }
    const QVariantList& choices() const { return m_choices; }
    /// The choice for Escape and for a tap beside an action sheet; -1 for none. An action sheet sets this choice apart.
    int cancelIndex() const { return m_cancelIndex; }

    /// Shows the menu; a menu that is up is replaced. The handler is called once, with the choice, after the menu has
    /// been taken down, so that the handler may show the next menu.
    void present(QString title, QString message, const std::vector<MenuChoice>& choices, int cancelIndex,
                 Handler handler);
    /// Changes the message of the alert that is up; its buttons stay. Does nothing while none is up.
    void setMessage(QString message);
    /// Takes the menu down without a choice.
    void dismiss();
    Q_INVOKABLE void choose(int index);

Q_SIGNALS:
    void presentedChanged();
    void messageChanged();

private:
    bool m_presented = false;
    QString m_title;
    QString m_message;
    QVariantList m_choices; ///< of MenuChoice
    int m_cancelIndex = -1;
    Handler m_handler;
};

} // namespace lodestar
