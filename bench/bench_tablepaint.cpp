// SPDX-License-Identifier: LGPL-2.1-or-later
// A full repaint of a 1000 x 800 table over 100,000 rows with every visible row selected,
// beside QTableView painting the same model, size and selection; and the same for an outline
// of 1,000 items of 99 children each (100,000 rows), expanded, beside QTreeView.
#include "BenchHarness.h"
#include "BenchModels.h"

#include <Brixel/ZARNOutlineView.h>
#include <Brixel/ZARNTableView.h>

#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QTableView>
#include <QTreeView>

namespace {

/// Shows \a view focused in the active window.
void activate(QWidget &view)
{
    view.show();
    view.activateWindow();
    view.setFocus();
    QElapsedTimer timer;
    timer.start();
    while (!view.isActiveWindow() && timer.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    if (!view.isActiveWindow())
        qFatal("the window did not become active");
}

/// The view at 1000 x 800, focused in the active window, every visible row selected.
void prepare(QTreeView &view, QAbstractItemModel &model)
{
    view.setModel(&model);
    view.resize(1000, 800);
    for (int column = 0; column < 5; ++column)
        view.setColumnWidth(column, 190);
    view.expandAll();
    activate(view);
    QItemSelection rows;
    for (QModelIndex item = view.indexAt({1, 1}); item.isValid() && view.visualRect(item).top() < 800;
         item = view.indexBelow(item))
        rows.select(item, item.siblingAtColumn(4));
    if (rows.isEmpty())
        qFatal("no rows to select");
    view.selectionModel()->select(rows, QItemSelectionModel::Select);
}

/// The view at 1000 x 800, focused in the active window, every visible row selected.
void prepare(QTableView &view, QAbstractItemModel &model)
{
    view.setModel(&model);
    view.resize(1000, 800);
    for (int column = 0; column < 5; ++column)
        view.setColumnWidth(column, 190);
    activate(view);
    const int last = view.rowAt(view.viewport()->height() - 1);
    view.selectionModel()->select(QItemSelection(model.index(0, 0), model.index(last < 0 ? model.rowCount() - 1 : last, 4)),
                                  QItemSelectionModel::Select);
}

double repaintNanoseconds(QAbstractItemView &view)
{
    activate(view);
    QImage image(view.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    return brixelbench::nanosecondsPerCall([&] { view.viewport()->render(&image); }, 200, 5);
}

/// Prepares both views on \a model, times a full repaint of each and reports them.
template<typename View, typename OurView>
void compare(const char *name, OurView &ours, const char *qtName, View &theirs, QAbstractItemModel &model)
{
    prepare(static_cast<View &>(ours), model);
    prepare(theirs, model);
    const double oursNs = repaintNanoseconds(ours);
    const double theirsNs = repaintNanoseconds(theirs);
    brixelbench::report(name, oursNs, qtName, theirsNs);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    brixelbench::TextTableModel model(100000, 5);

    ZARNTableView table;
    table.setHighlightStyle(ZARNTableView::HighlightStyle::Capsule);
    QTableView plainTable;
    compare("ZARNTableView repaint 1000x800, rows selected", table, "QTableView repaint, same", plainTable, model);

    ZARNOutlineView outline;
    outline.setHighlightStyle(ZARNTableView::HighlightStyle::Capsule);
    QTreeView plainTree;
    // Declared after the views so that it goes first: a model's end drops every persistent
    // index at once, where each tree view would otherwise remove its 1,000 expanded items'
    // indexes one by one.
    brixelbench::TreeModel tree(1000, 99, 5);
    compare("ZARNOutlineView repaint 1000x800, rows selected", outline, "QTreeView repaint, same", plainTree, tree);
    return 0;
}
