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

QList<int> modelColumns(const QList<ZARNTableColumn *> &columns)
{
    QList<int> result;
    for (const ZARNTableColumn *column : columns)
        result.append(column->modelColumn());
    return result;
}

// The header texts as they are laid out on screen, left to right.
QStringList renderedTitles(const QHeaderView &header)
{
    QList<int> shown;
    for (int logical = 0; logical < header.count(); ++logical)
        if (!header.isSectionHidden(logical))
            shown.append(logical);
    std::sort(shown.begin(), shown.end(), [&](int a, int b) {
        return header.sectionViewportPosition(a) < header.sectionViewportPosition(b);
    });
    QStringList titles;
    for (int logical : shown)
        titles.append(header.model()->headerData(logical, Qt::Horizontal).toString());
    return titles;
}

// Every column object answers for its own model column, and the hidden list holds exactly
// live, hidden columns.
void verifyConsistent(const BrixelPrivate::TableColumnList &list, const QHeaderView &header)
{
    QCOMPARE(list.columnForModelColumn(header.count()), nullptr);
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

void run(BrixelPrivate::TableColumnList &list, const QStringList &script)
{
    for (const QString &step : script) {
        const QString argument = step.section(u' ', 1);
        if (step.startsWith(u"hideId "))
            list.hideColumnWithIdentifier(argument);
        else if (step.startsWith(u"hide "))
            list.hideColumn(argument.toInt());
        else if (step.startsWith(u"show "))
            list.showColumnWithIdentifier(argument);
    }
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
        return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(m_titles.value(section)) : QVariant();
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

// Columns A and B of a table view.
struct TwoColumnTable
{
    TwoColumnTable() { view.setModel(model.get()); }
    std::unique_ptr<QStandardItemModel> model = makeModel({u"A"_s, u"B"_s});
    QTableView view;
    BrixelPrivate::TableColumnList list{&view, view.horizontalHeader()};
};

} // namespace

class TestTableColumns : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hideAndShow_data();
    void hideAndShow();
    void lookups_data();
    void lookups();
    void sortIndicator_data();
    void sortIndicator();
    void followsModel_data();
    void followsModel();
    void followsMovedColumns_data();
    void followsMovedColumns();
    void anotherModelMakesNewColumns();
    void hiddenColumnKeepsItsWidth();
};

void TestTableColumns::hideAndShow_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QStringList>("titles");
    QTest::addColumn<QStringList>("script");
    QTest::addColumn<QList<int>>("shown");
    QTest::addColumn<QList<int>>("hidden");

    const QStringList abcd{u"A"_s, u"B"_s, u"C"_s, u"D"_s};
    const QStringList duplicates{u"A"_s, u"X"_s, u"X"_s, u"D"_s};
    for (const QString kind : {u"table"_s, u"tree"_s}) {
        const auto row = [&](const char *name) { return &QTest::newRow(qPrintable(kind + u": "_s + QLatin1StringView(name))); };
        *row("hide the second") << kind << abcd << QStringList{u"hide 1"_s} << QList<int>{0, 2, 3} << QList<int>{1};
        *row("shown again at the right end") << kind << abcd << QStringList{u"hide 1"_s, u"show B"_s}
                                             << QList<int>{0, 2, 3, 1} << QList<int>{};
        *row("indexes count shown columns only") << kind << abcd << QStringList{u"hide 0"_s, u"hide 0"_s}
                                                 << QList<int>{2, 3} << QList<int>{0, 1};
        *row("show the first hidden of two") << kind << abcd << QStringList{u"hide 0"_s, u"hide 0"_s, u"show A"_s}
                                             << QList<int>{2, 3, 0} << QList<int>{1};
        *row("hide by identifier") << kind << abcd << QStringList{u"hideId C"_s} << QList<int>{0, 1, 3} << QList<int>{2};
        *row("negative index ignored") << kind << abcd << QStringList{u"hide -1"_s} << QList<int>{0, 1, 2, 3} << QList<int>{};
        *row("index past the end ignored") << kind << abcd << QStringList{u"hide 1"_s, u"hide 3"_s}
                                           << QList<int>{0, 2, 3} << QList<int>{1};
        *row("unknown identifiers ignored") << kind << abcd << QStringList{u"hideId Q"_s, u"show Q"_s}
                                            << QList<int>{0, 1, 2, 3} << QList<int>{};
        *row("showing a shown column does nothing") << kind << abcd << QStringList{u"show A"_s}
                                                    << QList<int>{0, 1, 2, 3} << QList<int>{};
        *row("duplicates: hides the leftmost") << kind << duplicates << QStringList{u"hideId X"_s}
                                               << QList<int>{0, 2, 3} << QList<int>{1};
        *row("duplicates: shows the one hidden first") << kind << duplicates
                                                       << QStringList{u"hide 2"_s, u"hideId X"_s, u"show X"_s}
                                                       << QList<int>{0, 3, 2} << QList<int>{1};
        *row("hide everything and bring back") << kind << abcd
                                               << QStringList{u"hide 0"_s, u"hide 0"_s, u"hide 0"_s, u"hide 0"_s,
                                                              u"show D"_s, u"show B"_s}
                                               << QList<int>{3, 1} << QList<int>{0, 2};
    }
}

void TestTableColumns::hideAndShow()
{
    QFETCH(QString, kind);
    QFETCH(QStringList, titles);
    QFETCH(QStringList, script);
    QFETCH(QList<int>, shown);
    QFETCH(QList<int>, hidden);
    const auto model = makeModel(titles);
    const auto view = makeView(kind);
    view->setModel(model.get());
    view->resize(600, 200);
    QHeaderView *header = headerOf(*view);
    BrixelPrivate::TableColumnList list(view.get(), header);

    run(list, script);
    QCOMPARE(modelColumns(list.tableColumns()), shown);
    QCOMPARE(modelColumns(list.hiddenTableColumns()), hidden);
    QList<int> visualOrder;
    for (int visual = 0; visual < header->count(); ++visual)
        if (!header->isSectionHidden(header->logicalIndex(visual)))
            visualOrder.append(header->logicalIndex(visual));
    QCOMPARE(visualOrder, shown);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    QStringList expectedTitles;
    for (int logical : shown)
        expectedTitles.append(titles.at(logical));
    QCOMPARE(renderedTitles(*header), expectedTitles);
    verifyConsistent(list, *header);
}

void TestTableColumns::lookups_data()
{
    QTest::addColumn<std::function<QVariant(const BrixelPrivate::TableColumnList &)>>("lookup");
    QTest::addColumn<QVariant>("expected");

    // Columns A, X, X, D (model columns 0..3) with the first X hidden; column indexes count
    // the shown columns A, X (model column 2), D.
    using Lookup = std::function<QVariant(const BrixelPrivate::TableColumnList &)>;
    const auto modelColumnOf = [](const ZARNTableColumn *column) { return column ? column->modelColumn() : -1; };
    QTest::newRow("column at 1") << Lookup([=](auto &l) { return modelColumnOf(l.columnAt(1)); }) << QVariant(2);
    QTest::newRow("column at -1") << Lookup([=](auto &l) { return modelColumnOf(l.columnAt(-1)); }) << QVariant(-1);
    QTest::newRow("column at 3") << Lookup([=](auto &l) { return modelColumnOf(l.columnAt(3)); }) << QVariant(-1);
    QTest::newRow("index of a hidden column") << Lookup([](auto &l) { return l.columnIndex(l.columnForModelColumn(1)); })
                                              << QVariant(-1);
    QTest::newRow("index of null") << Lookup([](auto &l) { return l.columnIndex(nullptr); }) << QVariant(-1);
    QTest::newRow("shown X") << Lookup([](auto &l) { return l.columnWithIdentifier(u"X"_s); }) << QVariant(1);
    QTest::newRow("unknown identifier") << Lookup([](auto &l) { return l.columnWithIdentifier(u"x"_s); }) << QVariant(-1);
    QTest::newRow("column with identifier D")
        << Lookup([=](auto &l) { return modelColumnOf(l.tableColumnWithIdentifier(u"D"_s)); }) << QVariant(3);
    QTest::newRow("hidden X") << Lookup([=](auto &l) { return modelColumnOf(l.hiddenTableColumnWithIdentifier(u"X"_s)); })
                              << QVariant(1);
    QTest::newRow("shown column is not a hidden one")
        << Lookup([=](auto &l) { return modelColumnOf(l.hiddenTableColumnWithIdentifier(u"A"_s)); }) << QVariant(-1);
    QTest::newRow("model column out of range")
        << Lookup([=](auto &l) { return modelColumnOf(l.columnForModelColumn(4)); }) << QVariant(-1);
}

void TestTableColumns::lookups()
{
    QFETCH(std::function<QVariant(const BrixelPrivate::TableColumnList &)>, lookup);
    QFETCH(QVariant, expected);
    const auto model = makeModel({u"A"_s, u"X"_s, u"X"_s, u"D"_s});
    QTableView view;
    view.setModel(model.get());
    BrixelPrivate::TableColumnList list(&view, view.horizontalHeader());
    list.hideColumn(1);
    QCOMPARE(lookup(list), expected);
}

void TestTableColumns::sortIndicator_data()
{
    QTest::addColumn<int>("sortedColumn");
    QTest::addColumn<int>("hiddenColumn");
    QTest::addColumn<int>("indicatorAfterHiding");

    QTest::newRow("on the hidden column") << 1 << 1 << -1;
    QTest::newRow("on another column") << 2 << 1 << 2;
}

void TestTableColumns::sortIndicator()
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

void TestTableColumns::followsModel_data()
{
    QTest::addColumn<std::function<void(QStandardItemModel &)>>("change");
    QTest::addColumn<QStringList>("identifiers"); // by model column after the change
    QTest::addColumn<QStringList>("hidden");

    // Columns A, B, C, D with B hidden, then C hidden.
    using Change = std::function<void(QStandardItemModel &)>;
    // A column without a title is named by the model's default header text, its number.
    QTest::newRow("inserted before") << Change([](auto &m) { m.insertColumn(0, {new QStandardItem}); })
                                     << QStringList{u"1"_s, u"A"_s, u"B"_s, u"C"_s, u"D"_s} << QStringList{u"B"_s, u"C"_s};
    QTest::newRow("inserted at the end") << Change([](auto &m) { m.insertColumns(4, 2); })
                                         << QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"5"_s, u"6"_s}
                                         << QStringList{u"B"_s, u"C"_s};
    QTest::newRow("hidden column removed") << Change([](auto &m) { m.removeColumns(1, 1); })
                                           << QStringList{u"A"_s, u"C"_s, u"D"_s} << QStringList{u"C"_s};
    QTest::newRow("all removed") << Change([](auto &m) { m.removeColumns(0, 4); }) << QStringList{} << QStringList{};
    QTest::newRow("reset, same columns") << Change([](auto &m) {
        m.setRowCount(0);
        m.setColumnCount(4);
    }) << QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s} << QStringList{u"B"_s, u"C"_s};
    QTest::newRow("cleared") << Change([](auto &m) { m.clear(); }) << QStringList{} << QStringList{};
    QTest::newRow("rows in a child") << Change([](auto &m) {
        m.item(0, 0)->appendRow(new QStandardItem);
        m.item(0, 0)->insertColumns(0, 3);
    }) << QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s} << QStringList{u"B"_s, u"C"_s};
}

void TestTableColumns::followsModel()
{
    QFETCH(std::function<void(QStandardItemModel &)>, change);
    QFETCH(QStringList, identifiers);
    QFETCH(QStringList, hidden);
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
        QCOMPARE(actual, identifiers);
        QStringList actualHidden;
        for (const ZARNTableColumn *column : list.hiddenTableColumns())
            actualHidden.append(column->identifier());
        QCOMPARE(actualHidden, hidden);
        verifyConsistent(list, *header);
    }
}

void TestTableColumns::followsMovedColumns_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("destination");
    QTest::addColumn<QStringList>("identifiers");

    QTest::newRow("one to the front") << 2 << 1 << 0 << QStringList{u"C"_s, u"A"_s, u"B"_s, u"D"_s};
    QTest::newRow("two to the end") << 0 << 2 << 4 << QStringList{u"C"_s, u"D"_s, u"A"_s, u"B"_s};
    QTest::newRow("one forward by one") << 1 << 1 << 3 << QStringList{u"A"_s, u"C"_s, u"B"_s, u"D"_s};
    QTest::newRow("onto itself refused") << 1 << 1 << 2 << QStringList{u"A"_s, u"B"_s, u"C"_s, u"D"_s};
}

void TestTableColumns::followsMovedColumns()
{
    QFETCH(int, first);
    QFETCH(int, count);
    QFETCH(int, destination);
    QFETCH(QStringList, identifiers);
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
    QCOMPARE(actual, identifiers);
    QCOMPARE(list.hiddenTableColumnWithIdentifier(u"B"_s), list.columnForModelColumn(int(identifiers.indexOf(u"B"_s))));
    verifyConsistent(list, *view.horizontalHeader());
}

void TestTableColumns::anotherModelMakesNewColumns()
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

void TestTableColumns::hiddenColumnKeepsItsWidth()
{
    TwoColumnTable table;
    auto &[model, view, list] = table;
    ZARNTableColumn *column = list.columnAt(0);
    column->setWidth(70);
    list.hideColumn(0);
    QVERIFY(column->isHidden());
    QCOMPARE(column->width(), 70.0f);
    column->setWidth(90);
    QCOMPARE(column->width(), 90.0f);
    list.showColumnWithIdentifier(u"A"_s);
    QCOMPARE(view.horizontalHeader()->sectionSize(0), 90);
    QVERIFY(!column->isHidden());
}

QTEST_MAIN(TestTableColumns)
#include "tst_tablecolumns.moc"
