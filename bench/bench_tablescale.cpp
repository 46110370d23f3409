// SPDX-License-Identifier: LGPL-2.1-or-later
// The first paint and a full repaint of a 1000 x 800 ZARNTableView over 1,000,000 rows of
// 1,000 columns and over 100,000 rows of 5 columns, beside QTableView on the same model.
// The views keep their default column widths and draw no selection: these figures are the
// cost of the rows and columns alone (bench_tablepaint measures selected rows).
#include "BenchHarness.h"
#include "BenchModels.h"
#include "BenchViews.h"

#include <Brixel/ZARNTableView.h>

#include <QApplication>
#include <QTableView>


namespace {

using namespace brixelbench;

/// Shows \a view at 1000 x 800 on \a model and waits for its first paint.
void show(QTableView &view, QAbstractItemModel &model)
{
    PaintCounter counter(view.viewport());
    view.setModel(&model);
    view.resize(1000, 800);
    view.show();
    processEventsUntilPainted(counter);
    processEventsFor(ZARNTableView::LiveResizeSettleInterval + 250); // a live resize settles
}

void measure(const char *size, int rows, int columns, int firstPaintRuns)
{
    TextTableModel model(rows, columns);
    const auto nothing = [](QTableView &) {};
    const QByteArray ours = QByteArray("ZARNTableView first paint, ") + size;
    const QByteArray theirs = QByteArray("QTableView first paint, same");
    const double ourFirst = firstPaintNanoseconds<ZARNTableView>(model, nothing, firstPaintRuns, 20000);
    const double theirFirst = firstPaintNanoseconds<QTableView>(model, nothing, firstPaintRuns, 20000);
    report(ours.constData(), ourFirst, theirs.constData(), theirFirst);

    ZARNTableView table;
    QTableView plainTable;
    show(table, model);
    show(plainTable, model);
    const QByteArray ourRepaint = QByteArray("ZARNTableView repaint 1000x800, ") + size;
    const double ourNs = repaintNanoseconds(table);
    const double theirNs = repaintNanoseconds(plainTable);
    report(ourRepaint.constData(), ourNs, "QTableView repaint, same", theirNs);
}

/// The first paint again with the columns 190 pixels wide, so that every text fits: the
/// share of the first paint above that is the shortening of texts the cells show first.
void measureFittingTexts(int rows, int columns)
{
    TextTableModel model(rows, columns);
    const auto wideColumns = [columns](QTableView &view) {
        for (int column = 0; column < columns; ++column)
            view.setColumnWidth(column, 190);
    };
    const double ourFirst = firstPaintNanoseconds<ZARNTableView>(model, wideColumns, 5, 20000);
    const double theirFirst = firstPaintNanoseconds<QTableView>(model, wideColumns, 5, 20000);
    report("ZARNTableView first paint, 100k x 5, texts fit", ourFirst, "QTableView first paint, same", theirFirst);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    measure("1M x 1000", 1000000, 1000, 3);
    measure("100k x 5", 100000, 5, 5);
    measureFittingTexts(100000, 5);
    return 0;
}
