// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNAttributedStringDrawing.h>
#include <Brixel/ZARNShadow.h>

#include <BrixelTest.h>

#include <QFontMetricsF>
#include <QPainter>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QFont bigFont()
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(32);
    return font;
}

ZARNAttributedString text(const QString &string, Qt::Alignment alignment = Qt::AlignLeft)
{
    return ZARNAttributedString(string, {{ZARNFontAttributeName, bigFont()},
                                         {ZARNForegroundColorAttributeName, QColor(Qt::black)},
                                         {ZARNParagraphAlignmentAttributeName, QVariant::fromValue(alignment)}});
}

// The height of one laid-out line: ascent and descent rounded up, plus the leading.
qreal lineHeight(const QFont &font = bigFont())
{
    const QFontMetricsF metrics(font);
    return std::ceil(metrics.ascent() + metrics.descent()) + metrics.leading();
}

template<typename Draw>
QImage render(Draw &&draw, QSize size = {400, 200})
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    draw(painter);
    return image;
}

bool isInk(const QColor &color)
{
    return color.red() < 160 && color.green() < 160 && color.blue() < 160;
}

bool isRed(const QColor &color)
{
    return color.red() > 200 && color.green() < 90 && color.blue() < 90;
}

} // namespace

class TestAttributedStringDrawing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }
    void measures_data();
    void measures();
    void emptyTextIsOneLineOfItsFont();
    void alignsEachParagraph_data();
    void alignsEachParagraph();
    void shadowLiesUnderTheGlyphs_data();
    void shadowLiesUnderTheGlyphs();
    void drawsOnlyLinesStartingInsideTheRectangle_data();
    void drawsOnlyLinesStartingInsideTheRectangle();
};

void TestAttributedStringDrawing::measures_data()
{
    QTest::addColumn<QString>("string");
    QTest::addColumn<qreal>("wrapWidth");
    QTest::addColumn<bool>("wraps");
    QTest::addColumn<QString>("widestLine");
    QTest::addColumn<int>("lines");

    QTest::newRow("one line") << u"Hamburg"_s << 0.0 << false << u"Hamburg"_s << 1;
    QTest::newRow("own line breaks") << u"ab\nHamburg\rx"_s << 0.0 << false << u"Hamburg"_s << 3;
    QTest::newRow("wrapped at words") << u"Hamburg Hamburg Hamburg"_s << 200.0 << true << u"Hamburg"_s << 3;
    QTest::newRow("no wrapping ignores the width") << u"Hamburg Hamburg"_s << 20.0 << false << u"Hamburg Hamburg"_s << 1;
    QTest::newRow("NaN width wraps after every character") << u"abc"_s << qQNaN() << true << u"b"_s << 3;
}

void TestAttributedStringDrawing::measures()
{
    QFETCH(QString, string);
    QFETCH(qreal, wrapWidth);
    QFETCH(bool, wraps);
    QFETCH(QString, widestLine);
    QFETCH(int, lines);

    const QFontMetricsF metrics(bigFont());
    const ZARNAttributedTextLayout layout(text(string), wrapWidth, wraps);
    if (QTest::currentDataTag() == "NaN width wraps after every character"_L1)
        QCOMPARE_LE(layout.width(), metrics.horizontalAdvance(u"b"_s) + 0.5);
    else
        QCOMPARE_LE(qAbs(layout.width() - metrics.horizontalAdvance(widestLine)), 0.5);
    QCOMPARE(layout.height(), lines * lineHeight());
}

void TestAttributedStringDrawing::emptyTextIsOneLineOfItsFont()
{
    const ZARNAttributedTextLayout plain(QString(), bigFont(), Qt::black, Qt::AlignLeft);
    QCOMPARE(plain.width(), 0.0);
    QCOMPARE(plain.height(), lineHeight());
    // An empty attributed string has no runs and so no font but the application's.
    QCOMPARE(ZARNAttributedTextLayout(ZARNAttributedString(), 100).height(), lineHeight(QFont()));
}

void TestAttributedStringDrawing::alignsEachParagraph_data()
{
    QTest::addColumn<ZARNAttributedString>("string");
    QTest::addColumn<QList<Qt::Alignment>>("lineAlignments");

    QTest::newRow("left") << text(u"Wx"_s, Qt::AlignLeft) << QList<Qt::Alignment>{Qt::AlignLeft};
    QTest::newRow("no alignment is left") << ZARNAttributedString(u"Wx"_s, {{ZARNFontAttributeName, bigFont()}})
                                          << QList<Qt::Alignment>{Qt::AlignLeft};
    QTest::newRow("right") << text(u"Wx"_s, Qt::AlignRight) << QList<Qt::Alignment>{Qt::AlignRight};
    QTest::newRow("centred") << text(u"Wx"_s, Qt::AlignHCenter) << QList<Qt::Alignment>{Qt::AlignHCenter};
    QTest::newRow("alignment stored as int")
        << ZARNAttributedString(u"Wx"_s, {{ZARNFontAttributeName, bigFont()},
                                          {ZARNParagraphAlignmentAttributeName, int(Qt::AlignRight | Qt::AlignTop)}})
        << QList<Qt::Alignment>{Qt::AlignRight};
    ZARNAttributedString mixed = text(u"Wx\n"_s, Qt::AlignRight);
    mixed.append(text(u"Wx\n"_s, Qt::AlignHCenter));
    mixed.append(text(u"Wx"_s, Qt::AlignLeft));
    QTest::newRow("each paragraph its own") << mixed
                                            << QList<Qt::Alignment>{Qt::AlignRight, Qt::AlignHCenter, Qt::AlignLeft};
}

void TestAttributedStringDrawing::alignsEachParagraph()
{
    QFETCH(ZARNAttributedString, string);
    QFETCH(QList<Qt::Alignment>, lineAlignments);

    const QRectF rect(30, 10, 300, 180);
    const QImage image = render([&](QPainter &painter) { Brixel::drawAttributedString(painter, string, rect); });
    const QFontMetricsF metrics(bigFont());
    const qreal advance = metrics.horizontalAdvance(u"Wx"_s);
    for (int line = 0; line < lineAlignments.size(); ++line) {
        const QImage band = image.copy(0, int(rect.y() + line * lineHeight()), image.width(), int(lineHeight()));
        const QRect ink = brixeltest::pixelBounds(band, isInk);
        QVERIFY2(!ink.isNull(), qPrintable(u"line %1 drew nothing"_s.arg(line)));
        const Qt::Alignment alignment = lineAlignments.at(line);
        const qreal expectedLeft = rect.x()
            + (alignment == Qt::AlignRight ? rect.width() - advance
               : alignment == Qt::AlignHCenter ? (rect.width() - advance) / 2 : 0);
        // The glyphs' ink starts at most a few pixels of side bearing inside the advance.
        QCOMPARE_GE(ink.left(), int(expectedLeft) - 1);
        QCOMPARE_LE(ink.left(), int(expectedLeft) + 4);
        QCOMPARE_LE(ink.right(), int(std::ceil(expectedLeft + advance)) + 1);
    }
}

void TestAttributedStringDrawing::shadowLiesUnderTheGlyphs_data()
{
    QTest::addColumn<ZARNSize>("offset");
    QTest::addColumn<QPoint>("expectedShift");

    QTest::newRow("right and down (negative height)") << ZARNSize{3, -4} << QPoint(3, 4);
    QTest::newRow("left and up") << ZARNSize{-5, 2} << QPoint(-5, -2);
    QTest::newRow("one point down, two right") << ZARNSize{2, -1} << QPoint(2, 1);
}

void TestAttributedStringDrawing::shadowLiesUnderTheGlyphs()
{
    QFETCH(ZARNSize, offset);
    QFETCH(QPoint, expectedShift);

    const QRectF rect(40, 40, 300, 100);
    ZARNAttributedString plain = text(u"plain "_s);
    ZARNAttributedString shadowed = plain;
    shadowed.append(text(u"Shadow"_s));
    shadowed.addAttribute(ZARNShadowAttributeName, QVariant::fromValue(ZARNShadow{offset, 1.0f, QColor(Qt::red)}),
                          {plain.length(), 6});
    ZARNAttributedString unshadowed = plain;
    unshadowed.append(text(u"Shadow"_s));

    const QImage without = render([&](QPainter &painter) { Brixel::drawAttributedString(painter, unshadowed, rect); });
    const QImage with = render([&](QPainter &painter) { Brixel::drawAttributedString(painter, shadowed, rect); });

    // Only the second word casts a shadow; its far edges show past the glyphs by the offset.
    const qreal plainWidth = QFontMetricsF(bigFont()).horizontalAdvance(u"plain "_s);
    const int wordLeft = int(rect.x() + plainWidth);
    const QRect textInk =
        brixeltest::pixelBounds(without.copy(wordLeft, 0, without.width() - wordLeft, without.height()), isInk).translated(wordLeft, 0);
    const QRect shadowInk = brixeltest::pixelBounds(with, isRed);
    QVERIFY(!shadowInk.isNull());
    QCOMPARE_GE(shadowInk.left(), wordLeft - 6);
    if (expectedShift.x() >= 0)
        QCOMPARE_LE(qAbs(shadowInk.right() - (textInk.right() + expectedShift.x())), 1);
    else
        QCOMPARE_LE(qAbs(shadowInk.left() - (textInk.left() + expectedShift.x())), 1);
    if (expectedShift.y() >= 0)
        QCOMPARE_LE(qAbs(shadowInk.bottom() - (textInk.bottom() + expectedShift.y())), 1);
    else
        QCOMPARE_LE(qAbs(shadowInk.top() - (textInk.top() + expectedShift.y())), 1);

    // The glyphs are drawn over their shadow: every solid glyph pixel stays dark.
    for (int y = 0; y < without.height(); ++y) {
        for (int x = 0; x < without.width(); ++x) {
            if (qGray(without.pixel(x, y)) < 40)
                QVERIFY2(qGray(with.pixel(x, y)) < 40, qPrintable(u"(%1, %2) not dark"_s.arg(x).arg(y)));
        }
    }
}

void TestAttributedStringDrawing::drawsOnlyLinesStartingInsideTheRectangle_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("linesDrawn");

    const qreal spacing = lineHeight();
    QTest::newRow("room for all") << QRectF(10, 10, 300, 3 * spacing) << 3;
    QTest::newRow("third line starts at the bottom") << QRectF(10, 10, 300, 2 * spacing) << 2;
    QTest::newRow("third line starts just inside") << QRectF(10, 10, 300, 2 * spacing + 1) << 3;
    QTest::newRow("zero height") << QRectF(10, 10, 300, 0) << 0;
    QTest::newRow("NaN") << QRectF(10, qQNaN(), 300, 100) << 0;
    QTest::newRow("infinite width") << QRectF(10, 10, qInf(), 100) << 0;
}

void TestAttributedStringDrawing::drawsOnlyLinesStartingInsideTheRectangle()
{
    QFETCH(QRectF, rect);
    QFETCH(int, linesDrawn);

    const QImage image = render([&](QPainter &painter) {
        Brixel::drawAttributedString(painter, text(u"Ww\nWw\nWw"_s), rect, false);
    });
    const qreal spacing = lineHeight();
    for (int line = 0; line < 3; ++line) {
        const QImage band = image.copy(0, int(10 + line * spacing + 2), image.width(), int(spacing) - 4);
        QCOMPARE(!brixeltest::pixelBounds(band, isInk).isNull(), line < linesDrawn);
    }
}

QTEST_MAIN(TestAttributedStringDrawing)
#include "tst_attributedstringdrawing.moc"
