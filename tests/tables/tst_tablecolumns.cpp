// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tables/TableColumnList_p.h"

#include "BrixelTest.h"

#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>
#include <QTreeView>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QAbstractItemView> makeView(const QString &kind)
{
    if (kind == u"tree")
        return std::make_unique<QTreeView>();
    return std::make_unique<QTableView>();
}

QHeaderView *headerOf(QAbstractItemView &view)
{
    if (auto *tree = qobject_cast<QTreeView *>(&view))
        return tree->header();
    return static_cast<QTableView &>(view).horizontalHeader();
}

// A model with one row and one column per title.
std::unique_ptr<QStandardItemModel> makeModel(const QStringList &titles)
{
    auto model = std::make_unique<QStandardItemModel>(1, int(titles.size()));
    model->setHorizontalHeaderLabels(titles);
    return model;
}

// Every column object answers for its own model column, and the hidden list holds exactly
// live, hidden columns.
void verifyConsistent(const BrixelPrivate::TableColumnList &list, const QHeaderView &header)
{
    QCOMPARE(list.columnForModelColumn(header.count()), nullptr);
    QCOMPARE(list.columnIndex(nullptr), -1);
    for (int logical = 0; logical < header.count(); ++logical) {
        const ZARNTableColumn *column = list.columnForModelColumn(logical);
        QVERIFY(column);
        QCOMPARE(column->modelColumn(), logical);
    }
    for (const ZARNTableColumn *column : list.hiddenTableColumns()) {
        QCOMPARE(list.columnForModelColumn(column->modelColumn()), column);
        QVERIFY(column->isHidden());
    }
    const QList<ZARNTableColumn *> shown = list.tableColumns();
    QCOMPARE(list.numberOfColumns(), shown.size());
    for (int index = 0; index < shown.size(); ++index)
        QCOMPARE(list.columnIndex(shown.at(index)), index);
}

// A one-row model of titled columns that can move its columns.
class TitlesModel : public QAbstractTableModel
{
public:
    explicit TitlesModel(const QStringList &titles)
        : m_titles(titles)
    {
    }
    int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : 1; }
    int columnCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : int(m_titles.size()); }
    QVariant data(const QModelIndex &, int) const override { return {}; }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        const bool title = orientation == Qt::Horizontal && role == Qt::DisplayRole;
        return title ? QVariant(m_titles.value(section)) : QVariant();
    }
    bool moveColumns(const QModelIndex &parent, int first, int count, const QModelIndex &, int destination) override
    {
        if (!beginMoveColumns(parent, first, first + count - 1, parent, destination))
            return false;
        const QStringList moved = m_titles.mid(first, count);
        m_titles.remove(first, count);
        const int target = destination > first ? destination - count : destination;
        m_titles = m_titles.mid(0, target) + moved + m_titles.mid(target);
        endMoveColumns();
        return true;
    }

private:
    QStringList m_titles;
};

} // namespace

class TestTableColumns : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sortIndicator_data()
    {
        QTest::addColumn<int>("sortedColumn");
        QTest::addColumn<int>("hiddenColumn");
        QTest::addColumn<int>("indicatorAfterHiding");

        QTest::newRow("on the hidden column") << 1 << 1 << -1;
        QTest::newRow("on another column") << 2 << 1 << 2;
    }

    void sortIndicator()
    {
        QFETCH(int, sortedColumn);
        QFETCH(int, hiddenColumn);
        QFETCH(int, indicatorAfterHiding);
        QStandardItemModel model(3, 3);
        model.setHorizontalHeaderLabels({u"A"_s, u"B"_s, u"C"_s});
        const QStringList values{u"b"_s, u"c"_s, u"a"_s};
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 3; ++column)
                model.setItem(row, column, new QStandardItem(values.at((row + column) % 3)));
        QTableView view;
        view.setModel(&model);
        view.setSortingEnabled(true);
        view.sortByColumn(sortedColumn, Qt::DescendingOrder);
        BrixelPrivate::TableColumnList list(&view, view.horizontalHeader());
        const QString firstBefore = model.index(0, 0).data().toString();

        list.hideColumn(hiddenColumn);
        QCOMPARE(view.horizontalHeader()->sortIndicatorSection(), indicatorAfterHiding);
        QCOMPARE(model.index(0, 0).data().toString(), firstBefore); // the rows are not re-sorted
        list.showColumnWithIdentifier(model.headerData(hiddenColumn, Qt::Horizontal).toString());
        QCOMPARE(view.horizontalHeader()->sortIndicatorSection(), indicatorAfterHiding);
    }

    void followsModel_data()
    {
        QTest::addColumn<std::function<void(QStandardItemModel &)>>("change");
        QTest::addColumn<QString>("identifiers"); // by model column after the change
        QTest::addColumn<QString>("hidden");

        // Columns A, B, C, D with B hidden, then C hidden.
        using Change = std::function<void(QStandardItemModel &)>;
        // A column without a title is named by the model's default header text, its number.
        QTest::newRow("inserted before")
            << Change([](auto &m) { m.insertColumn(0, {new QStandardItem}); }) << u"1 A B C D"_s << u"B C"_s;
        QTest::newRow("inserted at the end") << Change([](auto &m) { m.insertColumns(4, 2); }) << u"A B C D 5 6"_s
                                             << u"B C"_s;
        QTest::newRow("hidden column removed")
            << Change([](auto &m) { m.removeColumns(1, 1); }) << u"A C D"_s << u"C"_s;
        QTest::newRow("all removed") << Change([](auto &m) { m.removeColumns(0, 4); }) << QString() << QString();
        QTest::newRow("reset, same columns") << Change([](auto &m) {
            m.setRowCount(0);
            m.setColumnCount(4);
        }) << u"A B C D"_s << u"B C"_s;
        QTest::newRow("cleared") << Change([](auto &m) { m.clear(); }) << QString() << QString();
        QTest::newRow("rows in a child") << Change([](auto &m) {
            m.item(0, 0)->appendRow(new QStandardItem);
            m.item(0, 0)->insertColumns(0, 3);
        }) << u"A B C D"_s << u"B C"_s;
    }

    void followsModel()
    {
        QFETCH(std::function<void(QStandardItemModel &)>, change);
        QFETCH(QString, identifiers);
        QFETCH(QString, hidden);
        for (const QString kind : {u"table"_s, u"tree"_s}) {
            const auto model = makeModel({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
            model->setItem(0, 0, new QStandardItem(u"item"_s));
            const auto view = makeView(kind);
            view->setModel(model.get());
            QHeaderView *header = headerOf(*view);
            BrixelPrivate::TableColumnList list(view.get(), header);
            list.hideColumnWithIdentifier(u"B"_s);
            list.hideColumnWithIdentifier(u"C"_s);

            change(*model);
            QStringList actual;
            for (int logical = 0; list.columnForModelColumn(logical); ++logical)
                actual.append(list.columnForModelColumn(logical)->identifier());
            QCOMPARE(actual.join(u' '), identifiers);
            QStringList actualHidden;
            for (const ZARNTableColumn *column : list.hiddenTableColumns())
                actualHidden.append(column->identifier());
            QCOMPARE(actualHidden.join(u' '), hidden);
            verifyConsistent(list, *header);
        }
    }

    void followsMovedColumns_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("destination");
        QTest::addColumn<QString>("identifiers");

        QTest::newRow("one to the front") << 2 << 1 << 0 << u"C A B D"_s;
        QTest::newRow("two to the end") << 0 << 2 << 4 << u"C D A B"_s;
        QTest::newRow("one forward by one") << 1 << 1 << 3 << u"A C B D"_s;
        QTest::newRow("onto itself refused") << 1 << 1 << 2 << u"A B C D"_s;
    }

    void followsMovedColumns()
    {
        QFETCH(int, first);
        QFETCH(int, count);
        QFETCH(int, destination);
        QFETCH(QString, identifiers);
        TitlesModel model({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
        QTableView view;
        view.setModel(&model);
        BrixelPrivate::TableColumnList list(&view, view.horizontalHeader());
        list.hideColumnWithIdentifier(u"B"_s);

        model.moveColumns({}, first, count, {}, destination);
        QStringList actual;
        for (int logical = 0; logical < model.columnCount({}); ++logical) {
            actual.append(list.columnForModelColumn(logical)->identifier());
            QCOMPARE(actual.last(), model.headerData(logical, Qt::Horizontal, Qt::DisplayRole).toString());
        }
        QCOMPARE(actual.join(u' '), identifiers);
        QCOMPARE(list.hiddenTableColumnWithIdentifier(u"B"_s), list.columnForModelColumn(int(actual.indexOf(u"B"_s))));
        verifyConsistent(list, *view.horizontalHeader());
    }

    void anotherModelMakesNewColumns()
    {
        auto first = makeModel({u"A"_s, u"B"_s});
        const auto second = makeModel({u"P"_s, u"Q"_s, u"R"_s});
        QTableView view;
        view.setModel(first.get());
        BrixelPrivate::TableColumnList list(&view, view.horizontalHeader());
        list.hideColumn(0);

        view.setModel(second.get());
        QCOMPARE(list.hiddenTableColumns(), QList<ZARNTableColumn *>{});
        QCOMPARE(list.tableColumnWithIdentifier(u"R"_s), list.columnAt(2));
        QCOMPARE(list.columnWithIdentifier(u"A"_s), -1);

        view.setModel(first.get());
        first.reset(); // the view falls back to no model
        QCOMPARE(list.numberOfColumns(), 0);
        QCOMPARE(list.columnForModelColumn(0), nullptr);
    }

    void hiddenColumnKeepsItsWidth()
    {
        const auto model = makeModel({u"A"_s, u"B"_s});
        QTableView view;
        view.setModel(model.get());
        BrixelPrivate::TableColumnList list(&view, view.horizontalHeader());
        ZARNTableColumn *column = list.columnAt(0);
        column->setWidth(70);
        list.hideColumn(0);
        QVERIFY(column->isHidden());
        QCOMPARE(column->width(), 70.0f);
        column->setWidth(90);
        list.showColumnWithIdentifier(u"A"_s);
        QCOMPARE(view.horizontalHeader()->sectionSize(0), 90);
        QVERIFY(!column->isHidden());
    }
};

QTEST_MAIN(TestTableColumns)
#include "tst_tablecolumns.moc"
