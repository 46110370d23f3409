// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNGeometry.h>

#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>

using Result = std::function<ZARNRect()>;
Q_DECLARE_METATYPE(Result)

namespace {
// Compares bit for bit, so -0 differs from 0; any NaN equals any NaN.
bool same(float a, float b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}
} // namespace

class TestGeometry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void results_data()
    {
        QTest::addColumn<Result>("result");
        QTest::addColumn<ZARNRect>("expected");

        const auto row = [](const char *name, const Result &result, ZARNRect expected) {
            QTest::newRow(name) << result << expected;
        };
        const auto centre = [](ZARNRect rect, ZARNRect on) {
            return Result([=] { return Brixel::ZARNRectCenterOnRect(rect, on); });
        };
        const auto scale = [](ZARNRect rect, ZARNRect to) {
            return Result([=] { return Brixel::ZARNScaleRectToRect(rect, to); });
        };
        const auto align = [](int alignment) {
            return Result([=] { return Brixel::ZARNAlignRectOnRect({100, 100, 10, 4}, {0, 0, 25, 20}, alignment); });
        };
        const float nan = std::numeric_limits<float>::quiet_NaN();

        row("centre: half-point origin kept", centre({5, 5, 10, 10}, {0, 0, 15, 15}), {2.5f, 2.5f, 10, 10});
        row("centre: larger than the target", centre({0, 0, 30, 10}, {10, 10, 10, 10}), {0, 10, 30, 10});
        // 1e7 - 1.5 in float is 9999998 (a tie, to even); taken in double, x would be 4999999.5.
        row("centre: difference taken in float", centre({0, 0, 1.5f, 1}, {0.1f, 0, 1e7f, 3}), {4999999, 1, 1.5f, 1});
        row("centre then snap: 2.5 goes to the even pixel", [] {
            const ZARNRect centred = Brixel::ZARNRectCenterOnRect({0, 0, 10, 10}, {0, 0, 15, 15});
            return ZARNRect(Brixel::ZARNIntegralPoint(centred.origin), {});
        }, {2, 2, 0, 0});
        row("scale: enlarges, keeps origin", scale({10, 20, 100, 50}, {0, 0, 300, 300}), {10, 20, 300, 150});
        row("scale: shrinks by height", scale({0, 0, 100, 200}, {50, 50, 100, 100}), {0, 0, 50, 100});
        row("scale: zero width loses to the finite ratio", scale({0, 0, 0, 50}, {0, 0, 100, 100}), {0, 0, 0, 100});
        row("scale: zero size gives NaN", scale({0, 0, 0, 0}, {0, 0, 100, 100}), {0, 0, nan, nan});
        row("normalized: halves to even", [] { return Brixel::ZARNNormalizedRect({0.5f, 1.5f, 2.5f, 3.5f}); },
            {0, 2, 2, 4});
        row("normalized: negative half keeps its sign",
            [] { return Brixel::ZARNNormalizedRect({-0.5f, -1.5f, 0.49f, 0.51f}); }, {-0.0f, -2, 0, 1});
        row("integral point: negative half keeps its sign",
            [] { return ZARNRect(Brixel::ZARNIntegralPoint({-0.5f, 1.5f}), {}); }, {-0.0f, 2, 0, 0});
        // A 10 x 4 rectangle at (100, 100) aligned on (0, 0, 25, 20): the top is y = 16.
        row("align: top left", align(0), {0, 16, 10, 4});
        row("align: top right", align(2), {15, 16, 10, 4});
        row("align: centre", align(4), {7.5f, 8, 10, 4});
        row("align: bottom right", align(8), {15, 0, 10, 4});
        row("align: unknown code", align(9), {100, 100, 10, 4});
        row("align: negative code", align(-1), {100, 100, 10, 4});
        row("from QRectF: narrowed to float", [] { return ZARNRect::fromQRectF({0.1, 2, 3, 4}); }, {0.1f, 2, 3, 4});
        row("flip: bottom strip becomes the top strip", [] { return ZARNRect(0, 0, 10, 5).flipped(100); },
            {0, 95, 10, 5});
        row("flip: a point has no height", [] { return ZARNRect(ZARNPoint{0, 5}.flipped(100), {}); }, {0, 95, 0, 0});
    }

    void results()
    {
        QFETCH(Result, result);
        QFETCH(ZARNRect, expected);
        const ZARNRect actual = result();
        const auto fields = [](ZARNRect rect) { return std::array{rect.x(), rect.y(), rect.width(), rect.height()}; };
        QVERIFY2(std::ranges::equal(fields(actual), fields(expected), same), qPrintable(QDebug::toString(actual)));
    }
};

QTEST_GUILESS_MAIN(TestGeometry)
#include "tst_geometry.moc"
