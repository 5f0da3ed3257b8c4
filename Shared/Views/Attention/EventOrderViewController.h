// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/ViewController.h"
#include "Views/Attention/FleetEventList.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace lodestar
{

/// What the sheet chooses from, and where its choices go.
class EventChoosing
{
public:
    virtual ~EventChoosing() = default;
    virtual const EventChoice& choice() const = 0;
    virtual void setChoice(EventChoice choice) = 0;
    virtual const FleetEventList& list() const = 0;
    virtual void endChoosing() = 0;
};

/// The sheet Order of the events: their order, what to leave out, and which console alone. Each choice works at once.
class EventOrderViewController : public lodestar::ViewController
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the events")
    Q_PROPERTY(QStringList orders READ orders CONSTANT)
    Q_PROPERTY(int order READ order WRITE setOrder NOTIFY choiceChanged)
    Q_PROPERTY(bool openOnly READ openOnly WRITE setOpenOnly NOTIFY choiceChanged)
    Q_PROPERTY(bool callHomeOnly READ callHomeOnly WRITE setCallHomeOnly NOTIFY choiceChanged)
    Q_PROPERTY(int openCount READ openCount NOTIFY choiceChanged)
    Q_PROPERTY(int callHomeCount READ callHomeCount NOTIFY choiceChanged)
    Q_PROPERTY(QString allConsoles READ allConsoles CONSTANT)
    Q_PROPERTY(QStringList consoles READ consoles NOTIFY consolesChanged)
    Q_PROPERTY(bool searchable READ isSearchable CONSTANT)
    Q_PROPERTY(bool allChosen READ areAllChosen NOTIFY choiceChanged)
    Q_PROPERTY(int console READ console NOTIFY choiceChanged)

public:
    explicit EventOrderViewController(std::shared_ptr<EventChoosing> events);

    /// The name of an order: "By reference code".
    static QString nameOf(EventOrder order);
    double height() const;

    QStringList orders() const;
    int order() const;
    void setOrder(int order);
    bool openOnly() const;
    void setOpenOnly(bool on);
    bool callHomeOnly() const;
    void setCallHomeOnly(bool on);
    int openCount() const;
    int callHomeCount() const;
    /// "All 6 consoles".
    QString allConsoles() const;
    /// The names of the consoles that the search finds.
    const QStringList& consoles() const { return m_names; }
    bool isSearchable() const;
    bool areAllChosen() const;
    /// The chosen one among `consoles`; -1 when all are chosen, or another one.
    int console() const;
    Q_INVOKABLE void chooseConsole(int index);
    Q_INVOKABLE void searchConsoles(const QString& text);
    Q_INVOKABLE void reset();
    Q_INVOKABLE void done();

Q_SIGNALS:
    void choiceChanged();
    void consolesChanged();

private:
    template <typename Change>
    void change(Change how);

    const std::shared_ptr<EventChoosing> m_events;
    std::vector<CorvelRef> m_all;
    std::vector<CorvelRef> m_shown; ///< those of `m_names`
    QStringList m_names;
};

} // namespace lodestar
