// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tables/HighlightGradientCache_p.h"

#include <BrixelTest.h>

#include <QTest>

#include <climits>
#include <cmath>
#include <limits>

using BrixelPrivate::HighlightGradientCache;

namespace {

const QColor highlight = QColor::fromRgbF(0.2f, 0.4f, 0.8f);

QColor rgb(float red, float green, float blue, float alpha = 1.0f)
{
    return QColor::fromRgbF(red, green, blue, alpha);
}

} // namespace

class TestHighlightGradient : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void colours_data();
    void colours();
};

void TestHighlightGradient::colours_data()
{
    QTest::addColumn<QColor>("systemHighlight");
    QTest::addColumn<QColor>("top");
    QTest::addColumn<QColor>("bottom");

    // HSV (220, 0.75, 0.8): top (220, 0.6, 0.95), bottom (220, 0.85, 0.7).
    QTest::newRow("lighter at the top, darker at the bottom") << highlight << rgb(0.38f, 0.57f, 0.95f) << rgb(0.105f, 0.3033f, 0.7f);
    // White cannot get lighter: saturation and brightness stay within 0..1.
    QTest::newRow("white: components kept within range") << QColor(Qt::white) << rgb(1, 1, 1) << rgb(0.9f, 0.9f, 0.9f);
    QTest::newRow("alpha carried through") << rgb(0.2f, 0.4f, 0.8f, 0.5f) << rgb(0.38f, 0.57f, 0.95f, 0.5f) << rgb(0.105f, 0.3033f, 0.7f, 0.5f);
    QTest::newRow("invalid colour: from black") << QColor() << rgb(0.15f, 0.15f, 0.15f) << rgb(0, 0, 0);
}

// The first and last pixel rows lie half a pixel inside the ends, 1/36 of the way along the
// axis of an 18-pixel image, hence the tolerance.
void TestHighlightGradient::colours()
{
    QFETCH(QColor, systemHighlight);
    QFETCH(QColor, top);
    QFETCH(QColor, bottom);
    HighlightGradientCache cache;
    QCOMPARE(cache.image(qQNaN(), systemHighlight).height(), 1);
    const QImage image = cache.image(18, systemHighlight);
    for (int x : {0, 63}) {
        const QColor first = image.pixelColor(x, 0);
        const QColor last = image.pixelColor(x, 17);
        QVERIFY2(brixeltest::colorsClose(first, top, 4), qPrintable(first.name(QColor::HexArgb)));
        QVERIFY2(brixeltest::colorsClose(last, bottom, 4), qPrintable(last.name(QColor::HexArgb)));
    }
}

QTEST_MAIN(TestHighlightGradient)
#include "tst_highlightgradient.moc"
