// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/NSAttributedString_Category.h>
#include <Brixel/NSMutableAttributedString_Category.h>
#include <Brixel/ZARNAttributedString.h>

#include <QTest>

using namespace Qt::StringLiterals;

using Runs = QList<std::pair<ZARNRange, QVariantMap>>;

namespace {

const QVariantMap x1{{u"x"_s, 1}}, x2{{u"x"_s, 2}}, x9{{u"x"_s, 9}}, y{{u"y"_s, 0}};

ZARNAttributedString makeString(const QString &text, const Runs &runs)
{
    ZARNAttributedString string(text);
    for (const auto &[range, attributes] : runs)
        string.setAttributes(attributes, range);
    return string;
}

} // namespace

class TestAttributedStringAdditions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void firstAttribute()
    {
        QVERIFY(!Brixel::attribute(ZARNAttributedString(), u"x"_s).isValid());
        QCOMPARE(Brixel::attribute(makeString(u"abc"_s, {{{0, 1}, x1}, {{1, 2}, x2}}), u"x"_s), QVariant(1));
        QVERIFY(!Brixel::attribute(makeString(u"abc"_s, {{{1, 2}, x2}}), u"x"_s).isValid());
    }

    void replaceAttribute_data()
    {
        QTest::addColumn<ZARNAttributedString>("string");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<ZARNAttributedString>("expected");
        QTest::addColumn<bool>("throws");

        const QVariantMap x1y{{u"x"_s, 1}, {u"y"_s, 0}}, x2y{{u"x"_s, 2}, {u"y"_s, 0}}, x9y{{u"x"_s, 9}, {u"y"_s, 0}};

        QTest::newRow("every run, others kept")
            << makeString(u"abcdef"_s, {{{0, 2}, x1y}, {{2, 2}, y}, {{4, 2}, x2y}}) << QVariant(9)
            << makeString(u"abcdef"_s, {{{0, 6}, x9y}}) << false;
        QTest::newRow("unattributed gap stays bare")
            << makeString(u"abcdef"_s, {{{0, 2}, x1}, {{4, 2}, x2}}) << QVariant(9)
            << makeString(u"abcdef"_s, {{{0, 2}, x9}, {{4, 2}, x9}}) << false;
        QTest::newRow("added where it was missing")
            << makeString(u"abcd"_s, {{{0, 2}, y}, {{2, 2}, x2}}) << QVariant(1)
            << makeString(u"abcd"_s, {{{0, 2}, x1y}, {{2, 2}, x1}}) << false;
        // No attributes anywhere means no dictionary is touched, so an invalid value is no error.
        QTest::newRow("invalid value, no attributes")
            << makeString(u"abc"_s, {}) << QVariant() << makeString(u"abc"_s, {}) << false;
        QTest::newRow("invalid value throws, changing nothing")
            << makeString(u"abc"_s, {{{2, 1}, y}}) << QVariant() << makeString(u"abc"_s, {{{2, 1}, y}}) << true;
    }

    void replaceAttribute()
    {
        QFETCH(ZARNAttributedString, string);
        QFETCH(QVariant, value);
        QFETCH(ZARNAttributedString, expected);
        QFETCH(bool, throws);
        if (throws)
            QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Brixel::replaceAttribute(string, u"x"_s, value));
        else
            Brixel::replaceAttribute(string, u"x"_s, value);
        QCOMPARE(string, expected);
    }
};

QTEST_GUILESS_MAIN(TestAttributedStringAdditions)
#include "tst_attributedstringadditions.moc"
