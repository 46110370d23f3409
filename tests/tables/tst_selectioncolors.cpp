// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSTableViewSelectionColorAdditions.h>
#include "tables/HighlightGradientCache_p.h"
#include "tables/SelectionColorRules_p.h"

#include <BrixelTest.h>

#include <QTest>

namespace {

const QColor highlight = QColor::fromRgbF(0.2f, 0.4f, 0.8f);

QColor rgb(float red, float green, float blue, float alpha = 1.0f)
{
    return QColor::fromRgbF(red, green, blue, alpha);
}

QColor grey(float value, float alpha = 1.0f)
{
    return QColor::fromRgbF(value, value, value, alpha);
}

QString describe(const QColor &colour)
{
    return colour.name(QColor::HexArgb);
}

} // namespace

class TestSelectionColors : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void colourRule_data()
    {
        QTest::addColumn<QColor>("systemHighlight");
        QTest::addColumn<bool>("focused");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QColor>("expected");
        QTest::addColumn<QColor>("outline");   // value times 0.8, opaque

        QTest::newRow("focused: the highlight colour")
            << highlight << true << true << highlight << rgb(0.16f, 0.32f, 0.64f);
        QTest::newRow("background: grey 0.7") << highlight << false << true << grey(0.7f) << grey(0.56f);
        QTest::newRow("invalid highlight: black") << QColor() << true << true << QColor(Qt::black) << QColor(Qt::black);
        // HSV (220, 0.75, 0.8) -> (220, 0.225, 0.8) = RGB (0.62, 0.68, 0.8) -> luminance 0.67574.
        QTest::newRow("disabled: desaturated, then its luminance")
            << highlight << true << false << grey(0.67574f) << grey(0.5406f);
        // (0, 1, 1) -> (0, 0.3, 1) = (1, 0.7, 0.7): luminance weights 0.299, 0.587, 0.114.
        QTest::newRow("disabled keeps alpha; outline opaque")
            << rgb(1, 0, 0, 0.5f) << true << false << grey(0.7897f, 0.5f) << grey(0.6318f);
    }

    void colourRule()
    {
        QFETCH(QColor, systemHighlight);
        QFETCH(bool, focused);
        QFETCH(bool, enabled);
        QFETCH(QColor, expected);
        QFETCH(QColor, outline);
        const QColor actual = BrixelPrivate::selectionColor(systemHighlight, focused, enabled);
        QVERIFY2(brixeltest::colorsClose(actual, expected, 1), qPrintable(describe(actual)));
        const QColor actualOutline = BrixelPrivate::selectionOutlineColor(actual);
        QVERIFY2(brixeltest::colorsClose(actualOutline, outline, 1), qPrintable(describe(actualOutline)));
    }

    void nullView()
    {
        QVERIFY(brixeltest::colorsClose(Brixel::selectionColor(nullptr), grey(0.7f), 1));
        QVERIFY(brixeltest::colorsClose(Brixel::selectionOutlineColor(nullptr), grey(0.56f), 1));
        QVERIFY(!Brixel::selectionShouldDrawGradient(nullptr));
    }

    void gradient_data()
    {
        QTest::addColumn<QColor>("systemHighlight");
        QTest::addColumn<QColor>("top");
        QTest::addColumn<QColor>("bottom");

        // HSV (220, 0.75, 0.8): top (220, 0.6, 0.95), bottom (220, 0.85, 0.7).
        QTest::newRow("lighter at the top, darker at the bottom")
            << highlight << rgb(0.38f, 0.57f, 0.95f) << rgb(0.105f, 0.3033f, 0.7f);
        // White cannot get lighter: saturation and brightness stay within 0..1.
        QTest::newRow("white: components kept within range") << QColor(Qt::white) << grey(1) << grey(0.9f);
        QTest::newRow("alpha carried through")
            << rgb(0.2f, 0.4f, 0.8f, 0.5f) << rgb(0.38f, 0.57f, 0.95f, 0.5f) << rgb(0.105f, 0.3033f, 0.7f, 0.5f);
        QTest::newRow("invalid colour: from black") << QColor() << grey(0.15f) << grey(0);
    }

    // The first and last pixel rows lie half a pixel inside the ends, 1/36 of the way along the
    // axis of an 18-pixel image, hence the tolerance.
    void gradient()
    {
        QFETCH(QColor, systemHighlight);
        QFETCH(QColor, top);
        QFETCH(QColor, bottom);
        BrixelPrivate::HighlightGradientCache cache;
        QCOMPARE(cache.image(qQNaN(), systemHighlight).height(), 1);
        const QImage image = cache.image(18, systemHighlight);
        for (int x : {0, 63}) {
            const QColor first = image.pixelColor(x, 0);
            const QColor last = image.pixelColor(x, 17);
            QVERIFY2(brixeltest::colorsClose(first, top, 4), qPrintable(first.name(QColor::HexArgb)));
            QVERIFY2(brixeltest::colorsClose(last, bottom, 4), qPrintable(last.name(QColor::HexArgb)));
        }
    }
};

QTEST_MAIN(TestSelectionColors)
#include "tst_selectioncolors.moc"
