// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSTableColumnAdditions.h>
#include <Brixel/ZARNNSTableHeaderView.h>
#include "tables/TableColumnList_p.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include "ViewKinds.h"

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
    void headerDoubleClick_data();
    void headerDoubleClick();
    void headerDragResizes();
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

// Every cell is 100 wide, so a fitted column is 114 (100 x 1.1 + 4).
void TestColumnSizing::headerDoubleClick_data()
{
    constexpr int fitted = 114;
    QTest::addColumn<QList<int>>("widths"); // section sizes before the click
    QTest::addColumn<std::function<int(int grip)>>("x"); // where to click, given the grip margin
    QTest::addColumn<std::function<void(QTableView &, ZARNNSTableHeaderView &)>>("setUp");
    QTest::addColumn<QList<int>>("expected"); // section sizes after the click
    QTest::addColumn<int>("handleSignals"); // QHeaderView's sectionHandleDoubleClicked
    QTest::addColumn<int>("sectionSignals"); // QHeaderView's sectionDoubleClicked

    using X = std::function<int(int)>;
    using SetUp = std::function<void(QTableView &, ZARNNSTableHeaderView &)>;
    const SetUp none = [](QTableView &, ZARNNSTableHeaderView &) {};
    const QList<int> even{60, 60, 60};
    QTest::newRow("trailing edge of the first") << even << X([](int) { return 59; }) << none
                                                << QList<int>{fitted, 60, 60} << 0 << 0;
    QTest::newRow("leading edge of the second fits the first") << even << X([](int) { return 61; }) << none
                                                               << QList<int>{fitted, 60, 60} << 0 << 0;
    QTest::newRow("trailing edge of the last") << even << X([](int) { return 178; }) << none
                                               << QList<int>{60, 60, fitted} << 0 << 0;
    QTest::newRow("8 points from a divider fits, beyond the grip") << even << X([](int) { return 52; }) << none
                                                                  << QList<int>{fitted, 60, 60} << 0 << 0;
    QTest::newRow("12 points from a divider goes to the header") << even << X([](int) { return 48; }) << none
                                                                 << even << 0 << 1;
    QTest::newRow("switched off goes to the header")
        << even << X([](int) { return 59; })
        << SetUp([](auto &, auto &header) { header.setResizeColumnsOnDoubleClick(false); }) << QList<int>{-1, 60, 60}
        << 1 << 0;
    QTest::newRow("fixed section is not fitted")
        << even << X([](int) { return 59; })
        << SetUp([](auto &, auto &header) { header.setSectionResizeMode(0, QHeaderView::Fixed); }) << even << 0 << 1;
    QTest::newRow("disabled view ignores it")
        << even << X([](int) { return 59; }) << SetUp([](auto &view, auto &) { view.setEnabled(false); }) << even << 0
        << 0;
    QTest::newRow("edge next to a hidden section")
        << even << X([](int) { return 61; })
        << SetUp([](auto &, auto &header) { header.hideSection(1); }) << QList<int>{fitted, 0, 60} << 0 << 0;
    // Dividers at 100 and 106: the nearer one wins, the left one on a tie.
    const QList<int> narrow{100, 6, 60};
    QTest::newRow("nearer right edge wins") << narrow << X([](int) { return 105; }) << none
                                            << QList<int>{100, fitted, 60} << 0 << 0;
    QTest::newRow("tie goes to the left column") << narrow << X([](int) { return 103; }) << none
                                                 << QList<int>{fitted, 6, 60} << 0 << 0;
}

void TestColumnSizing::headerDoubleClick()
{
    QFETCH(QList<int>, widths);
    QFETCH(std::function<int(int)>, x);
    QFETCH(std::function<void(QTableView &, ZARNNSTableHeaderView &)>, setUp);
    QFETCH(QList<int>, expected);
    QFETCH(int, handleSignals);
    QFETCH(int, sectionSignals);
    QStandardItemModel model(2, 3);
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 3; ++column)
            model.setItem(row, column, item(100));
    QTableView view;
    view.setModel(&model);
    auto *header = new ZARNNSTableHeaderView(&view);
    view.setHorizontalHeader(header);
    header->setMinimumSectionSize(1);
    FixedWidthCell cell;
    view.setItemDelegate(&cell);
    for (int section = 0; section < widths.size(); ++section)
        header->resizeSection(section, widths.at(section));
    viewkinds::showView(view, {400, 200});
    setUp(view, *header);
    QSignalSpy handleSpy(header, &QHeaderView::sectionHandleDoubleClicked);
    QSignalSpy sectionSpy(header, &QHeaderView::sectionDoubleClicked);
    const int grip = header->style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, header);
    QVERIFY2(grip >= 3, "the clicks below lie within a grip margin of at least 3 pixels");

    QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, QPoint(x(grip), header->height() / 2));
    for (int section = 0; section < expected.size(); ++section)
        if (expected.at(section) >= 0) // -1: whatever Qt's own resizing gave
            QCOMPARE(header->sectionSize(section), expected.at(section));
    QCOMPARE(handleSpy.size(), handleSignals);
    QCOMPARE(sectionSpy.size(), sectionSignals);
}

// Dragging a divider resizes the column to its left, as in Qt's own header.
void TestColumnSizing::headerDragResizes()
{
    QStandardItemModel model(2, 3);
    QTableView view;
    view.setModel(&model);
    auto *header = new ZARNNSTableHeaderView(&view);
    view.setHorizontalHeader(header);
    header->resizeSection(0, 80);
    viewkinds::showView(view, {400, 200});
    const QPoint divider(header->sectionViewportPosition(1) - 1, header->height() / 2);
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, divider);
    QTest::mouseMove(header->viewport(), divider + QPoint(30, 0));
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, divider + QPoint(30, 0));
    QCOMPARE(header->sectionSize(0), 110);
}

QTEST_MAIN(TestColumnSizing)
#include "tst_columnsizing.moc"
