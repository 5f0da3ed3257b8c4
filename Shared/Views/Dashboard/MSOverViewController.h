// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Views/Common/CorvelReceiving.h"
#include "Views/Common/MenuTableViewController.h"
#include "Views/Common/RootXMLReceiving.h"

#include <QColor>
#include <QList>
#include <QRectF>

namespace lodestar
{

/// A circle gauge's place in points, its figures and its colour.
struct GaugeFigure {
    Q_GADGET
    QML_VALUE_TYPE(gaugeFigure)
    Q_PROPERTY(QRectF frame MEMBER frame)
    Q_PROPERTY(double total MEMBER total)
    Q_PROPERTY(double current MEMBER current)
    Q_PROPERTY(bool clockwise MEMBER clockwise)
    Q_PROPERTY(QColor strokeColor MEMBER strokeColor)

public:
    QRectF frame;
    double total;
    double current;
    bool clockwise;
    QColor strokeColor;

    friend bool operator==(const GaugeFigure&, const GaugeFigure&) = default;
};

/// The menu of one managed system: performance, partitions, details.
class MSOverViewController : public lodestar::MenuTableViewController, public CorvelReceiving, public RootXMLReceiving
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the storyboard")
    Q_PROPERTY(QList<lodestar::GaugeFigure> gauges READ gauges CONSTANT)

public:
    /// The element that the screen was opened with.
    const XMLElement& system() const { return rootXML(); }
    void setSystem(XMLElement system) { setRootXML(std::move(system)); }

    /// The gauges are decoration: their figures are fixed and tell nothing of the system. That the two overlap is
    /// meant.
    QList<GaugeFigure> gauges() const;

protected:
    void viewDidLoad() override;
    Sections makeSections() const override;

private:
    std::optional<std::string> firstSystemID() const;
};

} // namespace lodestar
