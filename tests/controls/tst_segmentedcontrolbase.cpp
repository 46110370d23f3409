// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNSegmentedControlBase.h>

#include "BrixelTest.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class TestSegmentedControlBase : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void selection_data();
    void selection();
    void selectedSegmentLooksPressed();
    void changesRepaint_data();
    void changesRepaint();
};

void TestSegmentedControlBase::selection_data()
{
    QTest::addColumn<std::function<void(ZARNSegmentedControlBase &)>>("operation");
    QTest::addColumn<int>("selected");
    QTest::addColumn<QList<int>>("signalled");

    // Three segments tagged 10, 20, 30 with segment 1 selected.
    using Operation = std::function<void(ZARNSegmentedControlBase &)>;
    QTest::newRow("select another") << Operation([](auto &c) { c.setSelectedSegment(2); }) << 2 << QList<int>{2};
    QTest::newRow("select the same") << Operation([](auto &c) { c.setSelectedSegment(1); }) << 1 << QList<int>{};
    QTest::newRow("minus one clears") << Operation([](auto &c) { c.setSelectedSegment(-1); }) << -1 << QList<int>{-1};
    QTest::newRow("beyond the segments ignored") << Operation([](auto &c) { c.setSelectedSegment(3); }) << 1 << QList<int>{};
    QTest::newRow("by tag") << Operation([](auto &c) { QVERIFY(c.selectSegmentWithTag(30)); }) << 2 << QList<int>{2};
    QTest::newRow("by absent tag keeps it") << Operation([](auto &c) { QVERIFY(!c.selectSegmentWithTag(99)); })
                                            << 1 << QList<int>{};
    QTest::newRow("removing the selected segment") << Operation([](auto &c) { c.setSegmentCount(1); }) << -1
                                                   << QList<int>{-1};
    QTest::newRow("negative count removes all") << Operation([](auto &c) { c.setSegmentCount(-4); }) << -1
                                                << QList<int>{-1};
    // 100 pixels in three segments: 33, 33 and the remaining 34.
    const auto click = [](Qt::MouseButton button, int x) {
        return Operation([=](auto &c) { QTest::mouseClick(&c, button, {}, QPoint(x, 10)); });
    };
    QTest::newRow("click on the first pixel of the last segment") << click(Qt::LeftButton, 66) << 2 << QList<int>{2};
    QTest::newRow("click on the last pixel of the last segment") << click(Qt::LeftButton, 99) << 2 << QList<int>{2};
    QTest::newRow("right click does nothing") << click(Qt::RightButton, 99) << 1 << QList<int>{};
}

void TestSegmentedControlBase::selection()
{
    QFETCH(std::function<void(ZARNSegmentedControlBase &)>, operation);
    QFETCH(int, selected);
    QFETCH(QList<int>, signalled);
    ZARNSegmentedControlBase control;
    control.setSegmentCount(3);
    for (int segment = 0; segment < 3; ++segment)
        control.setTag(10 * (segment + 1), segment);
    control.setSelectedSegment(1);
    control.resize(100, 20);
    QSignalSpy spy(&control, &ZARNSegmentedControlBase::selectedSegmentChanged);

    operation(control);
    QCOMPARE(control.selectedSegment(), selected);
    QList<int> emitted;
    for (const QList<QVariant> &arguments : spy)
        emitted.append(arguments.at(0).toInt());
    QCOMPARE(emitted, signalled);
}

void TestSegmentedControlBase::selectedSegmentLooksPressed()
{
    brixeltest::useTestFont();
    ZARNSegmentedControlBase control;
    control.setSegmentCount(2);
    control.setLabel(u"One"_s, 0);
    control.setLabel(u"Two"_s, 1);
    control.resize(control.sizeHint());
    QVERIFY(control.sizeHint().width() >= 2 * control.fontMetrics().horizontalAdvance(u"Two"_s));

    const QImage unselected = brixeltest::renderWidget(control);
    control.setSelectedSegment(0);
    const QImage selected = brixeltest::renderWidget(control);
    const QRect first = control.rectForSegment(0), second = control.rectForSegment(1);
    QVERIFY(selected.copy(first) != unselected.copy(first));
    QCOMPARE(selected.copy(second), unselected.copy(second));
}

void TestSegmentedControlBase::changesRepaint_data()
{
    using Change = std::function<void(ZARNSegmentedControlBase &)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("repaints");

    QTest::newRow("another selected segment") << Change([](auto &c) { c.setSelectedSegment(0); }) << true;
    QTest::newRow("the same selected segment") << Change([](auto &c) { c.setSelectedSegment(1); }) << false;
    QTest::newRow("an image") << Change([](auto &c) { c.setImage(QImage(4, 4, QImage::Format_ARGB32), 0); }) << true;
    QTest::newRow("an image for no segment") << Change([](auto &c) { c.setImage(QImage(4, 4, QImage::Format_ARGB32), 5); }) << false;
}

void TestSegmentedControlBase::changesRepaint()
{
    QFETCH(std::function<void(ZARNSegmentedControlBase &)>, change);
    QFETCH(bool, repaints);
    ZARNSegmentedControlBase control;
    control.setSegmentCount(2);
    control.setSelectedSegment(1);
    control.resize(100, 20);
    control.show();
    QVERIFY(QTest::qWaitForWindowExposed(&control));
    QCoreApplication::processEvents();

    brixeltest::PaintCounter paints(&control);
    change(control);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count > 0, repaints);
}

QTEST_MAIN(TestSegmentedControlBase)
#include "tst_segmentedcontrolbase.moc"
