// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNAttributedString.h>

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

using Edit = std::function<void(ZARNAttributedString &)>;
Q_DECLARE_METATYPE(Run)
Q_DECLARE_METATYPE(Edit)

class TestAttributedString : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void edits_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QList<Run>>("expected");
        QTest::addColumn<QString>("error");   // the exception thrown, which must change nothing

        // All on the ten characters "0123456789", which start with bold() throughout.
        const QList<Run> unchanged{{{0, 10}, bold()}};
        const char *range = "out_of_range";
        const auto row = [](const char *name, const Edit &edit, const QList<Run> &expected, const char *error = "") {
            QTest::newRow(name) << edit << expected << QString::fromLatin1(error);
        };
        row("set in the middle splits in three", [](auto &s) { s.setAttributes(red(), {3, 4}); },
            {{{0, 3}, bold()}, {{3, 4}, red()}, {{7, 3}, bold()}});
        row("set equal to its neighbours merges", [](auto &s) {
            s.setAttributes(red(), {3, 4});
            s.setAttributes(bold(), {3, 4});
        }, unchanged);
        row("set covering several runs", [](auto &s) {
            s.setAttributes(red(), {1, 1});
            s.setAttributes({}, {5, 1});
            s.setAttributes(red(), {0, 8});
        }, {{{0, 8}, red()}, {{8, 2}, bold()}});
        row("empty range changes nothing", [](auto &s) {
            s.setAttributes(red(), {4, 0});
            s.setAttributes(red(), {10, 0});
        }, unchanged);
        row("add keeps the other attributes", [](auto &s) { s.addAttribute(u"color"_s, u"red"_s, {3, 4}); },
            {{{0, 3}, bold()}, {{3, 4}, boldRed()}, {{7, 3}, bold()}});
        row("add over several runs merges them", [](auto &s) {
            s.setAttributes(red(), {2, 2});
            s.addAttribute(u"weight"_s, 75, {0, 4});
            s.addAttribute(u"color"_s, u"red"_s, {4, 6});
        }, {{{0, 2}, bold()}, {{2, 8}, boldRed()}});

        row("index at the length", [](auto &s) { s.attributesAtIndex(10); }, unchanged, range);
        row("negative index", [](auto &s) { s.attribute(u"weight"_s, -1); }, unchanged, range);
        row("range past the end", [](auto &s) { s.setAttributes(red(), {8, 3}); }, unchanged, range);
        row("substring past the end", [](auto &s) { s.attributedSubstring({8, 3}); }, unchanged, range);
        row("negative length", [](auto &s) { s.addAttribute(u"x"_s, 1, {5, -1}); }, unchanged, range);
        row("length that overflows",
            [](auto &s) { s.addAttribute(u"x"_s, 1, {5, std::numeric_limits<qsizetype>::max()}); }, unchanged, range);
        row("invalid value", [](auto &s) { s.setAttributes({{u"x"_s, QVariant()}}, {0, 1}); }, unchanged,
            "invalid_argument");
    }

    void edits()
    {
        QFETCH(Edit, edit);
        QFETCH(QList<Run>, expected);
        QFETCH(QString, error);
        ZARNAttributedString string(u"0123456789"_s, bold());
        if (error.isEmpty())
            edit(string);
        else if (error == u"out_of_range")
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, edit(string));
        else
            QVERIFY_THROWS_EXCEPTION(std::invalid_argument, edit(string));
        QCOMPARE(runsOf(string), expected);
        QCOMPARE(string.string(), u"0123456789"_s);
    }

    void attributeEffectiveRange()
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
};

QTEST_GUILESS_MAIN(TestAttributedString)
#include "tst_attributedstring.moc"
