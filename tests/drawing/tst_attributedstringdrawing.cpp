// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNAttributedStringDrawing.h>

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

// The string drawn in the rectangle on a white 400 x 200 image.
QImage render(const ZARNAttributedString &string, const QRectF &rect, bool wraps = true)
{
    QImage image = brixeltest::filledImage({400, 200}, Qt::white);
    QPainter painter(&image);
    Brixel::drawAttributedString(painter, string, rect, wraps);
    return image;
}

bool isInk(const QColor &color)
{
    return color.red() < 160 && color.green() < 160 && color.blue() < 160;
}

} // namespace

class TestAttributedStringDrawing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    void emptyTextIsOneLineOfItsFont()
    {
        const ZARNAttributedTextLayout plain(QString(), bigFont(), Qt::black, Qt::AlignLeft);
        QCOMPARE(plain.width(), 0.0);
        QCOMPARE(plain.height(), lineHeight());
        // An empty attributed string has no runs and so no font but the application's.
        QCOMPARE(ZARNAttributedTextLayout(ZARNAttributedString(), 100).height(), lineHeight(QFont()));
    }

    void alignsEachParagraph_data()
    {
        QTest::addColumn<ZARNAttributedString>("string");
        QTest::addColumn<QList<Qt::Alignment>>("lineAlignments");

        using Alignments = QList<Qt::Alignment>;
        QTest::newRow("no alignment is left") << ZARNAttributedString(u"Wx"_s, {{ZARNFontAttributeName, bigFont()}})
                                              << Alignments{Qt::AlignLeft};
        const QVariantMap rightAsInt{{ZARNFontAttributeName, bigFont()},
                                     {ZARNParagraphAlignmentAttributeName, int(Qt::AlignRight | Qt::AlignTop)}};
        QTest::newRow("alignment stored as int")
            << ZARNAttributedString(u"Wx"_s, rightAsInt) << Alignments{Qt::AlignRight};
        ZARNAttributedString mixed = text(u"Wx\n"_s, Qt::AlignRight);
        mixed.append(text(u"Wx\n"_s, Qt::AlignHCenter));
        mixed.append(text(u"Wx"_s, Qt::AlignLeft));
        QTest::newRow("each paragraph its own") << mixed << Alignments{Qt::AlignRight, Qt::AlignHCenter, Qt::AlignLeft};
    }

    void alignsEachParagraph()
    {
        QFETCH(ZARNAttributedString, string);
        QFETCH(QList<Qt::Alignment>, lineAlignments);

        const QRectF rect(30, 10, 300, 180);
        const QImage image = render(string, rect);
        const QFontMetricsF metrics(bigFont());
        const qreal advance = metrics.horizontalAdvance(u"Wx"_s);
        // Each line's glyphs sit as high in their line as QPainter puts them on a baseline one ascent down.
        QImage reference = brixeltest::filledImage({200, int(lineHeight())}, Qt::white);
        QPainter painter(&reference);
        painter.setFont(bigFont());
        painter.drawText(QPointF(0, metrics.ascent()), u"Wx"_s);
        const int inkTop = brixeltest::pixelBounds(reference, isInk).top();
        for (int line = 0; line < lineAlignments.size(); ++line) {
            const QImage band = image.copy(0, int(rect.y() + line * lineHeight()), image.width(), int(lineHeight()));
            const QRect ink = brixeltest::pixelBounds(band, isInk);
            QVERIFY2(!ink.isNull(), qPrintable(u"line %1 drew nothing"_s.arg(line)));
            QCOMPARE(ink.top(), inkTop);
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

    void drawsOnlyLinesStartingInsideTheRectangle_data()
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

    void drawsOnlyLinesStartingInsideTheRectangle()
    {
        QFETCH(QRectF, rect);
        QFETCH(int, linesDrawn);

        const QImage image = render(text(u"Ww\nWw\nWw"_s), rect, false);
        const qreal spacing = lineHeight();
        for (int line = 0; line < 3; ++line) {
            const QImage band = image.copy(0, int(10 + line * spacing + 2), image.width(), int(spacing) - 4);
            QCOMPARE(!brixeltest::pixelBounds(band, isInk).isNull(), line < linesDrawn);
        }
    }
};

QTEST_MAIN(TestAttributedStringDrawing)
#include "tst_attributedstringdrawing.moc"
