// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/NSAttributedString_Category.h>
#include "tables/CellHighlighting_p.h"
#include <Brixel/ZARNSystemVersion.h>
#include <Brixel/ZARNTableView.h>
#include <Brixel/ZARNTextFieldCell.h>

#include <BrixelTest.h>

#include <QFontMetricsF>
#include <QPainter>
#include <QStandardItemModel>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QFont font(int pixelSize, bool bold = false)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    return font;
}

QVariantMap attributes(const QFont &font, const QColor &color)
{
    return {{ZARNFontAttributeName, font}, {ZARNForegroundColorAttributeName, color}};
}

QVariant shadow()
{
    return QVariant::fromValue(ZARNTableView::standardShadow());
}

/// \a text as a selected row shows it: in \a font, white, over the standard shadow.
ZARNAttributedString highlighted(const QString &text, const QFont &font)
{
    QVariantMap highlight = attributes(font, Qt::white);
    highlight.insert(ZARNShadowAttributeName, shadow());
    return ZARNAttributedString(text, highlight);
}

QStyleOptionViewItem viewOption(const QRect &rect, bool selected = false)
{
    QStyleOptionViewItem option;
    option.rect = rect;
    option.font = font(16);
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    if (selected)
        option.state |= QStyle::State_Selected;
    option.palette.setColor(QPalette::Text, Qt::black);
    option.palette.setColor(QPalette::Base, Qt::white);
    return option;
}

/// Item data by role.
using Roles = QMap<int, QVariant>;

QStandardItem *item(const QString &text, const Roles &roles = {})
{
    auto *item = new QStandardItem(text);
    for (auto role = roles.cbegin(); role != roles.cend(); ++role)
        item->setData(role.value(), role.key());
    return item;
}

QImage paintCell(const ZARNTextFieldCell &cell, const QStyleOptionViewItem &option, const QModelIndex &index,
                 const QColor &background = Qt::darkBlue)
{
    QImage image = brixeltest::filledImage({120, 40}, background);
    QPainter painter(&image);
    cell.paint(&painter, option, index);
    return image;
}

QRect differingPixels(const QImage &image, const QColor &background)
{
    return brixeltest::pixelBounds(image,
                                   [&](const QColor &color) { return !brixeltest::colorsClose(color, background, 8); });
}

} // namespace

class TestTextFieldCell : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }
    void cleanup() { Brixel::ZARNSetSystemVersion(ZARNSystemVersionNewest); }

    void highlightedCellText_data()
    {
        QTest::addColumn<ZARNAttributedString>("text");
        QTest::addColumn<quint32>("systemVersion");
        QTest::addColumn<ZARNAttributedString>("expected");

        const QFont regular = font(13);
        const QFont bold = font(13, true);
        const QFont otherRegular = font(20);

        const ZARNAttributedString red(u"Name"_s, attributes(regular, Qt::red));
        QTest::newRow("older: white and shadowed, font kept")
            << red << quint32(0x103F) << highlighted(u"Name"_s, regular);
        QTest::newRow("0x1040: bold too") << red << quint32(0x1040) << highlighted(u"Name"_s, bold);

        // Characters without any attribute keep out of the white (only runs with attributes get it
        // in the older form); the newer form gives every character a font first.
        const ZARNAttributedString bare(u"ab"_s);
        QTest::newRow("older, bare text: shadow only")
            << bare << quint32(0x1039) << ZARNAttributedString(u"ab"_s, {{ZARNShadowAttributeName, shadow()}});
        QTest::newRow("newer, bare text: the cell's font in bold")
            << bare << quint32(0x1060) << highlighted(u"ab"_s, font(9, true));

        ZARNAttributedString twoFonts(u"ab"_s, attributes(regular, Qt::red));
        twoFonts.append(ZARNAttributedString(u"cd"_s, attributes(otherRegular, Qt::green)));
        QTest::newRow("newer: the first character's font, bold, everywhere")
            << twoFonts << quint32(0x1050) << highlighted(u"abcd"_s, bold);
        ZARNAttributedString twoFontsWhite = highlighted(u"ab"_s, regular);
        twoFontsWhite.append(highlighted(u"cd"_s, otherRegular));
        QTest::newRow("older: each run keeps its font") << twoFonts << quint32(0x1000) << twoFontsWhite;

        // Empty text returns before the system version is looked at.
        QTest::newRow("empty") << ZARNAttributedString() << quint32(0x1060) << ZARNAttributedString();
    }

    void highlightedCellText()
    {
        QFETCH(ZARNAttributedString, text);
        QFETCH(quint32, systemVersion);
        QFETCH(ZARNAttributedString, expected);
        QCOMPARE(BrixelPrivate::highlightedCellText(text, font(9), systemVersion), expected);
    }

    void resolvesFontColourAndAlignment_data()
    {
        QTest::addColumn<Roles>("roles");
        QTest::addColumn<QFont>("cellFont");
        QTest::addColumn<QColor>("cellColor");
        QTest::addColumn<QFont>("expectedFont");
        QTest::addColumn<QColor>("expectedColor");
        QTest::addColumn<int>("expectedAlignment");

        const QFont none;
        const QFont viewFont = viewOption({}).font;
        const Roles noRoles;
        const Roles modelRoles{{Qt::FontRole, font(30)}, {Qt::ForegroundRole, QBrush(Qt::green)},
                               {Qt::TextAlignmentRole, int(Qt::AlignRight | Qt::AlignTop)}};
        QTest::newRow("the view's")
            << noRoles << none << QColor() << viewFont << QColor(Qt::black) << int(Qt::AlignLeft);
        QTest::newRow("the cell's") << noRoles << font(11) << QColor(Qt::red) << font(11) << QColor(Qt::red)
                                    << int(Qt::AlignLeft);
        QTest::newRow("the model's over the cell's")
            << modelRoles << font(11) << QColor(Qt::red) << font(30) << QColor(Qt::green) << int(Qt::AlignRight);
        QTest::newRow("a colour as foreground") << Roles{{Qt::ForegroundRole, QColor(Qt::blue)}} << none << QColor()
                                                << viewFont << QColor(Qt::blue) << int(Qt::AlignLeft);
        QFont italic;
        italic.setItalic(true);
        QFont italicCellFont = font(11);
        italicCellFont.setItalic(true);
        QTest::newRow("a partial model font fills in from the cell's")
            << Roles{{Qt::FontRole, italic}} << font(11) << QColor() << italicCellFont << QColor(Qt::black)
            << int(Qt::AlignLeft);
    }

    void resolvesFontColourAndAlignment()
    {
        QFETCH(Roles, roles);
        QFETCH(QFont, cellFont);
        QFETCH(QColor, cellColor);
        QFETCH(QFont, expectedFont);
        QFETCH(QColor, expectedColor);
        QFETCH(int, expectedAlignment);

        QStandardItemModel model;
        model.appendRow(item(u"Text"_s, roles));
        ZARNTextFieldCell cell;
        if (cellFont != QFont())
            cell.setFont(cellFont);
        cell.setTextColor(cellColor);
        const ZARNAttributedString value = cell.attributedStringValue(viewOption({0, 0, 100, 20}), model.index(0, 0));
        QCOMPARE(value.string(), u"Text"_s);
        ZARNRange run;
        value.attributesAtIndex(0, &run);
        QCOMPARE(run, (ZARNRange{0, 4}));
        QCOMPARE(Brixel::attribute(value, ZARNFontAttributeName).value<QFont>(), expectedFont);
        QCOMPARE(Brixel::attribute(value, ZARNForegroundColorAttributeName).value<QColor>(), expectedColor);
        QCOMPARE(Brixel::attribute(value, ZARNParagraphAlignmentAttributeName).toInt(), expectedAlignment);
    }

    void placesText_data()
    {
        QTest::addColumn<int>("alignment");
        QTest::addColumn<int>("expectedLeft");
        QTest::addColumn<int>("expectedTop");

        const QRect rect(10, 5, 100, 30);
        const QFontMetricsF metrics(font(16));
        const qreal advance = metrics.horizontalAdvance(u"Wi"_s);
        const qreal lineHeight = std::ceil(metrics.ascent() + metrics.descent()) + metrics.leading();
        const int centredTop = rect.top() + int(std::floor((rect.height() - lineHeight) / 2));
        const int rightLeft = int(rect.left() + 2 + (rect.width() - 4 - advance));
        QTest::newRow("left, centred vertically") << int(Qt::AlignLeft) << rect.left() + 2 << centredTop;
        QTest::newRow("right") << int(Qt::AlignRight | Qt::AlignVCenter) << rightLeft << centredTop;
        QTest::newRow("centred") << int(Qt::AlignCenter) << int(rect.left() + 2 + (rect.width() - 4 - advance) / 2)
                                 << centredTop;
        QTest::newRow("top") << int(Qt::AlignLeft | Qt::AlignTop) << rect.left() + 2 << rect.top();
        QTest::newRow("bottom") << int(Qt::AlignLeft | Qt::AlignBottom) << rect.left() + 2
                                << int(rect.top() + rect.height() - lineHeight);
    }

    void placesText()
    {
        QFETCH(int, alignment);
        QFETCH(int, expectedLeft);
        QFETCH(int, expectedTop);

        QStandardItemModel model;
        model.appendRow(item(u"Wi"_s, {{Qt::TextAlignmentRole, alignment}}));
        ZARNTextFieldCell cell;
        const QImage image = paintCell(cell, viewOption({10, 5, 100, 30}), model.index(0, 0), Qt::white);
        const QRect ink = differingPixels(image, Qt::white);
        const QFontMetricsF metrics(font(16));
        const QRectF glyphs = metrics.tightBoundingRect(u"Wi"_s);
        // The ink starts at the glyphs' own bounds inside the line box.
        QCOMPARE_LE(qAbs(ink.left() - (expectedLeft + glyphs.left())), 1.5);
        QCOMPARE_LE(qAbs(ink.top() - (expectedTop + metrics.ascent() + glyphs.top())), 1.5);
    }

    // The cell keeps the texts it has shortened; what it draws must still follow the width, the
    // selection, its font and the model's text, as a cell that never painted before draws them.
    void shortenedTextFollowsChanges()
    {
        QStandardItemModel model;
        model.appendRow(item(u"Hamburg Altona"_s));
        ZARNTextFieldCell cell;
        const auto same = [&](int width, bool selected) {
            ZARNTextFieldCell fresh;
            if (cell.font() != QFont())
                fresh.setFont(cell.font());
            const QStyleOptionViewItem option = viewOption({0, 0, width, 30}, selected);
            return paintCell(cell, option, model.index(0, 0)) == paintCell(fresh, option, model.index(0, 0));
        };
        QVERIFY(same(70, false));
        QVERIFY(same(90, false));
        QVERIFY(same(70, false));
        QVERIFY(same(70, true));
        cell.setFont(font(10));
        QVERIFY(same(70, false));
        model.item(0)->setText(u"Hamburg Harburg"_s);
        QVERIFY(same(70, false));
    }

    void background_data()
    {
        QTest::addColumn<bool>("draws");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QColor>("expected");

        QTest::newRow("off") << false << QColor(Qt::yellow) << QColor(Qt::darkBlue);
        QTest::newRow("its colour") << true << QColor(Qt::yellow) << QColor(Qt::yellow);
        QTest::newRow("no colour: the palette's base") << true << QColor() << QColor(Qt::white);
    }

    void background()
    {
        QFETCH(bool, draws);
        QFETCH(QColor, color);
        QFETCH(QColor, expected);

        QStandardItemModel model;
        model.appendRow(item(u"x"_s));
        ZARNTextFieldCell cell;
        cell.setDrawsBackground(draws);
        cell.setBackgroundColor(color);
        const QImage image = paintCell(cell, viewOption({10, 10, 50, 20}, true), model.index(0, 0), Qt::darkBlue);
        QCOMPARE(image.pixelColor(10, 10), expected);
        QCOMPARE(image.pixelColor(59, 29), expected);
        QCOMPARE(image.pixelColor(60, 30), QColor(Qt::darkBlue));
    }

    void sizeHint_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Roles>("roles");
        QTest::addColumn<QSize>("expected");

        const QFontMetricsF metrics(font(16));
        const int height = int(std::ceil(metrics.ascent() + metrics.descent() + metrics.leading()));
        const auto width = [&](const QString &text, const QFont &font) {
            return int(std::ceil(QFontMetricsF(font).horizontalAdvance(text) + 4));
        };
        QTest::newRow("text and padding") << u"Hamburg"_s << Roles() << QSize(width(u"Hamburg"_s, font(16)), height);
        QTest::newRow("empty: the padding, one line high") << QString() << Roles() << QSize(4, height);
        const QFontMetricsF big(font(30));
        QTest::newRow("the model's font")
            << u"Hamburg"_s << Roles{{Qt::FontRole, font(30)}}
            << QSize(width(u"Hamburg"_s, font(30)), int(std::ceil(big.ascent() + big.descent() + big.leading())));
        QTest::newRow("the model's size hint") << u"Hamburg"_s << Roles{{Qt::SizeHintRole, QSize(7, 3)}} << QSize(7, 3);
    }

    void sizeHint()
    {
        QFETCH(QString, text);
        QFETCH(Roles, roles);
        QFETCH(QSize, expected);

        QStandardItemModel model;
        model.appendRow(item(text, roles));
        ZARNTextFieldCell cell;
        const QSize size = cell.sizeHint(viewOption({}), model.index(0, 0));
        QCOMPARE_LE(qAbs(size.width() - expected.width()), 1);
        QCOMPARE(size.height(), expected.height());
    }

    void copies()
    {
        ZARNTextFieldCell cell;
        cell.setFont(font(11));
        cell.setTextColor(Qt::red);
        cell.setBackgroundColor(Qt::yellow);
        cell.setDrawsBackground(true);
        QObject owner;
        ZARNTextFieldCell *copy = cell.copy(&owner);
        QCOMPARE(copy->parent(), &owner);
        QCOMPARE(copy->font(), font(11));
        QCOMPARE(copy->textColor(), QColor(Qt::red));
        QCOMPARE(copy->backgroundColor(), QColor(Qt::yellow));
        QVERIFY(copy->drawsBackground());
    }
};

QTEST_MAIN(TestTextFieldCell)
#include "tst_textfieldcell.moc"
