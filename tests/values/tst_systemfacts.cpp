// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNFileUtilities.h>
#include <Brixel/ZARNNetworkInterfaces.h>
#include <Brixel/ZARNSystemFacts.h>

#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTest>

#include <functional>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// Interfaces written as "name hex-bytes [loopback]", separated by commas.
class FakeInterfaces : public ZARNNetworkInterfaces
{
public:
    FakeInterfaces(const QString &interfaces, QString route, quint32 error = 0)
        : route(std::move(route))
    {
        listing.error = error;
        for (const QString &entry : interfaces.split(u',', Qt::SkipEmptyParts)) {
            const QStringList words = entry.split(u' ', Qt::SkipEmptyParts);
            listing.interfaces.append({words.value(0), QByteArray::fromHex(words.value(1).toLatin1()),
                                       words.value(2) == u"loopback"});
        }
    }
    Listing interfaces() const override { return listing; }
    QString defaultRouteInterface() const override { return route; }
    QString hostName() const override { return u"testhost"_s; }

private:
    Listing listing;
    QString route;
};

// What \a call writes on standard output.
QString standardOutputOf(const std::function<void()> &call)
{
    QTemporaryFile file;
    file.open();
    std::fflush(stdout);
    const int saved = dup(STDOUT_FILENO);
    dup2(file.handle(), STDOUT_FILENO);
    call();
    std::fflush(stdout);
    dup2(saved, STDOUT_FILENO);
    close(saved);
    file.seek(0);
    return QString::fromLatin1(file.readAll());
}

} // namespace

class TestSystemFacts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { ZARNNetworkInterfaces::setCurrent(nullptr); }

    void uniqueStringAndProcessID()
    {
        static const QRegularExpression form(u"^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"_s);
        const QString first = Brixel::ZARNUniqueString();
        QVERIFY2(form.match(first).hasMatch(), qPrintable(first));
        QVERIFY(Brixel::ZARNUniqueString() != first);
        QCOMPARE(Brixel::ZARNProcessIDString(), QString::number(getpid()));
    }

    void macAddress_data()
    {
        QTest::addColumn<QString>("interfaces");
        QTest::addColumn<QString>("route");
        QTest::addColumn<quint32>("error");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("printed");

        QTest::newRow("default-route interface wins") << u"eth0 0102030405FF, wlan0 A0B0C0D0E0F0"_s << u"wlan0"_s << 0u
                                                      << u"A0B0C0D0E0F0"_s << QString();
        QTest::newRow("routed interface without an address is passed over")
            << u"tun0, eth0 0102030405FF"_s << u"tun0"_s << 0u << u"12345FF"_s << QString();
        QTest::newRow("loopback, short and zero addresses passed over; six bytes of a longer one")
            << u"lo 00000000000A loopback, sit0 00000001, eth1 000000000000, ib0 1122334455667788"_s << QString() << 0u
            << u"112233445566"_s << QString();
        QTest::newRow("no usable address prints the parent line")
            << u"lo 000000000000 loopback, eth0 000000000000"_s << u"eth0"_s << 0u << u"testhost"_s
            << u"IORegistryEntryGetParentEntry returned 0x00000013\n"_s;
        QTest::newRow("loopback alone is silent") << u"lo 000000000000 loopback"_s << QString() << 0u << u"testhost"_s
                                                  << QString();
        QTest::newRow("unreadable list prints the error")
            << u"eth0 000A959D6816"_s << QString() << 0xE00002C7u << u"testhost"_s
            << u"IOServiceGetMatchingServices returned 0xe00002c7\n"_s;
    }

    void macAddress()
    {
        QFETCH(QString, interfaces);
        QFETCH(QString, route);
        QFETCH(quint32, error);
        QFETCH(QString, expected);
        QFETCH(QString, printed);

        ZARNNetworkInterfaces::setCurrent(std::make_unique<FakeInterfaces>(interfaces, route, error));
        QString address;
        QCOMPARE(standardOutputOf([&address] { address = Brixel::ZARNMACAddressString(); }), printed);
        QCOMPARE(address, expected);
    }

    void macAddressOfThisMachine()
    {
        static const QRegularExpression hex(u"^[0-9A-F]{6,12}$"_s);
        const QString address = Brixel::ZARNMACAddressString();
        QVERIFY2(hex.match(address).hasMatch() || address == ZARNNetworkInterfaces::system().hostName(),
                 qPrintable(address));
    }

    // The only test that takes file names, so the counter starts at 1 here.
    void tempNames()
    {
        ZARNNetworkInterfaces::setCurrent(std::make_unique<FakeInterfaces>(u"eth0 000A959D6816"_s, QString()));
        const QString prefix = u".Corvel-Temp-0A959D6816-"_s + QString::number(getpid());
        QCOMPARE(Brixel::ZARNTempFolderName(), prefix);
        QCOMPARE(Brixel::ZARNTempFileName(), prefix + u"-1"_s);
        QCOMPARE(Brixel::ZARNTempFileName(), prefix + u"-2"_s);
    }
};

QTEST_GUILESS_MAIN(TestSystemFacts)
#include "tst_systemfacts.moc"
