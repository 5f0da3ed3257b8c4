// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Lodestar.Kit

/// A label whose numbers count to their new values when its text changes while it is seen. It ends with exactly the
/// given text. With reduced motion the text changes at once, and readers are told the end alone.
Label {
    id: label

    /// The text at the end. Set this and not `text`.
    required property string value
    /// Whether the first number counts from 0 when the text before was another kind of text, or none. Else only numbers
    /// within the same words count, as those of a progress do.
    property bool fromZero: true

    /// The text that was seen last, that from which the numbers count, and that to which they count.
    property string seen
    property string before
    property string end
    property real progress: 1

    /// Digits that belong to one number with the digits beside them: a fraction, or groups of thousands.
    readonly property var joined: /\d[.,'\u00a0\u202f]\d/
    readonly property var digits: /\d+/g

    function words(text: string): string {
        return text.replace(digits, "#");
    }
    function follow() {
        if (!visible) {
            // Room is kept for the end. It counts from what was seen once it is seen again.
            counting.stop();
            text = value;
        } else if (value !== end) {
            countTo(value);
        }
    }
    function countTo(value: string) {
        const alike = words(seen) === words(value);
        before = alike ? seen : "";
        end = value;
        counting.stop();
        const counts = !Theme.reducedMotion && !joined.test(value) && (alike || fromZero);
        progress = counts ? 0 : 1;
        show();
        if (counts) {
            counting.start();
        }
    }
    function show() {
        if (progress >= 1) {
            text = end;
        } else {
            const starts = before.match(digits) ?? ["0"];
            let index = 0;
            text = end.replace(digits, (number) => {
                const goal = Number(number);
                const start = Number(starts[index] ?? goal);
                ++index;
                return String(Math.round(start + (goal - start) * progress));
            });
        }
        seen = text;
    }

    Accessible.role: Accessible.StaticText
    Accessible.name: value
    Component.onCompleted: follow()
    onValueChanged: follow()
    onVisibleChanged: follow()
    onProgressChanged: show()

    NumberAnimation {
        id: counting

        target: label
        property: "progress"
        to: 1
        duration: Theme.counting
        easing.type: Easing.OutCubic
    }
}
