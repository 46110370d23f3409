// SPDX-License-Identifier: LGPL-2.1-or-later
// The keys, context clicks and drag picture the table and outline views share, run on each.
#include "tables/ItemViewBehaviour_p.h"
#include <Brixel/ZARNTextFieldCell.h>

#include "BrixelTest.h"
#include "ViewKinds.h"

#include <QMenu>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace viewkinds;

namespace {

/// Records, for each cell it draws, whether its view was preparing a drag picture and whether
/// the contents were to be drawn highlighted.
class RecordingCell : public ZARNTextFieldCell
{
public:
    explicit RecordingCell(const AnyView &view)
        : m_view(view)
    {
    }
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        paints.append({m_view.inDragPrep(), option.state.testFlag(QStyle::State_Selected)});
        ZARNTextFieldCell::paint(painter, option, index);
    }
    mutable QList<std::pair<bool, bool>> paints;

private:
    const AnyView &m_view;
};

/// Adds one row of the current data table per view kind, named after the kind.
template<typename Add>
void forEachKind(const char *name, Add add)
{
    for (const Kind kind : {Kind::Table, Kind::Outline})
        add(QTest::addRow("%s: %s", kind == Kind::Table ? "table" : "outline", name) << kind);
}

/// A click on the view at a point: a mouse event or a request for the context menu.
using Click = std::function<void(const AnyView &, QPoint)>;

Click mouse(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {})
{
    return [=](const AnyView &view, QPoint at) {
        QMouseEvent event(type, at, view->viewport()->mapToGlobal(at), button, button, modifiers);
        QApplication::sendEvent(view->viewport(), &event);
    };
}

Click menuEvent(QContextMenuEvent::Reason reason)
{
    return [=](const AnyView &view, QPoint at) {
        QContextMenuEvent event(reason, at, view->viewport()->mapToGlobal(at));
        QApplication::sendEvent(view->viewport(), &event);
    };
}

} // namespace

class TestItemViewBehaviour : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void selectedRowItem_data()
    {
        QTest::addColumn<QList<int>>("rows"); // selected whole, in this order
        QTest::addColumn<QPoint>("current"); // x = row, y = column; made current with the flags
        QTest::addColumn<int>("flags");
        QTest::addColumn<int>("row");

        const int selectRows = QItemSelectionModel::Select | QItemSelectionModel::Rows;
        QTest::newRow("nothing selected") << QList<int>{} << QPoint(-1, -1) << 0 << -1;
        QTest::newRow("current row, any column") << QList<int>{1} << QPoint(3, 1) << selectRows << 3;
        QTest::newRow("unselected current gives the lowest selected row")
            << QList<int>{2, 1} << QPoint(4, 0) << int(QItemSelectionModel::NoUpdate) << 1;
        QTest::newRow("a single selected cell is no selected row")
            << QList<int>{} << QPoint(2, 1) << int(QItemSelectionModel::Select) << -1;
    }

    void selectedRowItem()
    {
        QFETCH(QList<int>, rows);
        QFETCH(QPoint, current);
        QFETCH(int, flags);
        QFETCH(int, row);
        QStandardItemModel model(5, 2);
        QTreeView view;
        view.setModel(&model);
        selectRows(view, rows);
        view.selectionModel()->setCurrentIndex(model.index(current.x(), current.y()),
                                               QItemSelectionModel::SelectionFlags(flags));

        const QModelIndex item = BrixelPrivate::selectedRowItem(&view);

        QCOMPARE(item.isValid() ? item.row() : -1, row);
        QCOMPARE(item.isValid() ? item.column() : 0, 0);
        QVERIFY(!BrixelPrivate::selectedRowItem(nullptr).isValid());
    }

    void keys_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("startRow");
        QTest::addColumn<bool>("withDelegate");
        QTest::addColumn<QStringList>("calls"); // what a delegate hears, had the view one
        QTest::addColumn<int>("selectedRow");

        // Five rows; the start row is selected and current.
        const QStringList none, returns{u"return"_s}, deletes{u"delete"_s}, changing{u"changing"_s};
        const auto row = [](const char *name, int key, int start, bool withDelegate, const QStringList &calls,
                            int selected) {
            forEachKind(name, [&](QTestData &data) { data << key << start << withDelegate << calls << selected; });
        };
        row("return", Qt::Key_Return, 1, true, returns, 1);
        row("enter", Qt::Key_Enter, 1, true, returns, 1);
        row("backspace", Qt::Key_Backspace, 1, true, deletes, 1);
        row("delete", Qt::Key_Delete, 1, true, deletes, 1);
        row("return without a delegate", Qt::Key_Return, 1, false, returns, 1);
        row("backspace without a delegate", Qt::Key_Backspace, 1, false, deletes, 1);
        row("down", Qt::Key_Down, 1, true, changing, 2);
        row("up", Qt::Key_Up, 1, true, changing, 0);
        row("up on the first row", Qt::Key_Up, 0, true, none, 0);
        row("down on the last row", Qt::Key_Down, 4, true, none, 4);
        row("down without a delegate", Qt::Key_Down, 1, false, changing, 2);
        row("typing does not select by text", Qt::Key_R, 1, true, none, 1);
        row("other keys go to Qt", Qt::Key_PageDown, 1, true, none, 4);
    }

    void keys()
    {
        QFETCH(Kind, kind);
        QFETCH(int, key);
        QFETCH(int, startRow);
        QFETCH(bool, withDelegate);
        QFETCH(QStringList, calls);
        QFETCH(int, selectedRow);

        DataSourceModel model(5, 2);
        AnyView view(kind);
        view->setModel(&model);
        view->setEditTriggers(QAbstractItemView::NoEditTriggers);
        RecordingDelegate delegate;
        if (withDelegate)
            view.setDelegate(&delegate);
        view->resize(200, 400);
        view->setCurrentIndex(model.index(startRow, 0));
        std::optional<QSignalSpy> changing;
        if (view.table())
            changing.emplace(view.table(), &ZARNTableView::selectionIsChanging);

        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_R ? u"r"_s : QString());
        QApplication::sendEvent(view.view.get(), &press);

        QCOMPARE(delegate.calls, withDelegate ? calls : QStringList());
        QCOMPARE(selectedRows(*view.view), QList<int>{selectedRow});
        if (view.table()) {
            QCOMPARE(changing->size(), calls.count(u"changing"_s)); // with or without a delegate
            QCOMPARE(view.table()->selectedRow(), selectedRow);
        }
        if (calls.contains(u"return"_s) || calls.contains(u"delete"_s))
            QVERIFY(press.isAccepted());
        for (const ZARNNotification &notice : std::as_const(delegate.notices)) {
            QCOMPARE(notice.name, QString(NSTableViewSelectionIsChangingNotification));
            QCOMPARE(notice.object.data(), view.view.get());
            QVERIFY(notice.userInfo.isEmpty());
        }
    }

    void contextClick_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("source"); // "plain" model, data source that is "quiet" or "asks"
        QTest::addColumn<std::optional<bool>>("answer");
        QTest::addColumn<Click>("click");
        QTest::addColumn<int>("row");
        QTest::addColumn<QList<int>>("selected");
        QTest::addColumn<int>("menuRow"); // -2: no menu shown, -1: shown for no row
        QTest::addColumn<QList<int>>("asked");

        // Rows 1 and 2 of six are selected before the click, row 2 is current.
        const auto yes = std::optional<bool>(true), no = std::optional<bool>(false), silent = std::optional<bool>();
        const QList<int> before{1, 2};
        const Click right = [](const AnyView &view, QPoint at) {
            QTest::mousePress(view->viewport(), Qt::RightButton, {}, at);
        };
        const Click rightWithoutMenu = [right](const AnyView &view, QPoint at) {
            view.setMenu(nullptr);
            right(view, at);
        };
        const Click plain = [](const AnyView &view, QPoint at) {
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        };
        const Click control = mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::MetaModifier);
        const Click controlDouble = mouse(QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::MetaModifier);
        const Click rightDouble = mouse(QEvent::MouseButtonDblClick, Qt::RightButton);
        const Click menuKey = menuEvent(QContextMenuEvent::Keyboard), menuMouse = menuEvent(QContextMenuEvent::Mouse);
        const auto both = [](const char *name, const QString &source, std::optional<bool> answer, Click click, int row,
                             const QList<int> &selected, int menuRow) {
            forEachKind(name, [&](QTestData &data) {
                data << source << answer << click << row << selected << menuRow << QList<int>{};
            });
        };
        both("right press selects an unselected row alone", u"plain"_s, silent, right, 4, {4}, 4);
        both("right press without a menu still selects", u"plain"_s, silent, rightWithoutMenu, 4, {4}, -2);
        both("right press below the rows", u"quiet"_s, yes, right, -1, before, -1);
        both("menu key opens at the current row", u"plain"_s, silent, menuKey, -1, before, 2);
        both("mouse menu event leaves it to the press", u"plain"_s, silent, menuMouse, 4, before, -2);
        both("a second right click acts as the first", u"plain"_s, silent, rightDouble, 4, {4}, 4);
        both("control-click selects, then opens the menu", u"plain"_s, silent, control, 3, {3}, 3);
        both("control-double-click only opens the menu", u"plain"_s, silent, controlDouble, 3, before, 3);
        both("a plain click opens no menu", u"plain"_s, silent, plain, 3, {3}, -2);

        // The table applies the data source's rule; the outline never asks and keeps a selection.
        const auto table = [right](const char *name, const QString &source, std::optional<bool> answer, int row,
                                   const QList<int> &selected, const QList<int> &asked) {
            QTest::addRow("table: %s", name)
                << Kind::Table << source << answer << right << row << selected << row << asked;
        };
        table("plain model, selected row collapses", u"plain"_s, silent, 2, {2}, {});
        table("not opted in is never asked", u"quiet"_s, no, 4, {4}, {});
        table("not opted in, selected row collapses", u"quiet"_s, yes, 1, {1}, {});
        table("opted in, allowed", u"asks"_s, yes, 4, {4}, {4});
        table("opted in, refused", u"asks"_s, no, 4, before, {4});
        table("opted in, no answer", u"asks"_s, silent, 4, before, {4});
        table("opted in, selected row kept", u"asks"_s, yes, 2, before, {});
        QTest::newRow("outline: a refusing data source is not asked")
            << Kind::Outline << u"asks"_s << no << right << 4 << QList<int>{4} << 4 << QList<int>{};
        QTest::newRow("outline: a selected row keeps the selection")
            << Kind::Outline << u"plain"_s << silent << right << 2 << before << 2 << QList<int>{};
    }

    void contextClick()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, source);
        QFETCH(std::optional<bool>, answer);
        QFETCH(Click, click);
        QFETCH(int, row);
        QFETCH(QList<int>, selected);
        QFETCH(int, menuRow);
        QFETCH(QList<int>, asked);

        DataSourceModel dataSource(6, 1); // one column: the menu notes its row by the first cell
        QStandardItemModel plain(6, 1);
        dataSource.responds = source == u"asks";
        dataSource.answer = answer;
        AnyView view(kind);
        view->setModel(source == u"plain" ? static_cast<QAbstractItemModel *>(&plain) : &dataSource);
        showView(*view.view, {300, 400});
        view->setEditTriggers(QAbstractItemView::NoEditTriggers);
        QMenu menu;
        menu.addAction(u"Open"_s);
        view.setMenu(&menu);
        QSignalSpy shown(&menu, &QMenu::aboutToShow);
        selectRows(*view.view, {1, 2});
        view->selectionModel()->setCurrentIndex(view->model()->index(2, 0), QItemSelectionModel::NoUpdate);

        const QPoint at = row >= 0 ? view->visualRect(view->model()->index(row, 0)).center()
                                   : QPoint(10, view->viewport()->height() - 2);
        click(view, at);

        QCOMPARE(selectedRows(*view.view), selected);
        QCOMPARE(dataSource.asked, asked);
        QCOMPARE(shown.size(), menuRow == -2 ? 0 : 1);
        QCOMPARE(menu.isVisible(), menuRow != -2);
        QCOMPARE(view.contextMenuRow(), qMax(menuRow, -1));
        menu.hide();
        QCOMPARE(view.contextMenuRow(), -1);
    }

    void dragPictureIsDrawnPlain_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QList<int>>("selected");

        forEachKind("two rows", [](QTestData &data) { data << QList<int>{1, 2}; });
        forEachKind("nothing selected, no picture", [](QTestData &data) { data << QList<int>{}; });
    }

    // The picture holds the dragged rows' cells, drawn while preparing it and not highlighted.
    void dragPictureIsDrawnPlain()
    {
        QFETCH(Kind, kind);
        QFETCH(QList<int>, selected);
        DataSourceModel model(5, 2);
        AnyView view(kind);
        RecordingCell cell(view);
        view->setItemDelegate(&cell);
        view->setModel(&model);
        showView(*view.view, {300, 400});
        selectRows(*view.view, selected);
        cell.paints.clear();

        view.startDrag(Qt::CopyAction);

        QVERIFY(!view.inDragPrep());
        const QList<std::pair<bool, bool>> plainInPrep(selected.size() * 2, {true, false});
        QCOMPARE(cell.paints, plainInPrep);
    }

    void worksWithoutModelOrMenu_data()
    {
        QTest::addColumn<Kind>("kind");
        forEachKind("no model", [](QTestData &) {});
    }

    void worksWithoutModelOrMenu()
    {
        QFETCH(Kind, kind);
        AnyView view(kind);
        RecordingDelegate delegate;
        view.setDelegate(&delegate);
        auto menu = std::make_unique<QMenu>();
        view.setMenu(menu.get());
        menu.reset();
        QCOMPARE(view.either([](auto &v) { return v.menu(); }), nullptr);
        showView(*view.view, {120, 80});
        for (Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_A})
            QTest::keyClick(view.view.get(), key);
        QTest::mousePress(view->viewport(), Qt::RightButton, {}, QPoint(5, 5));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::MetaModifier, QPoint(5, 5));
        view.startDrag(Qt::MoveAction);
        view.either([](auto &v) {
            v.hideColumn(0);
            v.showColumnWithIdentifier(u"A"_s);
        });

        QCOMPARE(delegate.calls, QStringList{u"return"_s});
        QCOMPARE(view.contextMenuRow(), -1);
        QVERIFY(view.either([](auto &v) { return v.tableColumns().isEmpty() && v.numberOfColumns() == 0; }));
        if (view.table()) {
            QCOMPARE(view.table()->selectedRow(), -1);
            QVERIFY(!view.table()->isEditableAtColumn(0, 0));
            return;
        }
        // The outline's own: a click with the marker hidden, disabling and the rows it logs.
        ZARNOutlineView &outline = *view.outline();
        outline.setShowsIndentationMarker(false);
        QTest::mouseClick(outline.viewport(), Qt::LeftButton, {}, {5, 5});
        outline.setEnabled(false);
        outline.setEnabled(true);
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"^numberOfRows:  0 \\([0-9a-f]+\\)$"_s));
        outline.tile2();
    }
};

QTEST_MAIN(TestItemViewBehaviour)
#include "tst_itemviewbehaviour.moc"
