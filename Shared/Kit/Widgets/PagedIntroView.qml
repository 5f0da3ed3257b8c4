// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lodestar.Kit

/// A paged intro that covers a whole view. Swipes, arrows, Home, End, the page keys, Space and Enter turn pages. A
/// swipe or key past the last page, the button and Escape end the intro. The view behind gets no press and no key.
T.Popup {
    id: view

    /// The screen that the intro covers and that has the intro.
    required property SceneView over
    readonly property PagedIntro intro: over.intro

    // A popup opens only in a window, and the first screen is made before it has one.
    readonly property bool wanted: intro !== null && intro.presented && over.Window.window !== null
    readonly property PageControlOutlet pageControl: intro !== null ? intro.pageControl : null
    readonly property int fade: Theme.reducedMotion ? 120 : Math.round(1000 * (intro?.animationDuration ?? 0.3))

    parent: over
    width: over.width
    height: over.height
    modal: true
    dim: false
    focus: true
    closePolicy: T.Popup.NoAutoClose
    padding: 0

    function follow() {
        if (wanted) {
            begin();
            open();
        } else {
            close();
        }
    }
    /// Without this, the pages would still be where the last visit left them.
    function begin() {
        if (pageControl !== null) {
            pages.cancelFlick();
            pages.currentIndex = pageControl.currentPage;
            pages.positionViewAtIndex(pageControl.currentPage, ListView.Beginning);
        }
    }
    function end() {
        if (intro !== null) {
            intro.finish();
        }
    }
    function turn(page: int) {
        if (pageControl !== null) {
            pageControl.currentPage = Math.max(0, Math.min(pageControl.numberOfPages - 1, page));
        }
    }
    /// Returns whether the key was one of the intro's.
    function handleKey(event: var): bool {
        const forward = Theme.mirrored ? Qt.Key_Left : Qt.Key_Right;
        const back = Theme.mirrored ? Qt.Key_Right : Qt.Key_Left;
        switch (event.key) {
        case forward:
        case Qt.Key_PageDown:
        case Qt.Key_Space:
        case Qt.Key_Return:
        case Qt.Key_Enter:
            // A key that is held down turns pages but does not end the intro.
            if (intro !== null && !(event.isAutoRepeat && pages.currentIndex === pages.count - 1)) {
                intro.turnPage();
            }
            return true;
        case back:
        case Qt.Key_PageUp:
            turn(pages.currentIndex - 1);
            return true;
        case Qt.Key_Home:
            turn(0);
            return true;
        case Qt.Key_End:
            turn(pages.count - 1);
            return true;
        case Qt.Key_Escape:
        case Qt.Key_Back:
            end();
            return true;
        }
        return false;
    }

    // The screen learns of its window earlier than the popup does; a popup that is opened before that stays closed.
    readonly property Timer later: Timer {
        interval: 0
        onTriggered: view.follow()
    }

    onWantedChanged: later.restart()
    Component.onCompleted: follow()
    onOpened: pages.forceActiveFocus(Qt.OtherFocusReason)
    onClosed: over.forceActiveFocus(Qt.OtherFocusReason)

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: view.fade }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; to: 0; duration: view.fade }
    }

    background: Rectangle {
        color: Theme.night
    }
    contentItem: ModalLayer {
        id: body

        readonly property var shown: view.intro !== null ? view.intro.pages[view.intro.pageControl.currentPage] : undefined

        focus: true
        clip: true
        LayoutMirroring.enabled: Theme.mirrored
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: shown?.heading ?? ""
        Accessible.description: shown?.words ?? ""
        Keys.onPressed: (event) => event.accepted = view.handleKey(event)

        ListView {
            id: pages

            objectName: "introPages"
            anchors.fill: parent
            focus: true
            activeFocusOnTab: true
            keyNavigationEnabled: false
            orientation: ListView.Horizontal
            snapMode: ListView.SnapOneItem
            highlightRangeMode: ListView.StrictlyEnforceRange
            preferredHighlightBegin: 0
            preferredHighlightEnd: 0
            highlightMoveDuration: Theme.reducedMotion ? 0 : view.fade
            boundsBehavior: Flickable.DragOverBounds
            cacheBuffer: width
            model: view.intro !== null ? view.intro.pages : []
            Accessible.ignored: true

            delegate: IntroPageView {
                required property introPage modelData

                page: modelData
                footing: controls.height
                width: pages.width
                height: pages.height
                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.heading
                Accessible.description: modelData.words
            }

            readonly property real beyondLast: effectiveLayoutDirection === Qt.RightToLeft ? -horizontalOvershoot
                                                                                          : horizontalOvershoot
            onDraggingChanged: {
                // The list follows at half the finger's way out of bounds, so this is twice as far for the finger.
                if (!dragging && beyondLast > 20) {
                    view.end();
                }
            }
            onCurrentIndexChanged: {
                if (view.pageControl !== null && count > 0) {
                    view.pageControl.currentPage = currentIndex;
                }
            }
            Connections {
                target: view.pageControl
                function onCurrentPageChanged() {
                    pages.currentIndex = view.pageControl.currentPage;
                }
            }
        }
        Item {
            id: controls

            anchors.bottom: parent.bottom
            width: parent.width
            height: 64

            PageControl {
                objectName: "introPageControl"
                outlet: view.pageControl
                anchors.centerIn: parent
            }
            PlainButton {
                objectName: "introSkipButton"
                text: pages.currentIndex === pages.count - 1 ? qsTr("Done") : qsTr("Skip")
                ink: view.intro !== null ? view.intro.skipButton.titleColor : Theme.accent
                hoverInk: Theme.nightInk
                scaleFactor: Theme.barScale
                anchors.right: parent.right
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                onClicked: view.end()
            }
        }
    }
}
