// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

class QJSEngine;
class QQmlEngine;

namespace lodestar
{

/// What the system says about how to draw: light or dark, text size, direction, motion. Each answer can be overridden,
/// for tests, pictures and command lines; an empty override gives it back to the system. Main thread.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY changed)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    Q_PROPERTY(bool mirrored READ isMirrored NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ isReducedMotion NOTIFY changed)

public:
    static Appearance& shared();
    static Appearance* create(QQmlEngine* qml, QJSEngine* js);

    /// The system palette's window colour is dark.
    bool isDark() const;
    /// 1 to 2, of the drawn sizes.
    double textScale() const;
    /// Right to left.
    bool isMirrored() const;
    bool isReducedMotion() const;

    /// How far below the top of a line of that height a text of that size starts, so that its capitals are centred and
    /// stand on a device pixel.
    Q_INVOKABLE double textDrop(int pixelSize, double lineHeight, double devicePixelRatio) const;

    /// What the desktop's settings say, once they are heard.
    void setSystemReducedMotion(bool reduced);
    void setSystemTextScale(double scale);

    void overrideDark(std::optional<bool> dark);
    void overrideTextScale(std::optional<double> scale);
    void overrideMirrored(std::optional<bool> mirrored);
    void overrideReducedMotion(std::optional<bool> reduced);

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Appearance();
    std::optional<bool> m_dark;
    std::optional<double> m_textScale;
    std::optional<bool> m_mirrored;
    std::optional<bool> m_reducedMotion;
    bool m_systemReducedMotion = false;
    double m_systemTextScale = 1;
};

} // namespace lodestar
