// SPDX-License-Identifier: Apache-2.0
pragma Singleton

import QtQuick
import Lodestar.Kit

/// All colour roles, sizes and durations of the interface. Lengths are points, the unit of the scene.
QtObject {
    id: theme

    readonly property bool dark: Appearance.dark
    readonly property bool mirrored: Appearance.mirrored
    /// High contrast: pure inks, darker or lighter states, and an outline around whatever else only its ground tells apart.
    readonly property bool strong: Appearance.highContrast
    readonly property bool reducedMotion: Appearance.reducedMotion

    // Surfaces
    readonly property color ground: strong ? (dark ? "#000000" : "#FFFFFF") : dark ? "#050709" : "#F2F4F7"
    readonly property color card: strong ? (dark ? "#000000" : "#FFFFFF") : dark ? "#0F1317" : "#FFFFFF"
    readonly property color raised: strong ? (dark ? "#000000" : "#FFFFFF") : dark ? "#191F26" : "#FFFFFF"
    readonly property color pressed: strong ? (dark ? "#2E3742" : "#CDD6DF") : dark ? "#1C232B" : "#E6EBF0"
    readonly property color hovered: dark ? "#19252D" : "#E2EEF8"
    /// Makes any ground look hovered: laid over a card it gives `hovered`.
    readonly property color wash: dark ? "#1A71C7F4" : "#1C0072AD"
    readonly property color well: dark ? "#1B2128" : "#E4E8ED"
    /// A well in a sheet, whose ground is lighter in the dark.
    readonly property color sheetWell: dark ? "#262D36" : well
    readonly property color hairline: strong ? (dark ? "#C9D0D8" : "#1A2027") : dark ? "#262D36" : "#D9DEE5"
    /// Around cards, sheets, wells and chips; none unless contrast is high.
    readonly property color outline: hairline
    readonly property int outlineWidth: strong ? 1 : 0
    readonly property color scrim: dark ? "#9E000000" : "#6B101821"
    readonly property color shade: dark ? "#000000" : "#101821"
    readonly property color night: "#0B2236"

    // Ink
    readonly property color ink: strong ? (dark ? "#FFFFFF" : "#000000") : dark ? "#ECEFF3" : "#1A2027"
    readonly property color ink2: strong ? (dark ? "#FFFFFF" : "#000000") : dark ? "#A9B3BF" : "#545E6B"
    readonly property color ink3: strong ? (dark ? "#D9DEE5" : "#333A43") : dark ? "#95A0AD" : "#66707E"
    readonly property color titleInk: strong ? (dark ? "#FFFFFF" : "#000000") : dark ? "#C9D0D8" : "#555555"
    readonly property color faint: strong ? (dark ? "#A9B3BF" : "#545E6B") : dark ? "#5C6773" : "#A9B3BF"
    readonly property color nightInk: "#FFFFFF"
    readonly property color nightInk2: "#BFD3E3"
    readonly property color match: dark ? "#0B3D58" : "#CDEBFB"

    // Blue: the accent only fills, beside a change of shape; whatever is text or line is accentInk.
    readonly property color accent: UIColor.selectedBlue
    readonly property color accentInk: strong ? (dark ? "#A9DDF8" : "#004B73") : dark ? UIColor.tesselLightBlue : "#0072AD"
    readonly property color fill: accentInk
    readonly property color fillInk: dark ? "#04121B" : "#FFFFFF"
    readonly property color tabSelected: dark && !strong ? accent : accentInk
    readonly property color track: strong ? (dark ? "#95A0AD" : "#545E6B") : dark ? "#5C6773" : "#8A95A3"
    readonly property color knob: "#FFFFFF"
    readonly property color knobEdge: "#29101821"
    readonly property color segment: dark ? "#39434F" : "#FFFFFF"

    // State
    readonly property color successGreen: strong ? (dark ? "#7BE07F" : "#00570B") : UIColor.successGreen
    readonly property color failedRed: strong ? ink3 : UIColor.failedRed
    readonly property color errorRed: UIColor.errorRed
    readonly property color plate: dark ? (strong ? "#FFE9E6" : "#F2C7C1") : "#FBEAE7"
    readonly property color systemOrange: strong ? (dark ? "#FFC266" : "#733900") : dark ? UIColor.dashboardOrange : "#B35900"
    /// The same as text on the ground instead of a card.
    readonly property color orangeOnGround: strong ? systemOrange : dark ? UIColor.dashboardOrange : "#A95300"
    readonly property color systemRed: strong ? "#B3000F" : "#E32226"
    readonly property color systemRedInk: strong ? (dark ? "#FFB3B0" : "#A3000D") : dark ? "#FF7A75" : "#E32226"
    readonly property color systemLightGrey: dark ? "#4A5460" : UIColor.lightGrayColor
    readonly property color lightGreyInk: dark ? "#ECEFF3" : "#1A2027"
    readonly property color tesselBlue: UIColor.tesselBlue
    readonly property color tesselLightGreen: UIColor.tesselLightGreen

    // Charts
    readonly property color chartOrange: strong ? (dark ? "#FFC266" : "#A85F00") : dark ? UIColor.dashboardOrange : UIColor.chartOrange
    readonly property color chartGreen: strong ? successGreen : dark ? UIColor.dashboardGreen : UIColor.successGreen
    readonly property color chartBlue: dark ? "#A9DDF8" : UIColor.ornisBlue
    readonly property color chartGrid: strong ? (dark ? "#95A0AD" : "#66707E") : dark ? "#333C47" : "#C4CCD5"

    /// An ink that keeps its contrast on a hovered ground.
    function hoverInk(ink: color): color {
        return dark ? ink : Qt.darker(ink, 1.2);
    }
    /// The ink of a state's word and mark.
    function stateInk(state: int): color {
        switch (state) {
        case Role.State.None: return titleInk;
        case Role.State.Good: return successGreen;
        case Role.State.Off: return failedRed;
        case Role.State.Alert:
        case Role.State.Incomplete: return systemOrange;
        case Role.State.Error: return errorRed;
        default: return ink3;
        }
    }
    /// The ink of a mark without a word: no plate lifts the dark red of errors off its card.
    function loneMarkInk(state: int): color {
        return state !== Role.State.Error ? stateInk(state) : strong ? systemRedInk : systemRed;
    }
    /// The shape of a state, see StateMark; empty for none.
    function stateMark(state: int): string {
        switch (state) {
        case Role.State.None: return "";
        case Role.State.Good: return "good";
        case Role.State.Alert: return "alert";
        case Role.State.Error:
        case Role.State.BadgedError: return "error";
        case Role.State.Offline: return "offline";
        case Role.State.Incomplete: return "incomplete";
        case Role.State.Waiting: return "waiting";
        default: return "off";
        }
    }
    /// The ground of a swiped row's button.
    function buttonGround(role: int): color {
        switch (role) {
        case Role.Button.Quiet: return systemLightGrey;
        case Role.Button.Positive: return tesselLightGreen;
        case Role.Button.Favourite: return errorRed;
        case Role.Button.Destructive: return systemRed;
        default: return tesselBlue;
        }
    }
    /// What reads on that ground.
    function buttonInk(role: int): color {
        switch (role) {
        case Role.Button.Quiet: return lightGreyInk;
        case Role.Button.Positive: return tesselBlue;
        default: return "#FFFFFF";
        }
    }

    // Type
    readonly property string family: "Avenir Book"
    /// Scale of everything that grows with the text size.
    readonly property real textScale: Appearance.textScale
    /// Scale of bars and tab labels, which stop growing here.
    readonly property real barScale: Math.min(textScale, 1.3)
    /// Scale of badges, which stop growing here.
    readonly property real badgeScale: Math.min(textScale, 1.5)
    /// At large text, a row's value stands below its name and not at the row's end.
    readonly property bool stacked: textScale >= 1.5
    readonly property int figureSize: 34
    readonly property int rootTitleSize: 28
    readonly property int valueSize: 24
    readonly property int bodySize: 17
    readonly property int stateSize: 15
    readonly property int captionSize: 13
    readonly property int noteSize: 12
    readonly property int axisSize: 11
    /// The line height that belongs to a size of the type scale.
    function lineFor(size: real): real {
        switch (size) {
        case 34: return 40;
        case 28: return 36;
        case 24: return 32;
        case 17: return 22;
        case 15: return 20;
        case 13: return 18;
        case 12: return 16;
        case 11: return 14;
        default: return Math.round(size * 1.3);
        }
    }

    // Space and shape
    readonly property int plateRadius: 6
    readonly property int segmentRadius: 8
    readonly property int fieldRadius: 10
    readonly property int cardRadius: 12
    readonly property int sheetRadius: 16
    readonly property int target: 44
    /// Points before a placeholder, for the text cursor.
    readonly property int caretRoom: 3
    /// Points from a card's edge to the text of its rows; root titles and section headers are aligned with that text.
    readonly property int rowStart: 20
    readonly property int rowEnd: 15
    readonly property int sectionGap: 20
    readonly property int groupGap: 24
    readonly property int rootBarHeight: 60
    readonly property int barHeight: 52
    readonly property int tabBarHeight: 56
    /// The tab bar's height in windows that are lower than this and wider than high, as a phone that lies.
    readonly property int lowTabBarHeight: 44
    readonly property int lowBelow: 480
    readonly property int railWidth: 88
    /// From this width of the window on, screens stand side by side; and the width of the column at the start.
    readonly property int columnsFrom: 1000
    readonly property int startColumn: 400
    readonly property int measure: 720
    readonly property int dashboardMeasure: 1072
    readonly property int sheetMaxWidth: 560
    readonly property int actionSheetMaxWidth: 420

    // Width classes of the window
    readonly property int compactWidth: 0
    readonly property int mediumWidth: 1
    readonly property int wideWidth: 2
    function widthClass(width: real): int {
        return width < 600 ? compactWidth : width < 1024 ? mediumWidth : wideWidth;
    }
    function cardMargin(width: real): int {
        return width < 600 ? 12 : 24;
    }
    /// Points on either side of a page's cards: the margin, or more where the cards have reached their greatest width.
    function sideMargin(width: real, maximum: real): real {
        return Math.max(cardMargin(width), Math.floor((width - maximum) / 2));
    }

    // Durations in milliseconds
    readonly property int pressIn: reducedMotion ? 0 : 80
    readonly property int pressOut: reducedMotion ? 0 : 160
    readonly property int push: reducedMotion ? 120 : 280
    readonly property int sheetIn: reducedMotion ? 120 : 300
    readonly property int sheetOut: reducedMotion ? 120 : 240
    readonly property int sheetBack: reducedMotion ? 120 : 200
    readonly property int alertIn: reducedMotion ? 120 : 180
    readonly property int settle: reducedMotion ? 120 : 200
    readonly property int rowDelete: reducedMotion ? 120 : 240
    readonly property int spinnerTurn: 900
    readonly property int counting: 600
}
