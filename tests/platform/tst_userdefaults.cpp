// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNUserDefaults.h>

#include <QCoreApplication>
#include <QStandardPaths>
#include <QTest>

class TestUserDefaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void storedValueWinsOverRegisteredDefault();
    void stringForKeyIgnoresOtherTypes();

private:
    const QString key = QStringLiteral("NSDecimalSeparator");
};

void TestUserDefaults::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("BrixelTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_userdefaults"));
    ZARNUserDefaults::removeObjectForKey(key);
}

void TestUserDefaults::storedValueWinsOverRegisteredDefault()
{
    QVERIFY(!ZARNUserDefaults::objectForKey(key).isValid());
    ZARNUserDefaults::registerDefaults({{key, QStringLiteral(".")}});
    QCOMPARE(ZARNUserDefaults::stringForKey(key), QStringLiteral("."));
    ZARNUserDefaults::setObject(QStringLiteral(","), key);
    QCOMPARE(ZARNUserDefaults::stringForKey(key), QStringLiteral(","));
    ZARNUserDefaults::removeObjectForKey(key);
    QCOMPARE(ZARNUserDefaults::stringForKey(key), QStringLiteral("."));
}

void TestUserDefaults::stringForKeyIgnoresOtherTypes()
{
    const QString numberKey = QStringLiteral("BrixelTestNumber");
    ZARNUserDefaults::setObject(42, numberKey);
    QCOMPARE(ZARNUserDefaults::objectForKey(numberKey).toInt(), 42);
    QCOMPARE(ZARNUserDefaults::stringForKey(numberKey), QString());
    ZARNUserDefaults::removeObjectForKey(numberKey);
}

QTEST_GUILESS_MAIN(TestUserDefaults)
#include "tst_userdefaults.moc"
