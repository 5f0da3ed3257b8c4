// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace lodestar
{

/// One page: a picture that fills the page and includes its words. `heading` and `words` repeat the words as text, for
/// screen readers and for screens or text sizes at which the picture's own cannot be read.
struct IntroPage {
    Q_GADGET
    QML_VALUE_TYPE(introPage)
    Q_PROPERTY(QUrl background MEMBER background)
    Q_PROPERTY(bool hasBackground READ hasBackground)
    Q_PROPERTY(QString heading MEMBER heading)
    Q_PROPERTY(QString words MEMBER words)

public:
    QUrl background{}; ///< empty for a page without a picture
    QString heading{};
    QString words{};

    bool hasBackground() const { return !background.isEmpty(); }
    friend bool operator==(const IntroPage&, const IntroPage&) = default;
};

class PagedIntro;

/// A screen that an intro can cover. The screen keeps the intro.
class PagedIntroHost
{
public:
    virtual void setIntro(std::shared_ptr<PagedIntro> intro) = 0;

protected:
    ~PagedIntroHost() = default;
};

/// Hears when an intro is over, however it ended.
class PagedIntroDelegate
{
public:
    virtual ~PagedIntroDelegate() = default;
    virtual void introDidFinish() = 0;
};

/// The row of dots that shows and turns pages.
class PageControlOutlet : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(int currentPage READ currentPage WRITE setCurrentPage NOTIFY currentPageChanged)
    Q_PROPERTY(int numberOfPages READ numberOfPages CONSTANT)
    Q_PROPERTY(QColor pageIndicatorTintColor MEMBER pageIndicatorTintColor CONSTANT)
    Q_PROPERTY(QColor currentPageIndicatorTintColor MEMBER currentPageIndicatorTintColor CONSTANT)

public:
    explicit PageControlOutlet(int numberOfPages, QObject* parent = nullptr);
    int numberOfPages() const { return m_numberOfPages; }
    int currentPage() const { return m_currentPage; }
    /// A page number outside the range changes nothing.
    void setCurrentPage(int page);

    /// Before the intro is shown.
    QColor pageIndicatorTintColor;
    QColor currentPageIndicatorTintColor;

Q_SIGNALS:
    void currentPageChanged();

private:
    int m_numberOfPages;
    int m_currentPage = 0;
};

/// A button that shows only a word.
class ButtonOutlet : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QColor titleColor MEMBER titleColor CONSTANT)

public:
    using QObject::QObject;
    /// Before the intro is shown.
    QColor titleColor;
};

/// Pages that cover a whole screen and are turned by swipes and keys. An intro ends once: by the skip button, a swipe
/// past the last page, or Escape. Main thread.
class PagedIntro : public QObject, public std::enable_shared_from_this<PagedIntro>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QVariantList pages READ pageList CONSTANT)
    Q_PROPERTY(lodestar::PageControlOutlet* pageControl READ pageControl CONSTANT)
    Q_PROPERTY(lodestar::ButtonOutlet* skipButton READ skipButton CONSTANT)
    Q_PROPERTY(bool presented READ isPresented NOTIFY presentedChanged)
    Q_PROPERTY(double animationDuration READ animationDuration CONSTANT)

public:
    explicit PagedIntro(std::vector<IntroPage> pages);

    const std::vector<IntroPage>& pages() const { return m_pages; }
    QVariantList pageList() const;
    PageControlOutlet* pageControl() { return &m_pageControl; }
    ButtonOutlet* skipButton() { return &m_skipButton; }
    void setDelegate(std::weak_ptr<PagedIntroDelegate> delegate);

    /// Shows the intro over a screen, which keeps it; an intro that is there is replaced. Call once per intro; the
    /// intro must be held by a `std::shared_ptr`.
    void showInView(PagedIntroHost& view, double animationDuration);
    /// Whether the intro is visible. After its end the screen still keeps it, so that it can be drawn as it goes.
    bool isPresented() const { return m_presented; }
    /// Duration of the coming and of the going, in seconds.
    double animationDuration() const { return m_animationDuration; }

    /// Shows the next page; on the last page, ends the intro.
    Q_INVOKABLE void turnPage();
    /// Ends the intro and tells the delegate, which may be gone. Later calls do nothing.
    Q_INVOKABLE void finish();

Q_SIGNALS:
    void presentedChanged();

private:
    std::vector<IntroPage> m_pages;
    PageControlOutlet m_pageControl;
    ButtonOutlet m_skipButton;
    std::weak_ptr<PagedIntroDelegate> m_delegate;
    double m_animationDuration = 0;
    bool m_presented = false;
};

} // namespace lodestar
