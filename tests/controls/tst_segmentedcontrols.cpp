// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNSegmentedCell.h>
#include <Brixel/ZARNSegmentedControl.h>
#include <Brixel/ZARNSegmentedControlBase.h>
#include <Brixel/ZARNSegmentedControlButton.h>

#include "BrixelTest.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The columns of \a image's row \a y that hold the separators' translucent black over white.
QList<int> separatorColumns(const QImage &image, int y)
{
    QList<int> columns;
    const QColor separator = QColor::fromRgbF(0.67f, 0.67f, 0.67f);
    for (int x = 0; x < image.width(); ++x) {
        if (brixeltest::colorsClose(image.pixelColor(x, y), separator, 3))
            columns.append(x);
    }
    return columns;
}

// Records the separators as the default cell does, but draws the segments elsewhere, so that
// only the separators show.
class BlankSegments : public ZARNSegmentedCell
{
public:
    void drawSegment(QPainter &, int segment, const QRect &frame, ZARNSegmentedControl &control) const override
    {
        QImage scratch(frame.size(), QImage::Format_ARGB32_Premultiplied);
        QPainter elsewhere(&scratch);
        ZARNSegmentedCell::drawSegment(elsewhere, segment, frame, control);
    }
};

} // namespace

class TestSegmentedControls : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void selection_data()
    {
        QTest::addColumn<std::function<void(ZARNSegmentedControlBase &)>>("operation");
        QTest::addColumn<int>("selected");
        QTest::addColumn<QList<int>>("signalled");

        // Three segments tagged 10, 20, 30 with segment 1 selected.
        using Operation = std::function<void(ZARNSegmentedControlBase &)>;
        QTest::newRow("select another") << Operation([](auto &c) { c.setSelectedSegment(2); }) << 2 << QList<int>{2};
        QTest::newRow("select the same") << Operation([](auto &c) { c.setSelectedSegment(1); }) << 1 << QList<int>{};
        QTest::newRow("minus one clears") << Operation([](auto &c) { c.setSelectedSegment(-1); }) << -1
                                          << QList<int>{-1};
        QTest::newRow("beyond the segments ignored") << Operation([](auto &c) { c.setSelectedSegment(3); }) << 1
                                                     << QList<int>{};
        QTest::newRow("removing the selected segment") << Operation([](auto &c) { c.setSegmentCount(1); }) << -1
                                                       << QList<int>{-1};
        QTest::newRow("negative count removes all") << Operation([](auto &c) { c.setSegmentCount(-4); }) << -1
                                                    << QList<int>{-1};
        // 100 pixels in three segments: 33, 33 and the remaining 34.
        const auto click = [](Qt::MouseButton button, int x) {
            return Operation([=](auto &c) { QTest::mouseClick(&c, button, {}, QPoint(x, 10)); });
        };
        QTest::newRow("click on the first pixel of the last segment") << click(Qt::LeftButton, 66) << 2
                                                                      << QList<int>{2};
        QTest::newRow("click on the last pixel of the last segment") << click(Qt::LeftButton, 99) << 2 << QList<int>{2};
        QTest::newRow("right click does nothing") << click(Qt::RightButton, 99) << 1 << QList<int>{};
    }

    void selection()
    {
        QFETCH(std::function<void(ZARNSegmentedControlBase &)>, operation);
        QFETCH(int, selected);
        QFETCH(QList<int>, signalled);
        ZARNSegmentedControlBase control;
        control.setSegmentCount(3);
        for (int segment = 0; segment < 3; ++segment)
            control.setTag(10 * (segment + 1), segment);
        QCOMPARE(control.tagForSegment(3), 0);   // no such segment
        control.setSelectedSegment(1);
        control.resize(100, 20);
        QCOMPARE(control.rectForSegment(2), QRect(66, 0, 34, 20));
        QSignalSpy spy(&control, &ZARNSegmentedControlBase::selectedSegmentChanged);

        operation(control);
        QCOMPARE(control.selectedSegment(), selected);
        QList<int> emitted;
        for (const QList<QVariant> &arguments : spy)
            emitted.append(arguments.at(0).toInt());
        QCOMPARE(emitted, signalled);
    }

    void selectedSegmentLooksPressed()
    {
        brixeltest::useTestFont();
        ZARNSegmentedControl control;
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

    void changesRepaint_data()
    {
        using Change = std::function<void(ZARNSegmentedControlBase &)>;
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("repaints");

        QTest::newRow("another selected segment") << Change([](auto &c) { c.setSelectedSegment(0); }) << true;
        QTest::newRow("a label") << Change([](auto &c) { c.setLabel(u"New"_s, 0); }) << true;
        const QImage image(4, 4, QImage::Format_ARGB32);
        QTest::newRow("an image") << Change([=](auto &c) { c.setImage(image, 0); }) << true;
        QTest::newRow("an image for no segment") << Change([=](auto &c) { c.setImage(image, 5); }) << false;
    }

    void changesRepaint()
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

    void separators_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("selected");
        QTest::addColumn<QList<int>>("columns");

        // 100 pixels in four segments of 25, or three of 33, 33 and 34.
        QTest::newRow("three, middle selected: none") << 3 << 1 << QList<int>{};
        QTest::newRow("four, first selected: after 1 and 2") << 4 << 0 << QList<int>{50, 75};
        QTest::newRow("four, last selected") << 4 << 3 << QList<int>{25, 50};
        QTest::newRow("none selected: all but the last") << 3 << -1 << QList<int>{33, 66};
    }

    void separators()
    {
        QFETCH(int, count);
        QFETCH(int, selected);
        QFETCH(QList<int>, columns);
        ZARNSegmentedControl control;
        control.setCell(std::make_unique<BlankSegments>());
        control.setSegmentCount(count);
        control.setSelectedSegment(selected);
        control.resize(100, 20);
        control.show();
        control.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&control));

        QCOMPARE(separatorColumns(brixeltest::renderOverWhite(control), 10), columns);
        QCOMPARE(ZARNSegmentedControl::separatorsForSegmentedControl(&control).size(), columns.size());

        // In a window that is not active the separators are recorded but not drawn.
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QCOMPARE(separatorColumns(brixeltest::renderOverWhite(control), 10), QList<int>{});
    }

    void separatorTable()
    {
        const ZARNSegmentedControl control, other;
        // An earlier control at the same address may have left its separators; a repaint or this
        // call empties them.
        ZARNSegmentedControl::removeSeparatorsForSegmentedControl(&control);
        ZARNSegmentedControl::addSeparator(u"{{10, 0}, {1, 20}}"_s, &control);
        ZARNSegmentedControl::addSeparator(QString(), &control);
        ZARNSegmentedControl::addSeparator(u"{{20, 0}, {1, 20}}"_s, nullptr);
        ZARNSegmentedControl::addSeparator(u"{{30, 0}, {1, 20}}"_s, &other);
        QCOMPARE(ZARNSegmentedControl::separatorsForSegmentedControl(&control), QStringList{u"{{10, 0}, {1, 20}}"_s});
        ZARNSegmentedControl::removeSeparatorsForSegmentedControl(&control);
        QVERIFY(ZARNSegmentedControl::separatorsForSegmentedControl(&control).isEmpty());
        QVERIFY(ZARNSegmentedControl::separatorsForSegmentedControl(nullptr).isEmpty());
    }

    void imageButton_data()
    {
        QTest::addColumn<QSize>("bounds");
        QTest::addColumn<QSize>("imageSize");
        QTest::addColumn<QPoint>("origin");

        QTest::newRow("45 x 23") << QSize(45, 23) << QSize(20, 20) << QPoint(12, 1);
        QTest::newRow("even") << QSize(40, 24) << QSize(20, 20) << QPoint(10, 2);
        QTest::newRow("larger than the bounds") << QSize(10, 10) << QSize(15, 13) << QPoint(-2, -1);
    }

    void imageButton()
    {
        QFETCH(QSize, bounds);
        QFETCH(QSize, imageSize);
        QFETCH(QPoint, origin);
        QCOMPARE(ZARNSegmentedControlButton::imageOrigin(bounds, imageSize), origin);

        ZARNSegmentedControlButton button;
        QImage red = brixeltest::filledImage(imageSize, Qt::red);
        button.setImage(red);
        button.setSegmentCount(1);
        button.resize(bounds);
        const QImage shown = brixeltest::renderWidget(button);
        // y counts from the bottom: the image's top row is bounds height - y - image height.
        const QRect expected = QRect(QPoint(origin.x(), bounds.height() - origin.y() - imageSize.height()), imageSize)
                                   .intersected(QRect(QPoint(0, 0), bounds));
        QCOMPARE(brixeltest::pixelBounds(shown, [](const QColor &c) { return c == QColor(Qt::red); }), expected);
        // The segment's face shows around the image.
        QVERIFY(shown.pixelColor(3, bounds.height() / 2) != button.palette().color(QPalette::Window));
    }
};

QTEST_MAIN(TestSegmentedControls)
#include "tst_segmentedcontrols.moc"
