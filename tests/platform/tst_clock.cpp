// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNClock.h>

#include <QDateTime>
#include <QTest>

namespace {
class FixedClock : public ZARNClock
{
public:
    double now() const override { return 1715783420.5; }
};
} // namespace

class TestClock : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void systemClockFollowsTheMachine();
    void installedClockReplacesAndRestores();
};

void TestClock::systemClockFollowsTheMachine()
{
    const double machine = double(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
    QVERIFY(qAbs(ZARNClock::current().now() - machine) < 5.0);
}

void TestClock::installedClockReplacesAndRestores()
{
    ZARNClock::setCurrent(std::make_unique<FixedClock>());
    QCOMPARE(ZARNClock::current().now(), 1715783420.5);
    QVERIFY(ZARNClock::system().now() != 1715783420.5);
    ZARNClock::setCurrent(nullptr);
    QVERIFY(ZARNClock::current().now() > 1715783420.5);
}

QTEST_GUILESS_MAIN(TestClock)
#include "tst_clock.moc"
