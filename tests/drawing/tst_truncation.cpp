// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNTextTruncation.h>
#include <Brixel/ZARNLabelTruncation.h>
#include <Brixel/ZARNAttributedTextLayout.h>
#include "drawing/TruncationSearch_p.h"

#include <BrixelTest.h>

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QRandomGenerator>
#include <QStandardItem>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QFont font(qreal pointSize, bool bold = false)
{
    QFont font(u"DejaVu Sans"_s, -1, bold ? QFont::Bold : QFont::Normal);
    font.setPointSizeF(pointSize);
    return font;
}

QVariantMap attributes(qreal pointSize, const QColor &colour = Qt::black, bool bold = false)
{
    return {{ZARNFontAttributeName, font(pointSize, bold)}, {ZARNForegroundColorAttributeName, colour}};
}

using BrixelPrivate::attributedStringWidth;

// The shortening rule taken literally: the dots replace the last character, then the
// character before the dots goes, one at a time, measuring after every step.
ZARNAttributedString stepByStep(const ZARNAttributedString &string, float width)
{
    const double limit = double(width) - 4.0;
    if (!(double(attributedStringWidth(string)) > limit))
        return string;
    ZARNAttributedString text = string.attributedSubstring({0, string.length() - 1});
    text.append(ZARNAttributedString(u"..."_s, string.attributesAtIndex(string.length() - 1)));
    while (double(attributedStringWidth(text)) > limit && text.length() >= 4) {
        ZARNAttributedString shorter = text.attributedSubstring({0, text.length() - 4});
        shorter.append(text.attributedSubstring({text.length() - 3, 3}));
        text = shorter;
    }
    return text;
}

// Words with kerning pairs, ligature candidates, combining marks and right-to-left text.
// The first nine are in Latin letters only.
const QString words[] = {u"AVATAR"_s, u"To"_s, u"Wo"_s, u"office"_s, u"flow"_s, u"Yes,"_s, u"LT"_s, u"naïve"_s,
                         u"1234"_s, u"e\u0301te\u0301"_s, u"שלום"_s, u"مرحبا"_s, u"..."_s, u"ij"_s};

ZARNAttributedString randomText(QRandomGenerator &random, int maxWords = 8)
{
    ZARNAttributedString text;
    const int wordCount = random.bounded(1, maxWords + 1);
    for (int word = 0; word < wordCount; ++word) {
        const QString piece = words[random.bounded(int(std::size(words)))] + (random.bounded(3) ? u" "_s : QString());
        const QColor colour = random.bounded(2) ? QColor(Qt::black) : QColor(Qt::red);
        text.append(ZARNAttributedString(piece, attributes(8 + random.bounded(10), colour, random.bounded(2))));
    }
    return text;
}

} // namespace

class TestTruncation : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    void sameAsShorteningOneCharacterAtATime()
    {
        QRandomGenerator random(20261121);
        for (int round = 0; round < 300; ++round) {
            const ZARNAttributedString text = randomText(random);
            const float width = float(random.bounded(5, 260)) + float(random.bounded(100)) / 100.0f;
            QCOMPARE(Brixel::TruncateAttributedString(text, width), stepByStep(text, width));
        }
        // Texts of hundreds of characters, which are judged by their starts before the whole is
        // measured, at widths that cut them early, late or not at all.
        for (int round = 0; round < 12; ++round) {
            const ZARNAttributedString text = randomText(random, 120);
            const float width = float(random.bounded(20, 3000));
            QCOMPARE(Brixel::TruncateAttributedString(text, width), stepByStep(text, width));
        }
    }

    // A cell's path: plain text in one font, searched from the layout of the whole text, and the
    // layout it hands back for drawing is the shortened text's.
    void plainTextSameAsShorteningOneCharacterAtATime()
    {
        QRandomGenerator random(20261125);
        for (int round = 0; round < 600; ++round) {
            // Every other text in Latin letters only, where the search also trusts the layout.
            const int wordChoices = round % 2 ? 9 : int(std::size(words));
            QString text;
            for (int word = random.bounded(1, 9); word > 0; --word)
                text += words[random.bounded(wordChoices)] + (random.bounded(3) ? u" "_s : QString());
            const QFont cellFont = font(8 + random.bounded(20), random.bounded(2));
            const float width = float(random.bounded(5, 260)) + float(random.bounded(100)) / 100.0f;
            const ZARNAttributedTextLayout whole(text, cellFont, Qt::black, Qt::AlignLeft);
            const qreal dotsWidth = ZARNAttributedTextLayout(u"..."_s, cellFont, Qt::black, Qt::AlignLeft).width();

            const BrixelPrivate::ShortenedText shortened =
                BrixelPrivate::shortenedPlainText(text, cellFont, Qt::black, Qt::AlignLeft, width, whole, dotsWidth);
            const ZARNAttributedString expected =
                stepByStep(ZARNAttributedString(text, {{ZARNFontAttributeName, cellFont}}), width);
            QCOMPARE(shortened.text, expected.string());
            if (shortened.layout)
                QCOMPARE(float(shortened.layout->width()), attributedStringWidth(expected));
        }
    }

    void limits()
    {
        const ZARNAttributedString text(u"Fits exactly"_s, attributes(12));
        const float exact = attributedStringWidth(text) + 4.0f;
        QCOMPARE(Brixel::TruncateAttributedString(text, exact), text);
        QVERIFY(Brixel::TruncateAttributedString(text, exact - 0.5f).string().endsWith(u"..."_s));
        // The dots are narrower than a large W, so they can take its place and keep the rest.
        const ZARNAttributedString wide(u"abW"_s, attributes(60));
        const ZARNAttributedString dotted(u"ab..."_s, attributes(60));
        QVERIFY(attributedStringWidth(dotted) < attributedStringWidth(wide));
        QCOMPARE(Brixel::TruncateAttributedString(wide, attributedStringWidth(dotted) + 4.0f), dotted);
        // Only the dots are left, even though they do not fit either.
        QCOMPARE(Brixel::TruncateAttributedString(text, 5).string(), u"..."_s);
        QCOMPARE(Brixel::TruncateStringWithAttributes(text.string(), attributes(12), -100), u"..."_s);
        QCOMPARE(Brixel::TruncateAttributedString(ZARNAttributedString(), 4.0f), ZARNAttributedString());
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, Brixel::TruncateAttributedString(ZARNAttributedString(), 3.9f));
        QVERIFY(Brixel::TruncateStringWithAttributes(QString(), {}, 100).isNull());
    }

    void cellsAreShortenedInPlace()
    {
        QLabel label(u"Quarterly report for the whole company"_s);
        label.setFont(font(11));
        const QString original = label.text();
        Brixel::TruncateStringInCell(&label, 1000);
        QCOMPARE(label.text(), original);

        Brixel::TruncateStringInCell(&label, 120);
        QVERIFY(label.text().endsWith(u"..."_s));
        QVERIFY(original.startsWith(label.text().chopped(3)));
        QVERIFY(QFontMetricsF(label.font()).horizontalAdvance(label.text()) <= 116.01);
        Brixel::TruncateStringInCell(static_cast<QLabel *>(nullptr), 10);   // does nothing

        QVERIFY_THROWS_EXCEPTION(std::out_of_range, Brixel::TruncateStringInCell(&label, 4.5f));
        QCOMPARE(label.text(), u"..."_s);   // too narrow even for the dots: shows them and throws

        // A model item is measured in its own font.
        QStandardItem small(u"Mississippi riverboat"_s);
        small.setFont(font(8));
        QStandardItem large(small.text());
        large.setFont(font(16));
        Brixel::TruncateStringInCell(&small, 80);
        Brixel::TruncateStringInCell(&large, 80);
        QVERIFY(small.text().size() > large.text().size());
        QVERIFY(large.text().endsWith(u"..."_s));
    }

    void heightForWidth()
    {
        const QFontMetricsF metrics(font(12));
        const ZARNAttributedString line(u"One line"_s, attributes(12));
        const float lineHeight = Brixel::ZARNAttributedStringHeightForWidth(line, 500);
        QVERIFY(qAbs(lineHeight - metrics.lineSpacing()) < 1);   // whole pixels per line
        QCOMPARE(Brixel::ZARNAttributedStringHeightForWidth(ZARNAttributedString(), 500), 0.0f);

        const ZARNAttributedString paragraph(u"Several words that wrap onto more than one line"_s, attributes(12));
        const float narrow = Brixel::ZARNAttributedStringHeightForWidth(paragraph, 80);
        QVERIFY(narrow >= 3 * lineHeight);
        QCOMPARE(std::fmod(narrow, lineHeight), 0.0f);
        QCOMPARE(Brixel::ZARNAttributedStringHeightForWidth(line, 500), lineHeight);   // nothing kept between calls

        // NaN wraps after every character; the height stops at the last line within 10000.
        const ZARNAttributedString tall(QString(2000, u'W'), attributes(12));
        const float capped = Brixel::ZARNAttributedStringHeightForWidth(tall, std::nanf(""));
        QVERIFY(capped <= 10000.0f && capped > 10000.0f - lineHeight);
    }
};

QTEST_MAIN(TestTruncation)
#include "tst_truncation.moc"
