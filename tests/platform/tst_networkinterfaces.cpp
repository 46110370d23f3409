// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNetworkInterfaces.h>
#include "platform/RouteTable_p.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestNetworkInterfaces : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void defaultRoute_data();
    void defaultRoute();
    void machineBackEnd();
};

void TestNetworkInterfaces::defaultRoute_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QString>("interface");

    const QByteArray heading = "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";
    QTest::newRow("default route after a subnet route") << heading + "eth0\t000200C0\t00000000\t0001\t0\t0\t0\t00FFFFFF\t0\t0\t0\n"
                                                                     "eth0\t00000000\t010200C0\t0003\t0\t0\t0\t00000000\t0\t0\t0\n"
                                                        << u"eth0"_s;
    QTest::newRow("lowest metric wins, decimal not hexadecimal")
        << heading + "wlan0\t00000000\t0101A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n"
                     "eth1\t00000000\t010200C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n"
                     "tun0\t00000000\t00000000\t0003\t0\t0\t1A\t00000000\t0\t0\t0\n"
        << u"eth1"_s;
    QTest::newRow("route that is down") << heading + "eth0\t00000000\t010200C0\t0002\t0\t0\t0\t00000000\t0\t0\t0\n" << QString();
    QTest::newRow("zero destination with a mask") << heading + "eth0\t00000000\t0\t0001\t0\t0\t0\t000000FF\t0\t0\t0\n"
                                                  << QString();
    QTest::newRow("truncated line") << QByteArray("eth0\t00000000\t010200C0\t0003\n") << QString();
    QTest::newRow("empty") << QByteArray() << QString();
}

void TestNetworkInterfaces::defaultRoute()
{
    QFETCH(QByteArray, table);
    QFETCH(QString, interface);
    QCOMPARE(BrixelPrivate::defaultRouteInterfaceName(table), interface);
}

void TestNetworkInterfaces::machineBackEnd()
{
    const ZARNNetworkInterfaces &machine = ZARNNetworkInterfaces::system();
    const ZARNNetworkInterfaces::Listing listing = machine.interfaces();
    QCOMPARE(listing.error, 0u);
    QVERIFY(std::any_of(listing.interfaces.cbegin(), listing.interfaces.cend(),
                        [](const auto &interface) { return interface.loopback; }));
    const QString routed = machine.defaultRouteInterface();
    QVERIFY(routed.isEmpty() || std::any_of(listing.interfaces.cbegin(), listing.interfaces.cend(),
                                            [&](const auto &interface) { return interface.name == routed; }));
    QVERIFY(!machine.hostName().isEmpty());
}

QTEST_GUILESS_MAIN(TestNetworkInterfaces)
#include "tst_networkinterfaces.moc"
