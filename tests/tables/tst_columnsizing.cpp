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

// A cell whose size is the width stored in the item (times a scale), so measurements are known
// exactly.
class FixedWidthCell : public QStyledItemDelegate
{
public:
    explicit FixedWidthCell(int scale = 1)
        : m_scale(scale)
    {
    }
    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        return {index.data(WidthRole).toInt() * m_scale, 16};
    }

private:
    int m_scale;
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

/// Changes the measured column before it is measured; may give it the cell twice as wide.
using SetUp = std::function<void(ZARNTableColumn &, QAbstractItemDelegate &twiceAsWide)>;

} // namespace

class TestColumnSizing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void table_data()
    {
        QTest::addColumn<Rows>("rows");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("hiddenRow");
        QTest::addColumn<SetUp>("setUp");
        QTest::addColumn<float>("dataWidth");
        QTest::addColumn<int>("fitted"); // the section's width after sizeToFitData()

        const Rows rows{{100, 30}, {50, 70}};
        const SetUp none = [](ZARNTableColumn &, QAbstractItemDelegate &) {};
        QTest::newRow("widest cell 100") << rows << 0 << -1 << none << 114.0f << 114; // 100 x 1.1 = 110, + 4
        QTest::newRow("the column's own cells") << rows << 1 << -1 << none << 81.0f << 81; // 77, + 4
        QTest::newRow("minimum wider than the data")
            << rows << 0 << -1 << SetUp([](auto &column, auto &) { column.setMinWidth(200); }) << 224.0f << 224;
        QTest::newRow("held by the maximum")
            << rows << 0 << -1 << SetUp([](auto &column, auto &) { column.setMaxWidth(80); }) << 114.0f << 80;
        QTest::newRow("the column's own cell, twice as wide")
            << rows << 0 << -1 << SetUp([](auto &column, auto &twiceAsWide) { column.setDataCell(&twiceAsWide); })
            << 224.0f << 224;
        QTest::newRow("fraction truncated") << Rows{{101, 0}} << 0 << -1 << none << 115.0f << 115; // 111.1
        QTest::newRow("no rows: minimum with factor and margin") << Rows{} << 0 << -1 << none << 15.0f << 15;
        QTest::newRow("hidden row not measured") << rows << 0 << 0 << none << 59.0f << 59; // 55, + 4
    }

    void table()
    {
        QFETCH(Rows, rows);
        QFETCH(int, column);
        QFETCH(int, hiddenRow);
        QFETCH(SetUp, setUp);
        QFETCH(float, dataWidth);
        QFETCH(int, fitted);
        QStandardItemModel model(0, 2);
        appendRows(model, rows);
        QTableView view;
        view.setModel(&model);
        FixedWidthCell cell, twiceAsWide(2);
        view.setItemDelegate(&cell);
        view.horizontalHeader()->setMinimumSectionSize(1);
        if (hiddenRow >= 0)
            view.setRowHidden(hiddenRow, true);
        BrixelPrivate::TableColumnList list(&view, view.horizontalHeader());
        ZARNTableColumn *tableColumn = list.columnForModelColumn(column);
        setUp(*tableColumn, twiceAsWide);

        QCOMPARE(Brixel::dataWidth(tableColumn), dataWidth);
        Brixel::sizeToFitData(tableColumn);
        QCOMPARE(view.horizontalHeader()->sectionSize(column), fitted);
    }

    void outline_data()
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

    void outline()
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

    void withoutModelOrView()
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

    // Every cell is 100 wide, so a fitted column is 114 (100 x 1.1 + 4).
    void headerDoubleClick_data()
    {
        constexpr int fitted = 114;
        QTest::addColumn<QList<int>>("widths"); // section sizes before the click
        QTest::addColumn<int>("x"); // where to click
        QTest::addColumn<std::function<void(QTableView &, ZARNNSTableHeaderView &)>>("setUp");
        QTest::addColumn<QList<int>>("expected"); // section sizes after the click
        QTest::addColumn<int>("handleSignals"); // QHeaderView's sectionHandleDoubleClicked
        QTest::addColumn<int>("sectionSignals"); // QHeaderView's sectionDoubleClicked

        using SetUp = std::function<void(QTableView &, ZARNNSTableHeaderView &)>;
        const SetUp none = [](QTableView &, ZARNNSTableHeaderView &) {};
        const QList<int> even{60, 60, 60};
        QTest::newRow("trailing edge of the first") << even << 59 << none << QList<int>{fitted, 60, 60} << 0 << 0;
        QTest::newRow("leading edge of the second fits the first")
            << even << 61 << none << QList<int>{fitted, 60, 60} << 0 << 0;
        QTest::newRow("trailing edge of the last") << even << 178 << none << QList<int>{60, 60, fitted} << 0 << 0;
        QTest::newRow("8 points from a divider fits, beyond the grip")
            << even << 52 << none << QList<int>{fitted, 60, 60} << 0 << 0;
        QTest::newRow("12 points from a divider goes to the header") << even << 48 << none << even << 0 << 1;
        QTest::newRow("switched off goes to the header")
            << even << 59 << SetUp([](auto &, auto &header) { header.setResizeColumnsOnDoubleClick(false); })
            << QList<int>{-1, 60, 60} << 1 << 0;
        QTest::newRow("fixed section is not fitted")
            << even << 59 << SetUp([](auto &, auto &header) { header.setSectionResizeMode(0, QHeaderView::Fixed); })
            << even << 0 << 1;
        QTest::newRow("disabled view ignores it")
            << even << 59 << SetUp([](auto &view, auto &) { view.setEnabled(false); }) << even << 0 << 0;
        QTest::newRow("edge next to a hidden section")
            << even << 61 << SetUp([](auto &, auto &header) { header.hideSection(1); }) << QList<int>{fitted, 0, 60}
            << 0 << 0;
        // Dividers at 100 and 106: the nearer one wins, the left one on a tie.
        const QList<int> narrow{100, 6, 60};
        QTest::newRow("nearer right edge wins") << narrow << 105 << none << QList<int>{100, fitted, 60} << 0 << 0;
        QTest::newRow("tie goes to the left column") << narrow << 103 << none << QList<int>{fitted, 6, 60} << 0 << 0;
    }

    void headerDoubleClick()
    {
        QFETCH(QList<int>, widths);
        QFETCH(int, x);
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

        QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, header->height() / 2));
        for (int section = 0; section < expected.size(); ++section)
            if (expected.at(section) >= 0) // -1: whatever Qt's own resizing gave
                QCOMPARE(header->sectionSize(section), expected.at(section));
        QCOMPARE(handleSpy.size(), handleSignals);
        QCOMPARE(sectionSpy.size(), sectionSignals);
    }

    // Dragging a divider resizes the column to its left, as in Qt's own header.
    void headerDragResizes()
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
};

QTEST_MAIN(TestColumnSizing)
#include "tst_columnsizing.moc"
