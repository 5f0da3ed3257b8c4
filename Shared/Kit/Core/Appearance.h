// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <utility>

class QJSEngine;
class QQmlEngine;

namespace lodestar
{

/// The system's wishes for drawing: light or dark, contrast, text size, direction, motion. Tests, pictures and command
/// lines can override each one; an empty override returns it to the system. Main thread.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY changed)
    Q_PROPERTY(bool highContrast READ isHighContrast NOTIFY changed)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    Q_PROPERTY(bool mirrored READ isMirrored NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ isReducedMotion NOTIFY changed)

public:
    static Appearance& shared();
    static Appearance* create(QQmlEngine* qml, QJSEngine* js);

    /// Without an override: whether the system palette's window colour is dark.
    bool isDark() const;
    /// Whether lines and inks are stronger than the design has them.
    bool isHighContrast() const;
    /// Factor by which text is drawn larger, 1 to 2.
    double textScale() const;
    /// Whether text runs from right to left.
    bool isMirrored() const;
    bool isReducedMotion() const;

    /// How far below the top of a line a text of this size starts, so that its capitals are centred in the line and
    /// stand on a device pixel. In points. A text with letters that another face supplies stands on the same line: such
    /// a face, of Japanese or Arabic, begins higher above it.
    Q_INVOKABLE double textDrop(int pixelSize, double lineHeight, double devicePixelRatio,
                                const QString& text = {}) const;

    /// Takes a setting of the desktop, once the desktop has told it.
    void setSystemReducedMotion(bool reduced) { set(m_systemReducedMotion, reduced); }
    void setSystemTextScale(double scale) { set(m_systemTextScale, scale); }
    void setSystemHighContrast(bool high) { set(m_systemHighContrast, high); }

    void overrideDark(std::optional<bool> dark) { set(m_dark, dark); }
    void overrideHighContrast(std::optional<bool> high) { set(m_highContrast, high); }
    void overrideTextScale(std::optional<double> scale) { set(m_textScale, scale); }
    void overrideMirrored(std::optional<bool> mirrored) { set(m_mirrored, mirrored); }
    void overrideReducedMotion(std::optional<bool> reduced) { set(m_reducedMotion, reduced); }

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Appearance();
    template <typename Wish>
    void set(Wish& wish, Wish value)
    {
        if (std::exchange(wish, value) != value) {
            Q_EMIT changed();
        }
    }

    std::optional<bool> m_dark;
    std::optional<bool> m_highContrast;
    std::optional<double> m_textScale;
    std::optional<bool> m_mirrored;
    std::optional<bool> m_reducedMotion;
    bool m_systemReducedMotion = false;
    bool m_systemHighContrast = false;
    double m_systemTextScale = 1;
};

} // namespace lodestar
