// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNetworkInterfaces.h>
#include "platform/RouteTable_p.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
// A table as /proc/net/route shows it: its heading, then these lines with tabs for their spaces.
QByteArray routeTable(const char *lines)
{
    return "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n"
        + QByteArray(lines).replace(' ', '\t');
}
} // namespace

class TestNetworkInterfaces : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void defaultRoute_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<QString>("interface");

        QTest::newRow("default route after a subnet route")
            << routeTable("eth0 000200C0 00000000 0001 0 0 0 00FFFFFF 0 0 0\n"
                          "eth0 00000000 010200C0 0003 0 0 0 00000000 0 0 0\n") << u"eth0"_s;
        QTest::newRow("lowest metric wins, decimal not hexadecimal")
            << routeTable("wlan0 00000000 0101A8C0 0003 0 0 600 00000000 0 0 0\n"
                          "eth1 00000000 010200C0 0003 0 0 100 00000000 0 0 0\n"
                          "tun0 00000000 00000000 0003 0 0 1A 00000000 0 0 0\n") << u"eth1"_s;
        QTest::newRow("route that is down")
            << routeTable("eth0 00000000 010200C0 0002 0 0 0 00000000 0 0 0\n") << QString();
        QTest::newRow("zero destination with a mask")
            << routeTable("eth0 00000000 0 0001 0 0 0 000000FF 0 0 0\n") << QString();
        QTest::newRow("truncated line") << QByteArray("eth0\t00000000\t010200C0\t0003\n") << QString();
        QTest::newRow("empty") << QByteArray() << QString();
    }

    void defaultRoute()
    {
        QFETCH(QByteArray, table);
        QFETCH(QString, interface);
        QCOMPARE(BrixelPrivate::defaultRouteInterfaceName(table), interface);
    }

    void machineBackEnd()
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
};

QTEST_GUILESS_MAIN(TestNetworkInterfaces)
#include "tst_networkinterfaces.moc"
