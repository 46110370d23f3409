// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXSplitView.h>
#include <Brixel/ZARNButton.h>

#include <QSignalSpy>
#include <QTest>

#include <cmath>

class TestSmallControls : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void shortcutFiresOnPressOnly();
    void dividerThickness_data();
    void dividerThickness();
};

void TestSmallControls::shortcutFiresOnPressOnly()
{
    QWidget window;
    auto *button = new ZARNButton(QStringLiteral("Play"), &window);
    button->setShortcut(QKeySequence(Qt::Key_Space));
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    button->setFocus();
    QSignalSpy clicked(button, &QAbstractButton::clicked);

    // The press shows the button pressed for a moment and then clicks it; releasing the key
    // in that moment must not click it a second time, or at once.
    QTest::keyPress(button, Qt::Key_Space);
    QVERIFY(button->isDown());
    QTest::keyRelease(button, Qt::Key_Space);
    QCOMPARE(clicked.size(), 0);
    QTRY_COMPARE(clicked.size(), 1);
    QTest::qWait(150);
    QCOMPARE(clicked.size(), 1);
}

void TestSmallControls::dividerThickness_data()
{
    QTest::addColumn<std::function<void(BXSplitView &)>>("operation");
    QTest::addColumn<float>("thickness");
    QTest::addColumn<int>("handleWidth");

    using Operation = std::function<void(BXSplitView &)>;
    QTest::newRow("new") << Operation([](auto &) {}) << 7.0f << 7;
    QTest::newRow("set") << Operation([](auto &s) { s.setDividerThickness(1.5f); }) << 1.5f << 2;
    QTest::newRow("NaN") << Operation([](auto &s) { s.setDividerThickness(std::nanf("")); }) << 0.0f << 0;
    QTest::newRow("negative") << Operation([](auto &s) { s.setDividerThickness(-3.0f); }) << 0.0f << 0;
}

void TestSmallControls::dividerThickness()
{
    QFETCH(std::function<void(BXSplitView &)>, operation);
    QFETCH(float, thickness);
    QFETCH(int, handleWidth);
    for (BXSplitView *split : {new BXSplitView, new BXSplitView(Qt::Vertical)}) {
        const std::unique_ptr<BXSplitView> owner(split);
        operation(*split);
        QCOMPARE(split->dividerThickness(), thickness);
        QCOMPARE(split->handleWidth(), handleWidth);
    }
}

QTEST_MAIN(TestSmallControls)
#include "tst_smallcontrols.moc"
