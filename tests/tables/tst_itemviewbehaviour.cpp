// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNItemViewBehaviour.h>

#include <QMenu>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTreeView>

using brixel::KeyRole;
using SelectionSetUp = std::function<void(QItemSelectionModel &, const QAbstractItemModel &)>;
Q_DECLARE_METATYPE(SelectionSetUp)
Q_DECLARE_METATYPE(brixel::KeyRole)

class TestItemViewBehaviour : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keyRoles_data();
    void keyRoles();
    void selectedRowItem_data();
    void selectedRowItem();
    void controlClicks_data();
    void controlClicks();
    void liveResizeEndsWhenQuiet();
    void menuIsNotOwned();
};

void TestItemViewBehaviour::keyRoles_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<KeyRole>("role");

    QTest::newRow("Return") << int(Qt::Key_Return) << KeyRole::ReturnKey;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << KeyRole::ReturnKey;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << KeyRole::DeleteBackward;
    QTest::newRow("Delete") << int(Qt::Key_Delete) << KeyRole::DeleteBackward;
    QTest::newRow("Up") << int(Qt::Key_Up) << KeyRole::SelectionMove;
    QTest::newRow("Down") << int(Qt::Key_Down) << KeyRole::SelectionMove;
    QTest::newRow("Left stays with Qt") << int(Qt::Key_Left) << KeyRole::Other;
    QTest::newRow("Page Down stays with Qt") << int(Qt::Key_PageDown) << KeyRole::Other;
    QTest::newRow("no key") << 0 << KeyRole::Other;
}

void TestItemViewBehaviour::keyRoles()
{
    QFETCH(int, key);
    QFETCH(KeyRole, role);
    QCOMPARE(brixel::keyRole(key), role);
}

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

    const QModelIndex item = brixel::selectedRowItem(&view);

    QCOMPARE(item.isValid() ? item.row() : -1, row);
    QCOMPARE(item.isValid() ? item.column() : 0, 0);
    QVERIFY(!brixel::selectedRowItem(nullptr).isValid());
}

void TestItemViewBehaviour::controlClicks_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("controlClick");
    QTest::addColumn<bool>("selectsFirst");

    QTest::newRow("press") << QEvent::MouseButtonPress << Qt::LeftButton << Qt::KeyboardModifiers(Qt::MetaModifier) << true << true;
    QTest::newRow("with shift too") << QEvent::MouseButtonPress << Qt::LeftButton
                                    << Qt::KeyboardModifiers(Qt::MetaModifier | Qt::ShiftModifier) << true << true;
    QTest::newRow("double click opens the menu only")
        << QEvent::MouseButtonDblClick << Qt::LeftButton << Qt::KeyboardModifiers(Qt::MetaModifier) << true << false;
    QTest::newRow("release") << QEvent::MouseButtonRelease << Qt::LeftButton << Qt::KeyboardModifiers(Qt::MetaModifier) << false << false;
    QTest::newRow("Qt's Control is not it") << QEvent::MouseButtonPress << Qt::LeftButton
                                            << Qt::KeyboardModifiers(Qt::ControlModifier) << false << false;
    QTest::newRow("right button") << QEvent::MouseButtonPress << Qt::RightButton << Qt::KeyboardModifiers(Qt::MetaModifier) << false << false;
}

void TestItemViewBehaviour::controlClicks()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(bool, controlClick);
    QFETCH(bool, selectsFirst);
    const QMouseEvent event(type, QPointF(5, 5), QPointF(5, 5), button, button, modifiers);
    QCOMPARE(brixel::isControlClick(&event), controlClick);
    QCOMPARE(brixel::controlClickSelectsFirst(&event), selectsFirst);
    QVERIFY(!brixel::isControlClick(nullptr));
}

void TestItemViewBehaviour::liveResizeEndsWhenQuiet()
{
    QTreeView view;
    auto *behaviour = new brixel::ItemViewBehaviour(&view);
    QSignalSpy ended(behaviour, &brixel::ItemViewBehaviour::liveResizeEnded);

    behaviour->noteResize();
    QTest::qWait(brixel::ItemViewBehaviour::LiveResizeSettleInterval / 2);
    behaviour->noteResize();
    QTest::qWait(brixel::ItemViewBehaviour::LiveResizeSettleInterval / 2);
    QVERIFY(behaviour->inLiveResize());
    QCOMPARE(ended.count(), 0);

    QVERIFY(ended.wait());
    QVERIFY(!behaviour->inLiveResize());
    QCOMPARE(ended.count(), 1);
}

void TestItemViewBehaviour::menuIsNotOwned()
{
    QTreeView view;
    brixel::ItemViewBehaviour behaviour(&view);
    {
        QMenu menu;
        behaviour.setMenu(&menu);
        QCOMPARE(behaviour.menu(), &menu);
    }
    QVERIFY(!behaviour.menu());
    behaviour.popUpMenu(behaviour.menu(), {}, {0, 0});
    QVERIFY(!behaviour.contextMenuItem().isValid());
}

QTEST_MAIN(TestItemViewBehaviour)
#include "tst_itemviewbehaviour.moc"
