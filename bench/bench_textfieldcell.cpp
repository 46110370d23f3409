// SPDX-License-Identifier: LGPL-2.1-or-later
// Painting one table cell, as a 100,000-row table does for every visible row, beside
// QStyledItemDelegate painting the same cell: text that fits, text that must be shortened,
// and a selected row's restyled text.
#include "BenchHarness.h"

#include <Brixel/ZARNTextFieldCell.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

namespace {

template<typename Delegate>
double paintCost(const Delegate &delegate, QPainter &painter, const QStyleOptionViewItem &option,
                 const QStandardItemModel &model)
{
    int row = 0;
    return brixelbench::nanosecondsPerCall([&] {
        delegate.paint(&painter, option, model.index(row, 0));
        row = (row + 1) % model.rowCount();
    });
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);

    QStandardItemModel model;
    for (int row = 0; row < 1000; ++row)
        model.appendRow(new QStandardItem(QStringLiteral("Row %1: invoice_%2.pdf").arg(row).arg(row * 7919)));

    QImage canvas(400, 40, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    QStyleOptionViewItem option;
    option.font = font;
    option.state = QStyle::State_Enabled | QStyle::State_Active;

    const ZARNTextFieldCell cell;
    const QStyledItemDelegate qtDelegate;
    const struct
    {
        const char *name;
        int width;
        bool selected;
    } cases[] = {{"ZARNTextFieldCell::paint, text fits", 300, false},
                 {"ZARNTextFieldCell::paint, text shortened", 80, false},
                 {"ZARNTextFieldCell::paint, selected row", 300, true}};
    for (const auto &each : cases) {
        option.rect = QRect(0, 0, each.width, 18);
        option.state.setFlag(QStyle::State_Selected, each.selected);
        const double ours = paintCost(cell, painter, option, model);
        const double qt = paintCost(qtDelegate, painter, option, model);
        brixelbench::report(each.name, ours, "QStyledItemDelegate::paint", qt);
    }
    return 0;
}
