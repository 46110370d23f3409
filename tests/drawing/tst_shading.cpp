// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNShading.h>

#include <QImage>
#include <QPainter>
#include <QTest>

class TestShading : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void interpolation_data()
    {
        QTest::addColumn<float>("start");
        QTest::addColumn<float>("end");
        QTest::addColumn<float>("t");
        QTest::addColumn<float>("expected");

        // start * (1 - t) + end * t, or the same in double, gives 0.660000026f here.
        QTest::newRow("single precision, start + (end - start) * t") << 0.3f << 0.9f << 0.6f << 0.659999967f;
        QTest::newRow("beyond the end is not clamped") << 0.25f << 0.75f << 2.0f << 1.25f;
    }

    void interpolation()
    {
        QFETCH(float, start);
        QFETCH(float, end);
        QFETCH(float, t);
        QFETCH(float, expected);
        ZARNShading shading;
        shading.setStartColorComponents({start, 1, 0, 0});
        shading.setEndColorComponents({end, 0, 0, 1});
        QImage scratch(1, 1, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&scratch);
        shading.drawShading(painter);   // sets the number of components

        float out[4] = {-1, -1, -1, -1};
        Brixel::ZARNShadingStandardShadingFunction(&shading, &t, out);
        QVERIFY2(out[0] == expected, qPrintable(QString::number(out[0], 'g', 9)));   // exactly, not fuzzily
        QCOMPARE(out[3], t);
        Brixel::ZARNShadingStandardShadingFunction(nullptr, &t, out);   // ignored, no crash
    }
};

QTEST_MAIN(TestShading)
#include "tst_shading.moc"
