// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSTableColumnAdditions.h>
#include "tables/TableColumnList_p.h"

#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

constexpr int WidthRole = Qt::UserRole;

// A cell whose size is the width stored in the item, so measurements are known exactly.
class FixedWidthCell : public QStyledItemDelegate
{
public:
    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        return {index.data(WidthRole).toInt(), 16};
    }
};

QStandardItem *item(int width)
{
    auto *item = new QStandardItem;
    item->setData(width, WidthRole);
    return item;
}

// Rows of a two-column model: the first column's width and the second column's.
using Rows = QList<QPair<int, int>>;

void appendRows(QStandardItemModel &model, const Rows &rows)
{
    for (const auto &[first, second] : rows)
        model.appendRow({item(first), item(second)});
}

} // namespace

class TestColumnSizing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void table_data();
    void table();
    void outline_data();
    void outline();
    void withoutModelOrView();
    void fitting_data();
    void fitting();
};

void TestColumnSizing::table_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<int>("column");
    QTest::addColumn<float>("minWidth");
    QTest::addColumn<int>("hiddenRow");
    QTest::addColumn<float>("expected");

    const Rows rows{{100, 30}, {50, 70}};
    QTest::newRow("widest cell 100") << rows << 0 << 10.0f << -1 << 114.0f; // 100 x 1.1 = 110, + 4
    QTest::newRow("the column's own cells") << rows << 1 << 10.0f << -1 << 81.0f; // 77, + 4
    QTest::newRow("minimum wider than the data") << rows << 0 << 200.0f << -1 << 224.0f;
    QTest::newRow("fraction truncated") << Rows{{101, 0}} << 0 << 10.0f << -1 << 115.0f; // 111.1
    QTest::newRow("no rows: minimum with factor and margin") << Rows{} << 0 << 10.0f << -1 << 15.0f;
    QTest::newRow("hidden row not measured") << rows << 0 << 10.0f << 0 << 59.0f; // 55, + 4
}

void TestColumnSizing::table()
{
    QFETCH(Rows, rows);
    QFETCH(int, column);
    QFETCH(float, minWidth);
    QFETCH(int, hiddenRow);
    QFETCH(float, expected);
    QStandardItemModel model(0, 2);
    appendRows(model, rows);
    QTableView view;
    view.setModel(&model);
    FixedWidthCell cell;
    view.setItemDelegate(&cell);
    if (hiddenRow >= 0)
        view.setRowHidden(hiddenRow, true);
    BrixelPrivate::TableColumnList list(&view, view.horizontalHeader());
    ZARNTableColumn *tableColumn = list.columnForModelColumn(column);
    tableColumn->setMinWidth(minWidth);

    QCOMPARE(Brixel::dataWidth(tableColumn), expected);
}

void TestColumnSizing::outline_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("treePosition");
    QTest::addColumn<bool>("expanded");
    QTest::addColumn<float>("expected");

    // A top-level row 100 wide holding a child 95 wide (depth 1) that holds a grandchild 70
    // wide (depth 2); indentation 20. Second column: 60, 50, 65.
    QTest::newRow("collapsed: top level only") << 0 << -1 << false << 130.0f; // 110 + 16 + 4
    QTest::newRow("expanded: child 95 + 20") << 0 << -1 << true << 146.0f; // 115 -> 126.5 + 16 + 4
    QTest::newRow("not the tree column") << 1 << -1 << true << 119.0f; // 65 + 40 = 105 -> 115.5, truncated, + 4
    QTest::newRow("tree column moved to column 1") << 1 << 1 << true << 135.0f; // 115.5 + 16 = 131.5
    QTest::newRow("column 0 then plain") << 0 << 1 << true << 130.0f;
}

void TestColumnSizing::outline()
{
    QFETCH(int, column);
    QFETCH(int, treePosition);
    QFETCH(bool, expanded);
    QFETCH(float, expected);
    QStandardItemModel model(0, 2);
    appendRows(model, {{100, 60}});
    QStandardItem *top = model.item(0, 0);
    top->appendRow({item(95), item(50)});
    top->child(0, 0)->appendRow({item(70), item(65)});
    QTreeView view;
    view.setModel(&model);
    view.setIndentation(20);
    view.setTreePosition(treePosition);
    FixedWidthCell cell;
    view.setItemDelegate(&cell);
    if (expanded)
        view.expandAll();
    BrixelPrivate::TableColumnList list(&view, view.header());

    QCOMPARE(Brixel::dataWidth(list.columnForModelColumn(column)), expected);
}

void TestColumnSizing::withoutModelOrView()
{
    QStandardItemModel model(0, 1);
    appendRows(model, {{300, 0}});
    auto view = std::make_unique<QTableView>();
    view->setModel(&model);
    BrixelPrivate::TableColumnList list(view.get(), view->horizontalHeader());
    ZARNTableColumn *column = list.columnAt(0);
    column->setMinWidth(33);

    view->setModel(nullptr);
    QCOMPARE(Brixel::dataWidth(column), 33.0f);
    view.reset();
    QCOMPARE(column->tableView(), nullptr);
    QCOMPARE(Brixel::dataWidth(column), 33.0f);
    QCOMPARE(Brixel::dataWidth(nullptr), 0.0f);
    Brixel::sizeToFitData(nullptr);
}

void TestColumnSizing::fitting_data()
{
    QTest::addColumn<float>("maxWidth");
    QTest::addColumn<bool>("ownCell");
    QTest::addColumn<int>("expected");

    QTest::newRow("fits the data") << 1.0e6f << false << 114;
    QTest::newRow("held by the maximum") << 80.0f << false << 80;
    QTest::newRow("the column's own cell") << 1.0e6f << true << 224;
}

void TestColumnSizing::fitting()
{
    QFETCH(float, maxWidth);
    QFETCH(bool, ownCell);
    QFETCH(int, expected);
    QStandardItemModel model(0, 2);
    appendRows(model, {{100, 0}});
    QTableView view;
    view.setModel(&model);
    FixedWidthCell cell;
    view.setItemDelegate(&cell);
    // A cell twice as wide for one column only.
    class DoubleWidthCell : public FixedWidthCell
    {
        QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
        {
            return FixedWidthCell::sizeHint(option, index) * 2;
        }
    } doubleCell;
    BrixelPrivate::TableColumnList list(&view, view.horizontalHeader());
    ZARNTableColumn *column = list.columnAt(0);
    column->setMaxWidth(maxWidth);
    if (ownCell)
        column->setDataCell(&doubleCell);

    Brixel::sizeToFitData(column);
    QCOMPARE(view.horizontalHeader()->sectionSize(0), expected);
}

QTEST_MAIN(TestColumnSizing)
#include "tst_columnsizing.moc"
