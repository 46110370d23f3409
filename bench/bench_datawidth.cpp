// SPDX-License-Identifier: LGPL-2.1-or-later
// Measuring a 100,000-row column of strings with dataWidth(), beside QTableView's own
// resizeColumnToContents() on the same model: once measuring every row (header precision -1,
// as dataWidth() does) and once at Qt's default precision of 1000 rows. Measured first with
// the view's QStyledItemDelegate, then with ZARNTextFieldCell, the cell the library's own
// tables and outlines use.
#include "BenchHarness.h"

#include <Brixel/ZARNNSTableColumnAdditions.h>
#include <Brixel/ZARNTextFieldCell.h>
#include "tables/TableColumnList_p.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QTableView>

#include <cstdio>

namespace {

// One column of strings of varying length, made on demand.
class StringsModel : public QAbstractTableModel
{
public:
    explicit StringsModel(int rows)
        : m_rows(rows)
    {
    }
    int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : m_rows; }
    int columnCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : 1; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return QStringLiteral("Item %1 %2").arg(index.row()).arg(QString(index.row() % 17, QLatin1Char('x')));
    }

private:
    int m_rows;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    constexpr int rows = 100000;
    StringsModel model(rows);
    QTableView view;
    view.setModel(&model);
    view.resize(400, 300);
    view.show();
    BrixelPrivate::TableColumnList columns(&view, view.horizontalHeader());
    ZARNTableColumn *column = columns.columnAt(0);

    const auto measure = [&](const char *cellName) {
        const double ours = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(Brixel::dataWidth(column)); }, 100, 3);
        view.horizontalHeader()->setResizeContentsPrecision(-1);
        const double qtAll = brixelbench::nanosecondsPerCall([&] { view.resizeColumnToContents(0); }, 100, 3);
        view.horizontalHeader()->setResizeContentsPrecision(1000);
        const double qtDefault = brixelbench::nanosecondsPerCall([&] { view.resizeColumnToContents(0); }, 100, 3);
        std::printf("100000 rows of strings, %s\n", cellName);
        brixelbench::report("dataWidth, all rows", ours, "resizeColumnToContents, precision -1", qtAll);
        brixelbench::report("dataWidth, all rows", ours, "resizeColumnToContents, precision 1000", qtDefault);
    };
    measure("the view's QStyledItemDelegate");
    ZARNTextFieldCell cell;
    column->setDataCell(&cell);
    measure("ZARNTextFieldCell");
    return 0;
}
