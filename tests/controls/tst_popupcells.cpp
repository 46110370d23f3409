// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXComboBoxCell.h>
#include <Brixel/BXPopUpButtonCell.h>
#include <Brixel/ZARNAttributedString.h>
#include <Brixel/ZARNShadow.h>

#include "BrixelTest.h"

#include <QComboBox>
#include <QPainter>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QImage paintCell(const QStyledItemDelegate &cell, const QModelIndex &index, QSize size, bool selected = false)
{
    QImage image = brixeltest::filledImage(size, Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = QRect(QPoint(0, 0), size);
    option.state = QStyle::State_Enabled | (selected ? QStyle::State_Selected : QStyle::State_None);
    cell.paint(&painter, option, index);
    return image;
}

// The pixels where two renderings differ.
QRect differences(const QImage &a, const QImage &b)
{
    QRect bounds;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

} // namespace

class TestPopUpCells : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    void displayString_data()
    {
        QTest::addColumn<bool>("selected");
        QTest::addColumn<quint32>("version");
        QTest::addColumn<bool>("boldWithShadow");

        // Selected titles are white, and from 0x1040 bold with a shadow as well.
        QTest::newRow("unselected") << false << 0x1050u << false;
        QTest::newRow("selected, before 0x1040") << true << 0x103Fu << false;
        QTest::newRow("selected, from 0x1040") << true << 0x1040u << true;
    }

    void displayString()
    {
        QFETCH(bool, selected);
        QFETCH(quint32, version);
        QFETCH(bool, boldWithShadow);
        const ZARNAttributedString shown = BXPopUpButtonCell::displayStringForTitle(u"Normal"_s, selected, version);
        QCOMPARE(shown.string(), u"Normal"_s);
        const QFont font = shown.attribute(ZARNFontAttributeName, 5).value<QFont>();
        QCOMPARE(font.bold(), boldWithShadow);
        QCOMPARE(font.pointSizeF(), 11.0);
        QCOMPARE(shown.attribute(ZARNForegroundColorAttributeName, 5).value<QColor>(),
                 QColor(selected ? Qt::white : Qt::black));
        QCOMPARE(shown.attribute(ZARNShadowAttributeName, 5).isValid(), boldWithShadow);
    }

    void titleLeavesRoomForTheArrows()
    {
        QStandardItemModel model;
        model.appendRow({new QStandardItem(u"A title far too long for its cell"_s), new QStandardItem()});
        BXPopUpButtonCell cell;
        const QSize size(100, 20);
        const QImage withoutText = paintCell(cell, model.index(0, 1), size);
        const QRect text = differences(paintCell(cell, model.index(0, 0), size), withoutText);
        // The long title runs up to the last pixel before the arrows' 10, and no further, centred
        // on the cell's height.
        QVERIFY(!text.isNull());
        QVERIFY(qAbs(text.center().y() - 10) <= 2);
        QVERIFY(text.right() <= 100 - 10 - 1);
        QVERIFY(text.right() >= 100 - 10 - 4);

        // Without display text of its own the index shows the cell's string; an empty one shows
        // nothing.
        cell.setDisplayAttributedString(ZARNAttributedString(u"Stored"_s));
        QVERIFY(!differences(paintCell(cell, model.index(0, 1), size), withoutText).isNull());

        QImage stub(40, 20, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&stub);
        QCOMPARE(cell.drawTitle(painter, QRectF(0, 0, 40, 20)), QRectF(0, 0, 40, 20));
    }

    void knobInTheRightmostTenPixels()
    {
        QCOMPARE(BXComboBoxCell::knobRect(QRectF(0, 0, 100, 20), QSizeF(7, 10)), QRectF(92, 5, 7, 10));
        QCOMPARE(BXComboBoxCell::knobRect(QRectF(10, 0, 40, 16), QSizeF(8, 6)), QRectF(41, 5, 8, 6));

        QStandardItemModel model;
        model.appendRow(new QStandardItem());
        const BXComboBoxCell cell;
        const QImage image = paintCell(cell, model.index(0, 0), QSize(100, 20));
        const QRect knob = brixeltest::pixelBounds(image, [](const QColor &c) { return c.red() < 128; });
        QVERIFY(QRect(92, 5, 7, 10).contains(knob));
        QVERIFY(knob.width() >= 5 && knob.height() >= 8);
    }

    void editsThroughAComboBox()
    {
        QStandardItemModel model;
        model.appendRow(new QStandardItem(u"Normal"_s));
        BXPopUpButtonCell cell;
        cell.setItems({u"Low"_s, u"Normal"_s, u"High"_s});
        QWidget parent;
        const std::unique_ptr<QWidget> editor(cell.createEditor(&parent, {}, model.index(0, 0)));
        auto *comboBox = qobject_cast<QComboBox *>(editor.get());
        QVERIFY(comboBox);
        cell.setEditorData(comboBox, model.index(0, 0));
        QCOMPARE(comboBox->currentIndex(), 1);
        comboBox->setCurrentIndex(2);
        cell.setModelData(comboBox, &model, model.index(0, 0));
        QCOMPARE(model.index(0, 0).data().toString(), u"High"_s);
    }
};

QTEST_MAIN(TestPopUpCells)
#include "tst_popupcells.moc"
