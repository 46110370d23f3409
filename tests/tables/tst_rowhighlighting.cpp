// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/NSBezierPath_Category.h>
#include "tables/RowHighlighting_p.h"

#include <BrixelTest.h>

#include <QPainter>
#include <QTest>

#include <climits>
#include <functional>

using namespace BrixelPrivate;

Q_DECLARE_METATYPE(BrixelPrivate::DropPosition)
Q_DECLARE_METATYPE(std::optional<QLineF>)

namespace {

const QColor outline(200, 0, 0);
const QColor fill(0, 0, 200);
const QColor none(Qt::transparent);
const QRectF row(10, 6, 100, 18);   // the row drawn in every picture
const QRect cellFrame(10, 0, 100, 18);   // a text cell's frame: inset 18 * 0.25 = 4.5, truncated to 4

QImage picture(const std::function<void(QPainter &)> &draw)
{
    QImage image = brixeltest::filledImage({120, 30}, Qt::transparent);
    QPainter painter(&image);
    draw(painter);
    return image;
}

QColor withAlpha(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

using Expectations = QList<std::pair<QPoint, QColor>>;

void verifyPixels(const QImage &image, const Expectations &expectations, int tolerance = 3)
{
    for (const auto &[point, expected] : expectations) {
        const QColor actual = brixeltest::colorAt(image, point);
        // Fully transparent pixels carry no colour worth comparing.
        const bool matches = expected.alpha() == 0 ? actual.alpha() <= tolerance
                                                   : brixeltest::colorsClose(actual, expected, tolerance);
        QVERIFY2(matches, qPrintable(QStringLiteral("(%1, %2): %3, expected %4")
                                         .arg(point.x()).arg(point.y())
                                         .arg(actual.name(QColor::HexArgb), expected.name(QColor::HexArgb))));
    }
}

QRectF rowRect(int row)
{
    return QRectF(0, 20 * row, 200, 20);
}

} // namespace

class TestRowHighlighting : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        Brixel::setBezierPathDefaultLineWidth(1.0f);
    }

    void textCellFrame_data()
    {
        QTest::addColumn<quint32>("style");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("columnCount");
        QTest::addColumn<QRect>("expected");

        QTest::newRow("capsule: first column, left") << 1u << 0 << 3 << QRect(14, 0, 96, 18);
        QTest::newRow("rounded: last column, right") << 2u << 2 << 3 << QRect(10, 0, 96, 18);
        QTest::newRow("middle column kept") << 1u << 1 << 3 << cellFrame;
        QTest::newRow("one column: left only") << 1u << 0 << 1 << QRect(14, 0, 96, 18);
        QTest::newRow("rectangle kept") << 0u << 0 << 3 << cellFrame;
    }

    void textCellFrame()
    {
        QFETCH(quint32, style);
        QFETCH(int, column);
        QFETCH(int, columnCount);
        QFETCH(QRect, expected);
        QCOMPARE(insetTextCellFrame(cellFrame, ZARNTableView::HighlightStyle(style), column, columnCount), expected);
    }

    void dropLine_data()
    {
        QTest::addColumn<int>("upper");
        QTest::addColumn<int>("lower");
        QTest::addColumn<int>("rowCount");
        QTest::addColumn<std::optional<QLineF>>("line");

        // Rows 20 high and 200 wide from y 0; the view's bounds are 200 x 150; offset 10.
        QTest::newRow("before the first row: top of the bounds")
            << -1 << 0 << 5 << std::optional(QLineF(11, 1, 199, 1));
        QTest::newRow("between rows: top of the lower") << 1 << 2 << 5 << std::optional(QLineF(11, 40, 199, 40));
        QTest::newRow("after the last row: its inset bottom") << 4 << 5 << 5 << std::optional(QLineF(11, 99, 199, 99));
        QTest::newRow("empty table: before the first row") << -1 << 0 << 0 << std::optional(QLineF(11, 1, 199, 1));
        QTest::newRow("same row") << 2 << 2 << 5 << std::optional<QLineF>();
        QTest::newRow("upper below lower") << 3 << 1 << 5 << std::optional<QLineF>();
        QTest::newRow("lower past the end") << 3 << 5 << 5 << std::optional<QLineF>();
        QTest::newRow("before a later row") << -1 << 1 << 5 << std::optional<QLineF>();
    }

    void dropLine()
    {
        QFETCH(int, upper);
        QFETCH(int, lower);
        QFETCH(int, rowCount);
        QFETCH(std::optional<QLineF>, line);
        QCOMPARE(dropLineBetweenRows(upper, lower, rowCount, rowRect, QRectF(0, 0, 200, 150), 10), line);
    }

    void dropPosition_data()
    {
        QTest::addColumn<QRect>("rowRect");
        QTest::addColumn<int>("y");
        QTest::addColumn<bool>("accepts");
        QTest::addColumn<DropPosition>("position");

        const QRect row(0, 100, 200, 24);   // margin round(24 / 5.5) = 4; bottom pixel 123
        QTest::newRow("inside the top margin") << row << 103 << true << DropPosition::AboveRow;
        QTest::newRow("past the top margin") << row << 104 << true << DropPosition::OnRow;
        QTest::newRow("inside the bottom margin") << row << 120 << true << DropPosition::BelowRow;
        QTest::newRow("below the row") << row << 300 << true << DropPosition::BelowRow;
        QTest::newRow("refusing row: upper half") << row << 110 << false << DropPosition::AboveRow;
        QTest::newRow("refusing row: from the centre down") << row << 111 << false << DropPosition::BelowRow;
        QTest::newRow("tall row: margin at most 12") << QRect(0, 0, 200, 100) << 12 << true << DropPosition::OnRow;
        QTest::newRow("short row: margin at least 2") << QRect(0, 0, 200, 8) << 1 << true << DropPosition::AboveRow;
        QTest::newRow("far away: no overflow") << row << INT_MIN << true << DropPosition::AboveRow;
    }

    void dropPosition()
    {
        QFETCH(QRect, rowRect);
        QFETCH(int, y);
        QFETCH(bool, accepts);
        QFETCH(DropPosition, position);
        QCOMPARE(dropPositionInRow(rowRect, y, accepts), position);
    }

    void drops_data()
    {
        QTest::addColumn<int>("kind");   // 0: on the view, 1: unselected row, 2: selected row, 3: marker
        QTest::addColumn<Expectations>("pixels");

        const QColor frame = withAlpha(outline, 230);   // alpha 0.9
        // The view's frame: 2 pixels just inside the bounds (0, 0, 120, 30).
        QTest::newRow("on the view") << 0
            << Expectations{{{0, 0}, frame}, {{1, 15}, frame}, {{2, 15}, none},
                            {{119, 29}, frame}, {{60, 28}, frame}, {{60, 27}, none}};
        // The row's drop rectangle (11, 7, 98, 15), outlined 2 wide around its edge.
        QTest::newRow("unselected row: faint fill, outline at 0.9") << 1
            << Expectations{{{60, 14}, withAlpha(fill, 38)}, {{60, 6}, frame}, {{60, 4}, none}, {{10, 14}, frame}};
        QTest::newRow("selected row: outline only") << 2
            << Expectations{{{60, 14}, none}, {{60, 6}, outline}, {{60, 7}, outline}, {{60, 8}, none}};
        // Line (20, 15) to (110, 15): the circle (14, 12, 6, 6) ends at its start.
        QTest::newRow("marker between rows") << 3
            << Expectations{{{17, 15}, Qt::white}, {{14, 15}, outline}, {{60, 14}, outline}, {{60, 15}, outline},
                            {{60, 13}, none}, {{60, 16}, none}, {{109, 15}, outline}, {{110, 15}, none}};
    }

    void drops()
    {
        QFETCH(int, kind);
        QFETCH(Expectations, pixels);
        const SelectionColors colors{fill, outline, true};
        const QImage image = picture([&](QPainter &painter) {
            switch (kind) {
            case 0:
                drawDropHighlightOnView(painter, QRectF(0, 0, 120, 30), colors);
                break;
            case 1:
            case 2:
                drawDropHighlightOnRow(painter, dropHighlightRect(row, false), kind == 2, colors);
                break;
            default:
                drawDropMarker(painter, QLineF(20, 15, 110, 15), colors);
            }
        });
        verifyPixels(image, pixels);
        // Drawing a row or a marker leaves the default line width at 2.
        QCOMPARE(Brixel::bezierPathDefaultLineWidth(), kind == 0 ? 1.0f : 2.0f);
    }
};

QTEST_MAIN(TestRowHighlighting)
#include "tst_rowhighlighting.moc"
