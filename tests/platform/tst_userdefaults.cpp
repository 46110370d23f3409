// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNUserDefaults.h>

#include <QCoreApplication>
#include <QStandardPaths>
#include <QTest>

class TestUserDefaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void storedValueWinsOverRegisteredDefault()
    {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setOrganizationName(QStringLiteral("BrixelTests"));
        QCoreApplication::setApplicationName(QStringLiteral("tst_userdefaults"));
        const QString key = QStringLiteral("NSDecimalSeparator");
        ZARNUserDefaults::removeObjectForKey(key);

        ZARNUserDefaults::registerDefaults({{key, QStringLiteral(".")}});
        QCOMPARE(ZARNUserDefaults::stringForKey(key), QStringLiteral("."));
        ZARNUserDefaults::setObject(QStringLiteral(","), key);
        QCOMPARE(ZARNUserDefaults::stringForKey(key), QStringLiteral(","));
        ZARNUserDefaults::removeObjectForKey(key);
        QCOMPARE(ZARNUserDefaults::stringForKey(key), QStringLiteral("."));
        ZARNUserDefaults::setObject(42, key);
        QCOMPARE(ZARNUserDefaults::stringForKey(key), QString());   // stored, but not a string
        ZARNUserDefaults::removeObjectForKey(key);
    }
};

QTEST_GUILESS_MAIN(TestUserDefaults)
#include "tst_userdefaults.moc"
