// SPDX-License-Identifier: LGPL-2.1-or-later
// A ZARNOutlineView of 1,000,000 expanded rows (1,000 items of 999 children, 5 columns) beside
// QTreeView on the same model: the first show (setModel, expandAll, show and the first paint),
// one resize with the layout and paint it leads to, and a full repaint, at 1000 x 800.
#include "BenchHarness.h"
#include "BenchModels.h"
#include "BenchViews.h"

#include <Brixel/ZARNOutlineView.h>

#include <QApplication>
#include <QTreeView>

namespace {

using namespace brixelbench;

void expand(QTreeView &view)
{
    view.expandAll();
}

/// Shows \a view expanded at 1000 x 800 on \a model and waits until it has settled.
void show(QTreeView &view, QAbstractItemModel &model)
{
    PaintCounter counter(view.viewport());
    view.setModel(&model);
    view.expandAll();
    view.resize(1000, 800);
    for (int column = 0; column < model.columnCount(QModelIndex()); ++column)
        view.setColumnWidth(column, 190);
    view.show();
    processEventsUntilPainted(counter);
    processEventsFor(400); // a live resize settles
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    OpenView<ZARNOutlineView> outline;
    OpenView<QTreeView> plainTree;
    // Declared after the views so that it goes first: a model's end drops every persistent
    // index at once, where each view would otherwise remove its expanded items' one by one.
    TreeModel model(1000, 999, 5);

    report("ZARNOutlineView first show, 1M rows expanded", firstPaintNanoseconds<ZARNOutlineView>(model, expand, 3, 30000),
           "QTreeView first show, same", firstPaintNanoseconds<QTreeView>(model, expand, 3, 30000));

    show(outline, model);
    show(plainTree, model);
    const double ourResize = resizeNanoseconds(outline, 5, 15000);
    const double theirResize = resizeNanoseconds(plainTree, 5, 15000);
    report("ZARNOutlineView resize, 1M rows expanded", ourResize, "QTreeView resize, same", theirResize);

    const double ourRepaint = repaintNanoseconds(outline);
    const double theirRepaint = repaintNanoseconds(plainTree);
    report("ZARNOutlineView repaint 1000x800, 1M rows", ourRepaint, "QTreeView repaint, same", theirRepaint);
    return 0;
}
