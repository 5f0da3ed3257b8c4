// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Pressable.h"

#include "KitWindow.h"

#include <QAccessible>

namespace lodestar
{

TEST(PressableTest, AFingerTheMouseAndTheSpaceBarClickWhereTheyLetGoOfWhatTheyPressed)
{
    // Two buttons one above the other, 100 by 50.
    QQuickWindow window;
    window.setGeometry(0, 0, 200, 200);
    Pressable first;
    Pressable second;
    QList<Pressable*> clicks;
    for (Pressable* const item : {&first, &second}) {
        item->setParentItem(window.contentItem());
        item->setSize({100, 50});
        QObject::connect(item, &Pressable::clicked, item, [&clicks, item] { clicks << item; });
    }
    second.setY(50);
    window.show();
    window.requestActivate();
    ASSERT_TRUE(waitFor([&] { return window.isExposed() && window.isActive(); }));

    QTest::mousePress(&window, Qt::LeftButton, {}, {50, 20});
    EXPECT_TRUE(first.isPressed());
    EXPECT_TRUE(first.hasActiveFocus());
    EXPECT_FALSE(first.hasVisualFocus());
    QTest::mouseMove(&window, {50, 70});
    EXPECT_FALSE(first.isPressed());
    EXPECT_FALSE(second.isPressed());
    QTest::mouseRelease(&window, Qt::LeftButton, {}, {50, 70});
    EXPECT_TRUE(clicks.isEmpty());

    QTest::mouseClick(&window, Qt::RightButton, {}, {50, 20});
    EXPECT_TRUE(clicks.isEmpty());
    QTest::mouseDClick(&window, Qt::LeftButton, {}, {50, 20});
    EXPECT_EQ(clicks, (QList<Pressable*>{&first, &first}));

    QPointingDevice* const finger = QTest::createTouchDevice();
    QTest::touchEvent(&window, finger).press(1, {50, 70}, &window);
    QTest::touchEvent(&window, finger).release(1, {50, 70}, &window);
    EXPECT_EQ(clicks.last(), &second);

    // A press that loses its button is none.
    QTest::mousePress(&window, Qt::LeftButton, {}, {50, 20});
    first.setEnabled(false);
    EXPECT_FALSE(first.isPressed());
    QTest::mouseRelease(&window, Qt::LeftButton, {}, {50, 20});
    first.doAccessibleAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.size(), 3);
    second.doAccessibleAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.size(), 4);

    // The keyboard goes from one to the next with a ring.
    first.setEnabled(true);
    second.forceActiveFocus();
    clicks.clear();
    first.forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(first.hasVisualFocus());
    QTest::keyClick(&window, Qt::Key_Tab);
    EXPECT_TRUE(second.hasVisualFocus());
    EXPECT_FALSE(first.hasVisualFocus());
    QTest::keyPress(&window, Qt::Key_Space);
    EXPECT_TRUE(second.isPressed());
    QTest::keyRelease(&window, Qt::Key_Space);
    EXPECT_EQ(clicks, QList<Pressable*>{&second});

    // What the keyboard leaves while the bar is down is not clicked.
    QTest::keyPress(&window, Qt::Key_Space);
    first.forceActiveFocus(Qt::TabFocusReason);
    EXPECT_FALSE(second.isPressed());
    QTest::keyRelease(&window, Qt::Key_Space);
    EXPECT_EQ(clicks.size(), 1);
}

} // namespace lodestar
