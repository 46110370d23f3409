// SPDX-License-Identifier: LGPL-2.1-or-later
// A ZARNOutlineView of 1,000,000 expanded rows (1,000 items of 999 children, 5 columns) beside
// QTreeView on the same model: the first show (setModel, expandAll, show and the first paint),
// one resize with the layout and paint it leads to (and, apart, with all the work up to the
// end of the live resize), and a full repaint, at 1000 x 800.
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

/// Shows \a view expanded at 1000 x 800 on \a model, in its window, and waits until it has
/// settled.
void show(QTreeView &view, QAbstractItemModel &model, int settleMilliseconds)
{
    PaintCounter counter(view.viewport());
    view.setModel(&model);
    view.expandAll();
    view.resize(1000, 800);
    for (int column = 0; column < model.columnCount(QModelIndex()); ++column)
        view.setColumnWidth(column, 190);
    view.window()->resize(1200, 1000);
    view.window()->show();
    processEventsUntilPainted(counter);
    processEventsFor(settleMilliseconds);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    // The views resized are children of a larger window, so that they get their resize events
    // at once (see resizeNanoseconds()).
    QWidget outlineWindow;
    QWidget plainTreeWindow;
    OpenView<ZARNOutlineView> outline(&outlineWindow);
    OpenView<QTreeView> plainTree(&plainTreeWindow);
    // Declared after the views so that it goes first: a model's end drops every persistent
    // index at once, where each view would otherwise remove its expanded items' one by one.
    TreeModel model(1000, 999, 5);

    report("ZARNOutlineView first show, 1M rows expanded", firstPaintNanoseconds<ZARNOutlineView>(model, expand, 3, 30000),
           "QTreeView first show, same", firstPaintNanoseconds<QTreeView>(model, expand, 3, 30000));

    // A live resize ends LiveResizeSettleInterval after the last resize; wait past that.
    const int settle = ZARNTableView::LiveResizeSettleInterval + 250;
    show(outline, model, settle);
    show(plainTree, model, settle);
    const double ourResize = resizeNanoseconds(outline, settle, 5, 15000);
    const double theirResize = resizeNanoseconds(plainTree, settle, 5, 15000);
    report("ZARNOutlineView resize, 1M rows expanded", ourResize, "QTreeView resize, same", theirResize);
    const double ourWork = resizeWorkNanoseconds(outline, settle, 3);
    const double theirWork = resizeWorkNanoseconds(plainTree, settle, 3);
    report("ZARNOutlineView resize until settled, CPU", ourWork, "QTreeView resize until settled, CPU", theirWork);

    const double ourRepaint = repaintNanoseconds(outline);
    const double theirRepaint = repaintNanoseconds(plainTree);
    report("ZARNOutlineView repaint 1000x800, 1M rows", ourRepaint, "QTreeView repaint, same", theirRepaint);
    return 0;
}
