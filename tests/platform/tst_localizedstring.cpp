// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNLocalizedString.h>

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

namespace {
// Stands in for an application's own translation of the library's words.
class HoursTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (qstrcmp(context, Brixel::ZARNLocalizedStringContext) == 0 && qstrcmp(source, "hours") == 0)
            return QStringLiteral("Stunden");
        return {};
    }
    bool isEmpty() const override { return false; }
};
} // namespace

class TestLocalizedString : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void lookUp()
    {
        QCOMPARE(Brixel::ZARNLocalizedString(""), QString());
        QCOMPARE(Brixel::ZARNLocalizedString(nullptr), QString());
        QVERIFY(!Brixel::ZARNLoadTranslations(QLocale(QLocale::Zulu)));   // an unknown language loads nothing
        QCOMPARE(Brixel::ZARNLocalizedString("hours"), QStringLiteral("hours"));   // a missing entry gives its key

        HoursTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QCOMPARE(Brixel::ZARNLocalizedString("hours"), QStringLiteral("Stunden"));
        QCoreApplication::removeTranslator(&translator);
    }
};

QTEST_GUILESS_MAIN(TestLocalizedString)
#include "tst_localizedstring.moc"
