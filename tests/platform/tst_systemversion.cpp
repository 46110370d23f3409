// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNSystemVersion.h>
#include "platform/SystemVersionCode_p.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

class TestSystemVersion : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void startupCode_data()
    {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("printed");

        QTest::newRow("unset") << QString() << QStringLiteral("1060");
        QTest::newRow("classic look") << QStringLiteral("0x1039") << QStringLiteral("1039");
        QTest::newRow("malformed falls back") << QStringLiteral("tiger") << QStringLiteral("1060");
    }

    // The variable is read once per process, so each case starts a fresh one.
    void startupCode()
    {
        QFETCH(QString, variable);
        QFETCH(QString, printed);

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("BRIXEL_SYSTEM_VERSION"));
        if (!variable.isNull())
            environment.insert(QStringLiteral("BRIXEL_SYSTEM_VERSION"), variable);
        QProcess probe;
        probe.setProcessEnvironment(environment);
        probe.start(QStringLiteral(PROBE_PATH), {});
        QVERIFY(probe.waitForFinished());
        QCOMPARE(QString::fromLatin1(probe.readAllStandardOutput()).trimmed(), printed);
    }

    void setterNotifiesOnlyChanges()
    {
        QSignalSpy spy(ZARNSystemVersionNotifier::instance(), &ZARNSystemVersionNotifier::systemVersionChanged);
        Brixel::ZARNSetSystemVersion(0x1039);
        Brixel::ZARNSetSystemVersion(0x1039);
        QCOMPARE(Brixel::ZARNSystemVersion(), 0x1039u);
        Brixel::ZARNSetSystemVersion(ZARNSystemVersionNewest);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0).at(0).value<quint32>(), 0x1039u);
    }
};

QTEST_GUILESS_MAIN(TestSystemVersion)
#include "tst_systemversion.moc"
