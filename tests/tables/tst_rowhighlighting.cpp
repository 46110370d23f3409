// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/NSBezierPath_Category.h>
#include "tables/RowHighlighting_p.h"

#include <BrixelTest.h>

#include <QTest>

using namespace BrixelPrivate;

Q_DECLARE_METATYPE(BrixelPrivate::DropPosition)
Q_DECLARE_METATYPE(std::optional<QLineF>)

namespace {

QRectF rowRect(int row)
{
    return QRectF(0, 20 * row, 200, 20);
}

} // namespace

class TestRowHighlighting : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void textCellFrame_data();
    void textCellFrame();
    void dropLine_data();
    void dropLine();
    void dropPosition_data();
    void dropPosition();
};

void TestRowHighlighting::init()
{
    Brixel::setBezierPathDefaultLineWidth(1.0f);
}

void TestRowHighlighting::textCellFrame_data()
{
    QTest::addColumn<quint32>("style");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("columnCount");
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRect>("expected");

    const QRect frame(10, 0, 100, 18);   // inset 18 * 0.25 = 4.5, truncated to 4
    QTest::newRow("capsule: first column, left") << 1u << 0 << 3 << frame << QRect(14, 0, 96, 18);
    QTest::newRow("rounded: last column, right") << 2u << 2 << 3 << frame << QRect(10, 0, 96, 18);
    QTest::newRow("middle column kept") << 1u << 1 << 3 << frame << frame;
    QTest::newRow("one column: left only") << 1u << 0 << 1 << frame << QRect(14, 0, 96, 18);
    QTest::newRow("rectangle kept") << 0u << 0 << 3 << frame << frame;
    QTest::newRow("15 high: inset 3") << 1u << 0 << 2 << QRect(0, 0, 50, 15) << QRect(3, 0, 47, 15);
}

void TestRowHighlighting::textCellFrame()
{
    QFETCH(quint32, style);
    QFETCH(int, column);
    QFETCH(int, columnCount);
    QFETCH(QRect, frame);
    QFETCH(QRect, expected);
    QCOMPARE(insetTextCellFrame(frame, ZARNTableView::HighlightStyle(style), column, columnCount), expected);
}

void TestRowHighlighting::dropLine_data()
{
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("rowCount");
    QTest::addColumn<std::optional<QLineF>>("line");

    // Rows 20 high and 200 wide from y 0; the view's bounds are 200 x 150; offset 10.
    QTest::newRow("before the first row: top of the bounds") << -1 << 0 << 5 << std::optional(QLineF(11, 1, 199, 1));
    QTest::newRow("between rows: top of the lower") << 1 << 2 << 5 << std::optional(QLineF(11, 40, 199, 40));
    QTest::newRow("after the last row: its inset bottom") << 4 << 5 << 5 << std::optional(QLineF(11, 99, 199, 99));
    QTest::newRow("empty table: before the first row") << -1 << 0 << 0 << std::optional(QLineF(11, 1, 199, 1));
    QTest::newRow("same row") << 2 << 2 << 5 << std::optional<QLineF>();
    QTest::newRow("upper below lower") << 3 << 1 << 5 << std::optional<QLineF>();
    QTest::newRow("lower past the end") << 3 << 5 << 5 << std::optional<QLineF>();
    QTest::newRow("before a later row") << -1 << 1 << 5 << std::optional<QLineF>();
}

void TestRowHighlighting::dropLine()
{
    QFETCH(int, upper);
    QFETCH(int, lower);
    QFETCH(int, rowCount);
    QFETCH(std::optional<QLineF>, line);
    QCOMPARE(dropLineBetweenRows(upper, lower, rowCount, rowRect, QRectF(0, 0, 200, 150), 10), line);
}

void TestRowHighlighting::dropPosition_data()
{
    QTest::addColumn<QRect>("rowRect");
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("accepts");
    QTest::addColumn<DropPosition>("position");

    const QRect row(0, 100, 200, 24);   // margin round(24 / 5.5) = 4; bottom pixel 123
    QTest::newRow("inside the top margin") << row << 103 << true << DropPosition::AboveRow;
    QTest::newRow("past the top margin") << row << 104 << true << DropPosition::OnRow;
    QTest::newRow("inside the bottom margin") << row << 120 << true << DropPosition::BelowRow;
    QTest::newRow("above the row") << row << 50 << true << DropPosition::AboveRow;
    QTest::newRow("below the row") << row << 300 << true << DropPosition::BelowRow;
    QTest::newRow("refusing row: upper half") << row << 110 << false << DropPosition::AboveRow;
    QTest::newRow("refusing row: from the centre down") << row << 111 << false << DropPosition::BelowRow;
    QTest::newRow("tall row: margin at most 12") << QRect(0, 0, 200, 100) << 12 << true << DropPosition::OnRow;
    QTest::newRow("short row: margin at least 2") << QRect(0, 0, 200, 8) << 1 << true << DropPosition::AboveRow;
    QTest::newRow("far away: no overflow") << row << INT_MIN << true << DropPosition::AboveRow;
}

void TestRowHighlighting::dropPosition()
{
    QFETCH(QRect, rowRect);
    QFETCH(int, y);
    QFETCH(bool, accepts);
    QFETCH(DropPosition, position);
    QCOMPARE(dropPositionInRow(rowRect, y, accepts), position);
}

QTEST_MAIN(TestRowHighlighting)
#include "tst_rowhighlighting.moc"
