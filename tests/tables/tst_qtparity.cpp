// SPDX-License-Identifier: LGPL-2.1-or-later
// The table and outline views put in place of QTableView and QTreeView: what a delegate is
// asked to paint, header clicks, hidden columns and alternate rows behave as under Qt.
#include <Brixel/ZARNOutlineView.h>
#include <Brixel/ZARNTableView.h>
#include <Brixel/ZARNTableViewDelegate.h>

#include <BrixelTest.h>
#include "ViewKinds.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Records each paint call instead of drawing; a column's rows can be made 60 high.
class SpyDelegate : public QStyledItemDelegate
{
public:
    void paint(QPainter *, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const auto flag = [&](QStyle::StateFlag state) { return option.state.testFlag(state) ? 1 : 0; };
        painted.append(u"%1/%2:%3 pos%4 alt%5 sel%6 sib%7 kids%8 open%9"_s.arg(index.parent().row()).arg(index.row())
                           .arg(index.column()).arg(option.viewItemPosition)
                           .arg(option.features.testFlag(QStyleOptionViewItem::Alternate) ? 1 : 0)
                           .arg(flag(QStyle::State_Selected)).arg(flag(QStyle::State_Sibling))
                           .arg(flag(QStyle::State_Children)).arg(flag(QStyle::State_Open))
                       + u" en%1 hover%2 group%3"_s.arg(flag(QStyle::State_Enabled)).arg(flag(QStyle::State_MouseOver))
                           .arg(option.palette.currentColorGroup()));
        rects.append(option.rect);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        if (rowHeight)
            return {size.width(), rowHeight()};
        return index.column() == tallColumn ? QSize(size.width(), 60) : size;
    }
    /// The painted cells, sorted, forgetting them.
    QStringList take()
    {
        QStringList cells = std::exchange(painted, {});
        cells.sort();
        rects.clear();
        return cells;
    }
    mutable QStringList painted;
    mutable QList<QRect> rects;
    int tallColumn = -1;
    std::function<int()> rowHeight; ///< the height of every row, when set
};

class NoticeCounter : public ZARNTableViewDelegate
{
public:
    void tableViewWillDisplayCell(ZARNTableView *, QAbstractItemDelegate *, ZARNTableColumn *, int) override
    {
        ++notices;
    }
    int notices = 0;
};

/// \a rows × \a columns of "r,c", the first row's first cell with two children when \a tree.
void fill(QStandardItemModel &model, int rows, int columns, bool tree = false)
{
    for (int row = 0; row < rows; ++row) {
        QList<QStandardItem *> items;
        for (int column = 0; column < columns; ++column)
            items.append(new QStandardItem(u"%1,%2"_s.arg(row).arg(column)));
        model.appendRow(items);
    }
    for (int child = 0; tree && child < 2; ++child)
        model.item(0)->appendRow({new QStandardItem(u"child"_s), new QStandardItem(u"x"_s), new QStandardItem(u"y"_s)});
}

/// Moves the pointer over \a view's viewport at \a position, as the platform reports it.
void hover(QAbstractItemView &view, QPoint position)
{
    QHoverEvent event(QEvent::HoverMove, position, view.viewport()->mapToGlobal(position), position);
    QApplication::sendEvent(view.viewport(), &event);
}

/// Checks that \a painted holds each of \a cells.
void verifyPaintedAmong(const QStringList &painted, const QStringList &cells)
{
    for (const QString &cell : cells)
        QVERIFY2(painted.contains(cell), qPrintable(cell));
}

/// The cells \a view's viewport asks \a spy to paint in one full repaint.
QStringList paintedCells(QAbstractItemView &view, SpyDelegate &spy)
{
    spy.take();
    brixeltest::renderWidget(*view.viewport());
    return spy.take();
}

template<typename View>
void prepare(View &view, QStandardItemModel &model, SpyDelegate &spy, QSize size)
{
    view.setItemDelegate(&spy);
    view.setModel(&model);
    view.setAlternatingRowColors(true);
    viewkinds::showView(view, {size});
}

} // namespace

class TestQtParity : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    // The same cells, once each, with the same option flags: a 2 x 2 span paints its anchor only,
    // and of 200 columns only those in the viewport are painted.
    void tablePaintsWhatQTableViewPaints()
    {
        QStandardItemModel model;
        fill(model, 6, 200);
        SpyDelegate spy;
        QTableView qtView;
        ZARNTableView view;
        for (QTableView *table : {&qtView, static_cast<QTableView *>(&view)}) {
            prepare(*table, model, spy, {300, 200});
            table->setSpan(1, 1, 2, 2);
            table->selectionModel()->select(model.index(3, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
            hover(*table, table->visualRect(model.index(4, 1)).center());
        }
        model.item(5, 0)->setEnabled(false);
        const QStringList expected = paintedCells(qtView, spy);
        verifyPaintedAmong(expected, {u"-1/1:1 pos0 alt1 sel0 sib0 kids0 open0 en1 hover0 group0"_s,
                                      u"-1/4:1 pos0 alt0 sel0 sib0 kids0 open0 en1 hover1 group0"_s,
                                      u"-1/5:0 pos0 alt1 sel0 sib0 kids0 open0 en0 hover0 group1"_s});
        QVERIFY(!expected.join(u' ').contains(u"-1/2:2 "_s));
        QVERIFY(expected.size() < 60);
        QCOMPARE(paintedCells(view, spy), expected);

        view.horizontalScrollBar()->setValue(3);
        qtView.horizontalScrollBar()->setValue(3);
        QCOMPARE(paintedCells(view, spy), paintedCells(qtView, spy));

        // Right to left every column is drawn: at least the cells Qt draws.
        view.setLayoutDirection(Qt::RightToLeft);
        qtView.setLayoutDirection(Qt::RightToLeft);
        const QStringList rightToLeft = paintedCells(qtView, spy);
        QVERIFY(!rightToLeft.isEmpty());
        const QStringList ours = paintedCells(view, spy);
        QVERIFY(QSet(ours.cbegin(), ours.cend()).contains(QSet(rightToLeft.cbegin(), rightToLeft.cend())));
    }

    // Positions in the row, alternate rows, the branch states and a first-column-spanned row.
    void outlinePaintsWhatQTreeViewPaints()
    {
        QStandardItemModel model;
        fill(model, 4, 3, true);
        SpyDelegate spy;
        QTreeView qtView;
        ZARNOutlineView view;
        for (QTreeView *tree : {&qtView, static_cast<QTreeView *>(&view)}) {
            prepare(*tree, model, spy, {400, 300});
            tree->expandAll();
            tree->setFirstColumnSpanned(2, {}, true);
            tree->selectionModel()->select(model.index(1, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
            tree->setSelectionBehavior(QAbstractItemView::SelectRows);
            hover(*tree, tree->visualRect(model.index(3, 2)).center());
        }
        model.item(3, 1)->setEnabled(false);
        const QStringList expected = paintedCells(qtView, spy);
        verifyPaintedAmong(expected, {u"-1/2:0 pos4 alt0 sel0 sib1 kids0 open1 en1 hover0 group2"_s,
                                      u"-1/3:0 pos1 alt1 sel0 sib0 kids0 open1 en1 hover1 group2"_s,
                                      u"-1/3:1 pos2 alt1 sel0 sib0 kids0 open1 en0 hover1 group1"_s});
        QCOMPARE(paintedCells(view, spy), expected);

        // The spanned row's one cell reaches across the row.
        brixeltest::renderWidget(*view.viewport());
        const qsizetype spanned = spy.painted.indexOf(u"-1/2:0 pos4 alt0 sel0 sib1 kids0 open1 en1 hover0 group2"_s);
        QVERIFY(spanned >= 0);
        QCOMPARE(spy.rects[spanned].right(), view.header()->length() - 1);
    }

    // Drawing skips cells outside the viewport, but the delegate still hears of every column.
    void noticesReachEveryColumn()
    {
        QStandardItemModel model;
        fill(model, 3, 200);
        SpyDelegate spy;
        ZARNTableView view;
        prepare(view, model, spy, {300, 200});
        NoticeCounter counter;
        view.setDelegate(&counter);
        QVERIFY(paintedCells(view, spy).size() < 20);
        QCOMPARE(counter.notices, 3 * 200);
    }

    // As under QTableView, a click on a sortable table's header sorts by that column, and with
    // items selectable a press selects the column.
    void headerClickSortsAndSelects()
    {
        QTableView qtView;
        ZARNTableView view;
        for (QTableView *table : {&qtView, static_cast<QTableView *>(&view)}) {
            QStandardItemModel model;
            for (const QString &text : {u"b"_s, u"c"_s, u"a"_s})
                model.appendRow({new QStandardItem(text), new QStandardItem(text)});
            table->setModel(&model);
            table->setSelectionMode(QAbstractItemView::ExtendedSelection);
            table->setSelectionBehavior(QAbstractItemView::SelectItems);
            viewkinds::showView(*table, {300, 200});
            QHeaderView *header = table->horizontalHeader();
            const QPoint secondSection(header->sectionViewportPosition(1) + 10, header->height() / 2);
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, secondSection);
            QVERIFY(table->selectionModel()->isColumnSelected(1));

            table->setSortingEnabled(true);
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, secondSection, 500);
            QCOMPARE(header->sortIndicatorSection(), 1);
            QCOMPARE(model.item(0)->text(), header->sortIndicatorOrder() == Qt::AscendingOrder ? u"a"_s : u"c"_s);
            table->setModel(nullptr);
        }
    }

    // The outline's rows lose a hidden tall column's height and get it back when it is shown.
    void hidingATallColumnLaysRowsOut()
    {
        QStandardItemModel model;
        fill(model, 3, 3);
        model.setHorizontalHeaderLabels({u"Name"_s, u"Tall"_s, u"Kind"_s});
        SpyDelegate spy;
        spy.tallColumn = 1;
        ZARNOutlineView view;
        prepare(view, model, spy, {400, 300});
        QCOMPARE(view.visualRect(model.index(0, 0)).height(), 60);

        view.hideColumnWithIdentifier(u"Tall"_s);
        QVERIFY(view.visualRect(model.index(0, 0)).height() < 60);
        view.showColumnWithIdentifier(u"Tall"_s);
        QCOMPARE(view.visualRect(model.index(0, 0)).height(), 60);
    }

    // Rows as tall as their first column is wide stand for rows of wrapped text: they are laid
    // out again once a resize that changed a column's width settles, and only while words wrap.
    void wrappedRowsFollowWidthsOnceAResizeSettles()
    {
        QStandardItemModel model;
        fill(model, 3, 2);
        SpyDelegate spy;
        ZARNOutlineView view;
        spy.rowHeight = [&view] { return view.header()->sectionSize(0) / 4; };
        prepare(view, model, spy, {400, 300});
        view.setWordWrap(true);
        const auto rowHeight = [&] { return view.visualRect(model.index(0, 0)).height(); };
        const auto widenAndResize = [&] {
            QTRY_VERIFY(!view.inLiveResize());
            view.header()->resizeSection(0, view.header()->sectionSize(0) + 40);
            view.resize(view.size() + QSize(10, 0));
        };
        view.doItemsLayout();
        const int narrow = rowHeight();

        widenAndResize();
        QCOMPARE(rowHeight(), narrow);
        QTRY_COMPARE(rowHeight(), narrow + 10);

        view.setWordWrap(false);
        view.doItemsLayout(); // the layout Qt schedules for the new setting, done now
        widenAndResize();
        QTRY_VERIFY(!view.inLiveResize());
        QCOMPARE(rowHeight(), narrow + 10);
    }

    void alternateRowsAreFilled()
    {
        QStandardItemModel model;
        fill(model, 4, 2);
        SpyDelegate spy;
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::AlternateBase, Qt::green);
        ZARNTableView table;
        ZARNOutlineView outline;
        for (QAbstractItemView *view : std::initializer_list<QAbstractItemView *>{&table, &outline}) {
            view->setPalette(palette);
            view->setItemDelegate(&spy);
            view->setModel(&model);
            view->setAlternatingRowColors(true);
            view->resize(300, 200);
            const QImage image = brixeltest::renderWidget(*view->viewport());
            const int rowHeight = view->visualRect(model.index(0, 0)).height();
            QCOMPARE(brixeltest::colorAt(image, {250, rowHeight / 2}), QColor(Qt::white));
            QCOMPARE(brixeltest::colorAt(image, {250, rowHeight + rowHeight / 2}), QColor(Qt::green));
            QCOMPARE(brixeltest::colorAt(image, {250, 3 * rowHeight + rowHeight / 2}), QColor(Qt::green));
        }
    }
};

QTEST_MAIN(TestQtParity)
#include "tst_qtparity.moc"
