// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kit/Core/PagedIntro.h"

#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <atomic>
#include <memory>

namespace lodestar
{

class NavigationController;
class TabBarController;
class SemiModalPresentation;

/// The controller of one screen: the screen's content and actions, without its drawing. Main thread. A controller is
/// held by a `std::shared_ptr` from `makeController`, whose deleter posts to the main thread because a worker may
/// release the last reference.
class ViewController : public QObject, public PagedIntroHost, public std::enable_shared_from_this<ViewController>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString backTitle READ backTitle NOTIFY backTitleChanged)
    Q_PROPERTY(QUrl scene READ scene CONSTANT)
    Q_PROPERTY(lodestar::SemiModalPresentation* semiModal READ semiModal NOTIFY semiModalChanged)
    Q_PROPERTY(lodestar::PagedIntro* intro READ intro NOTIFY introChanged)

public:
    ViewController();
    ~ViewController() override;

    const QString& title() const { return m_title; }
    void setTitle(const QString& title);
    /// The back button's text on screens pushed from this one; null shows this screen's title.
    const QString& backTitle() const { return m_backTitle; }
    void setBackTitle(const QString& title);

    /// The QML file that draws this controller, set by the storyboard.
    const QUrl& scene() const { return m_scene; }
    void setScene(const QUrl& scene) { m_scene = scene; }

    /// Runs `viewDidLoad` once, when the screen is first put into a container. Later calls do nothing.
    void loadViewIfNeeded();
    bool isViewLoaded() const { return m_viewLoaded; }
    /// Containers report here that the screen appears or disappears; each pair of calls alternates.
    void beginAppearance();
    void endAppearance();
    /// Whether the screen is loaded and, as far as its containers know, visible.
    bool isInWindow() const { return m_appeared; }

    /// Null for a screen that is in no stack. Other threads may only test for null.
    NavigationController* navigationController() const { return m_navigationController; }
    /// Whether a screen lies below this one; and the text of the button that leads back to it, empty for none.
    Q_INVOKABLE bool canGoBack() const;
    Q_INVOKABLE QString backButtonTitle() const;
    /// Pops this screen if it is the last of its stack.
    Q_INVOKABLE void goBack();
    TabBarController* tabBarController() const;

    /// Shows a controller in a sheet that slides up over this screen. A sheet that is up is dismissed first.
    struct SemiModalOptions {
        bool pushParentBack = true;
        double height = 0; ///< points
    };
    void presentSemiViewController(std::shared_ptr<ViewController> controller, SemiModalOptions options);
    /// Sets the height of the sheet that is up; its width stays. Does nothing without a sheet.
    void resizeSemiView(double height);
    void dismissSemiModalView();
    SemiModalPresentation* semiModal() const { return m_semiModal.get(); }

    /// The intro that covers this screen; null for none.
    PagedIntro* intro() const { return m_intro.get(); }
    void setIntro(std::shared_ptr<PagedIntro> intro) override;

Q_SIGNALS:
    void titleChanged();
    void backTitleChanged();
    void semiModalChanged();
    void introChanged();
    /// The scene should end text editing and take the keyboard focus away.
    void endEditingRequested();

protected:
    virtual void viewDidLoad() {}
    virtual void viewDidAppear() {}
    virtual void viewDidDisappear() {}
    void endEditing() { Q_EMIT endEditingRequested(); }

    /// For a stack of screens: the screen below one of its own; null below the first.
    virtual const ViewController* screenBelow(const ViewController& /*screen*/) const { return nullptr; }
    /// For a stack of screens: pops the screen if it is the last.
    virtual void goBackFrom(const ViewController& /*screen*/) {}

    /// A reference to this object as its own type, for handlers that keep the controller alive.
    template <typename Controller>
    std::shared_ptr<Controller> self()
    {
        return std::static_pointer_cast<Controller>(shared_from_this());
    }

private:
    friend class NavigationController;
    friend class TabBarController;
    QString m_title;
    QString m_backTitle;
    QUrl m_scene;
    bool m_viewLoaded = false;
    bool m_appeared = false;
    std::atomic<NavigationController*> m_navigationController = nullptr;
    ViewController* m_container = nullptr; ///< the navigation controller, as a screen
    TabBarController* m_tabBarController = nullptr;
    std::unique_ptr<SemiModalPresentation> m_semiModal;
    std::shared_ptr<PagedIntro> m_intro;
};

/// A sheet that is up: its content and its height, which does not include the bar that the sheet adds on top. The
/// object is deleted when the sheet is dismissed; the scene, which keeps the content alive, slides down after that.
class SemiModalPresentation : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by controllers")
    Q_PROPERTY(lodestar::ViewController* controller READ controller CONSTANT)
    Q_PROPERTY(double height READ height NOTIFY heightChanged)
    Q_PROPERTY(bool pushParentBack READ pushParentBack CONSTANT)

public:
    SemiModalPresentation(std::shared_ptr<ViewController> controller, ViewController::SemiModalOptions options);
    ViewController* controller() const { return m_controller.get(); }
    const std::shared_ptr<ViewController>& sharedController() const { return m_controller; }
    double height() const { return m_height; }
    void setHeight(double height);
    bool pushParentBack() const { return m_pushParentBack; }

Q_SIGNALS:
    void heightChanged();

private:
    std::shared_ptr<ViewController> m_controller;
    double m_height;
    bool m_pushParentBack;
};

/// Deletes a controller on the main thread, whichever thread released it last.
void deleteControllerOnMain(ViewController* controller);

template <typename Controller, typename... Args>
std::shared_ptr<Controller> makeController(Args&&... args)
{
    return std::shared_ptr<Controller>(new Controller(std::forward<Args>(args)...),
                                       [](Controller* controller) { deleteControllerOnMain(controller); });
}

} // namespace lodestar
