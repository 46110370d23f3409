// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNAttributedString.h>

#include <QColor>
#include <QFont>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    ZARNRange range;
    QVariantMap attributes;
    friend bool operator==(const Run &, const Run &) = default;
};

// The runs as attributesAtIndex() reports them, walking from the start.
QList<Run> runsOf(const ZARNAttributedString &string)
{
    QList<Run> runs;
    for (qsizetype index = 0; index < string.length();) {
        Run run;
        run.attributes = string.attributesAtIndex(index, &run.range);
        runs.append(run);
        index = run.range.end();
    }
    return runs;
}

QVariantMap bold() { return {{u"weight"_s, 75}}; }
QVariantMap red() { return {{u"color"_s, u"red"_s}}; }
QVariantMap boldRed() { return {{u"weight"_s, 75}, {u"color"_s, u"red"_s}}; }

} // namespace

Q_DECLARE_METATYPE(Run)

class TestAttributedString : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void setAttributes_data();
    void setAttributes();
    void addAttribute();
    void attributeEffectiveRange();
    void substringAndAppend();
    void badInputChangesNothing_data();
    void badInputChangesNothing();
    void formatRanges();
};

void TestAttributedString::setAttributes_data()
{
    QTest::addColumn<QList<Run>>("changes");
    QTest::addColumn<QList<Run>>("expected");

    // All on the ten characters "0123456789", which start with bold() throughout.
    QTest::newRow("middle splits in three") << QList<Run>{{{3, 4}, red()}}
                                            << QList<Run>{{{0, 3}, bold()}, {{3, 4}, red()}, {{7, 3}, bold()}};
    QTest::newRow("equal to its neighbours merges")
        << QList<Run>{{{3, 4}, red()}, {{3, 4}, bold()}} << QList<Run>{{{0, 10}, bold()}};
    QTest::newRow("covering several runs") << QList<Run>{{{1, 1}, red()}, {{5, 1}, {}}, {{0, 8}, red()}}
                                           << QList<Run>{{{0, 8}, red()}, {{8, 2}, bold()}};
    QTest::newRow("empty range changes nothing") << QList<Run>{{{4, 0}, red()}, {{10, 0}, red()}}
                                                 << QList<Run>{{{0, 10}, bold()}};
}

void TestAttributedString::setAttributes()
{
    QFETCH(QList<Run>, changes);
    QFETCH(QList<Run>, expected);
    ZARNAttributedString string(u"0123456789"_s, bold());
    for (const Run &change : changes)
        string.setAttributes(change.attributes, change.range);
    QCOMPARE(runsOf(string), expected);
    QCOMPARE(string.string(), u"0123456789"_s);
}

void TestAttributedString::addAttribute()
{
    ZARNAttributedString string(u"0123456789"_s);
    string.setAttributes(bold(), {2, 4});
    string.addAttribute(u"color"_s, u"red"_s, {4, 4});
    QCOMPARE(runsOf(string), (QList<Run>{{{0, 2}, {}}, {{2, 2}, bold()}, {{4, 2}, boldRed()}, {{6, 2}, red()}, {{8, 2}, {}}}));
    string.addAttribute(u"weight"_s, 75, {0, 10});
    QCOMPARE(runsOf(string), (QList<Run>{{{0, 4}, bold()}, {{4, 4}, boldRed()}, {{8, 2}, bold()}}));
}

void TestAttributedString::attributeEffectiveRange()
{
    ZARNAttributedString string(u"0123456789"_s, bold());
    string.addAttribute(u"color"_s, u"red"_s, {3, 2});
    ZARNRange range;
    QCOMPARE(string.attribute(u"weight"_s, 4, &range), QVariant(75));
    QCOMPARE(range, (ZARNRange{0, 10})); // across three runs with the same weight
    QCOMPARE(string.attribute(u"color"_s, 4, &range), QVariant(u"red"_s));
    QCOMPARE(range, (ZARNRange{3, 2}));
    QVERIFY(!string.attribute(u"color"_s, 9, &range).isValid());
    QCOMPARE(range, (ZARNRange{5, 5}));
}

void TestAttributedString::substringAndAppend()
{
    ZARNAttributedString string(u"0123456789"_s);
    string.setAttributes(bold(), {2, 4});
    const ZARNAttributedString middle = string.attributedSubstring({3, 5});
    QCOMPARE(middle.string(), u"34567"_s);
    QCOMPARE(runsOf(middle), (QList<Run>{{{0, 3}, bold()}, {{3, 2}, {}}}));
    QVERIFY(string.attributedSubstring({10, 0}).isEmpty());
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, string.attributedSubstring({8, 3}));

    // Appending text with the same attributes as the end extends the last run.
    ZARNAttributedString joined = string.attributedSubstring({0, 4});
    joined.append(ZARNAttributedString(u"ab"_s, bold()));
    joined.append(ZARNAttributedString(u"c"_s, red()));
    QCOMPARE(joined.string(), u"0123abc"_s);
    QCOMPARE(runsOf(joined), (QList<Run>{{{0, 2}, {}}, {{2, 4}, bold()}, {{6, 1}, red()}}));
}

void TestAttributedString::badInputChangesNothing_data()
{
    QTest::addColumn<std::function<void(ZARNAttributedString &)>>("operation");
    QTest::addColumn<bool>("outOfRange");

    using Operation = std::function<void(ZARNAttributedString &)>;
    QTest::newRow("index at the length") << Operation([](auto &s) { s.attributesAtIndex(10); }) << true;
    QTest::newRow("negative index") << Operation([](auto &s) { s.attribute(u"weight"_s, -1); }) << true;
    QTest::newRow("range past the end") << Operation([](auto &s) { s.setAttributes(red(), {8, 3}); }) << true;
    QTest::newRow("negative length") << Operation([](auto &s) { s.addAttribute(u"x"_s, 1, {5, -1}); }) << true;
    QTest::newRow("length that overflows")
        << Operation([](auto &s) { s.addAttribute(u"x"_s, 1, {5, std::numeric_limits<qsizetype>::max()}); }) << true;
    QTest::newRow("invalid value")
        << Operation([](auto &s) { s.setAttributes({{u"x"_s, QVariant()}}, {0, 1}); }) << false;
}

void TestAttributedString::badInputChangesNothing()
{
    QFETCH(std::function<void(ZARNAttributedString &)>, operation);
    QFETCH(bool, outOfRange);
    ZARNAttributedString string(u"0123456789"_s, bold());
    const ZARNAttributedString before = string;
    if (outOfRange)
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, operation(string));
    else
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, operation(string));
    QCOMPARE(string, before);
}

void TestAttributedString::formatRanges()
{
    ZARNAttributedString string(u"Hello world"_s, {{ZARNFontAttributeName, QFont(u"DejaVu Sans"_s, 15)}});
    string.addAttribute(ZARNForegroundColorAttributeName, QColor(Qt::red), {6, 5});
    string.setAttributes({{ZARNParagraphAlignmentAttributeName, QVariant::fromValue(Qt::AlignCenter)}}, {5, 1});

    const QList<QTextLayout::FormatRange> formats = string.formatRanges();
    QCOMPARE(formats.size(), 2); // the run with neither font nor colour has no format
    QCOMPARE(std::pair(formats.at(0).start, formats.at(0).length), std::pair(0, 5));
    QCOMPARE(formats.at(0).format.font().pointSize(), 15);
    QCOMPARE(std::pair(formats.at(1).start, formats.at(1).length), std::pair(6, 5));
    QCOMPARE(formats.at(1).format.foreground().color(), QColor(Qt::red));
}

QTEST_GUILESS_MAIN(TestAttributedString)
#include "tst_attributedstring.moc"
