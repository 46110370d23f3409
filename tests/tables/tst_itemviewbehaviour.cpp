// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tables/ItemViewBehaviour_p.h"

#include <QStandardItemModel>
#include <QTest>
#include <QTreeView>

using SelectionSetUp = std::function<void(QItemSelectionModel &, const QAbstractItemModel &)>;
Q_DECLARE_METATYPE(SelectionSetUp)

class TestItemViewBehaviour : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void selectedRowItem_data();
    void selectedRowItem();
};

void TestItemViewBehaviour::selectedRowItem_data()
{
    QTest::addColumn<SelectionSetUp>("setUp");
    QTest::addColumn<int>("row");

    const auto select = [](int row) {
        return [row](QItemSelectionModel &s, const QAbstractItemModel &m) {
            s.select(m.index(row, 1), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        };
    };
    QTest::newRow("nothing selected") << SelectionSetUp([](auto &, auto &) {}) << -1;
    QTest::newRow("current row, any column") << SelectionSetUp([](QItemSelectionModel &s, const QAbstractItemModel &m) {
        s.select(m.index(1, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        s.setCurrentIndex(m.index(3, 1), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }) << 3;
    QTest::newRow("unselected current gives the lowest selected row")
        << SelectionSetUp([select](QItemSelectionModel &s, const QAbstractItemModel &m) {
               select(2)(s, m);
               select(1)(s, m);
               s.setCurrentIndex(m.index(4, 0), QItemSelectionModel::NoUpdate);
           })
        << 1;
    QTest::newRow("a single selected cell is no selected row")
        << SelectionSetUp([](QItemSelectionModel &s, const QAbstractItemModel &m) {
               s.setCurrentIndex(m.index(2, 1), QItemSelectionModel::Select);
           })
        << -1;
}

void TestItemViewBehaviour::selectedRowItem()
{
    QFETCH(SelectionSetUp, setUp);
    QFETCH(int, row);
    QStandardItemModel model(5, 2);
    QTreeView view;
    view.setModel(&model);
    setUp(*view.selectionModel(), model);

    const QModelIndex item = BrixelPrivate::selectedRowItem(&view);

    QCOMPARE(item.isValid() ? item.row() : -1, row);
    QCOMPARE(item.isValid() ? item.column() : 0, 0);
    QVERIFY(!BrixelPrivate::selectedRowItem(nullptr).isValid());
}

QTEST_MAIN(TestItemViewBehaviour)
#include "tst_itemviewbehaviour.moc"
