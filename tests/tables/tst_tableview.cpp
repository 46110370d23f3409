// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSTableHeaderView.h>
#include <Brixel/ZARNTableColumn.h>
#include <Brixel/ZARNTableView.h>
#include <Brixel/ZARNTableViewDataSource.h>
#include <Brixel/ZARNTableViewDelegate.h>

#include <QDrag>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Point {
    int row;
    int column;
    friend bool operator==(const Point &, const Point &) = default;
};

QString describe(const std::optional<Point> &point)
{
    return point ? u"(%1, %2)"_s.arg(point->row).arg(point->column) : u"none"_s;
}

class RecordingDelegate : public ZARNTableViewDelegate
{
public:
    void tableViewReturnKey(ZARNTableView *table) override
    {
        QCOMPARE_NE(table, nullptr);
        ++returnKeys;
    }
    void tableViewDeleteBackward(ZARNTableView *table) override
    {
        QCOMPARE_NE(table, nullptr);
        ++deletes;
    }
    void tableViewSelectionIsChanging(const ZARNNotification &notification) override
    {
        notifications.append(notification);
    }
    void tableViewWillTabToColumn(ZARNTableView *, int &column, int &row, int fromColumn, int fromRow) override
    {
        tabs.append({{row, column}, {fromRow, fromColumn}});
        if (redirect)
            std::tie(row, column) = std::pair(redirect->row, redirect->column);
    }
    std::optional<bool> tableViewShouldEditTableColumn(ZARNTableView *, ZARNTableColumn *, int row) override
    {
        return editableRows.isEmpty() ? std::nullopt : std::optional<bool>(editableRows.contains(row));
    }

    int returnKeys = 0;
    int deletes = 0;
    QList<ZARNNotification> notifications;
    QList<std::pair<Point, Point>> tabs; // target, from
    std::optional<Point> redirect;
    QList<int> editableRows;
};

/// A model whose items read "r<row>c<column>", with columns named A, B, C.., and that can answer the context-click question.
class DataSourceModel : public QStandardItemModel, public ZARNTableViewDataSource
{
public:
    DataSourceModel(int rows, int columns)
        : QStandardItemModel(rows, columns)
    {
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < columns; ++column)
                setItem(row, column, new QStandardItem(u"r%1c%2"_s.arg(row).arg(column)));
        for (int column = 0; column < columns; ++column)
            setHorizontalHeaderItem(column, new QStandardItem(QString(QChar(u'A' + column))));
    }
    bool respondsToTableviewShouldSelectRow() const override { return responds; }
    std::optional<bool> tableViewShouldSelectRow(ZARNTableView *, int row) override
    {
        asked.append(row);
        return answer;
    }
    QString text(int row, int column) const { return index(row, column).data().toString(); }
    void setReadOnly(Point point) { item(point.row, point.column)->setEditable(false); }

    bool responds = false;
    std::optional<bool> answer;
    QList<int> asked;
};

class TestView : public ZARNTableView
{
public:
    using ZARNTableView::closeEditor;
    using ZARNTableView::startDrag;

    Qt::DropAction execDrag(QDrag *drag, Qt::DropActions, Qt::DropAction) override
    {
        dragPixmapSize = drag->pixmap().size();
        dragText = drag->mimeData()->hasFormat(u"application/x-qabstractitemmodeldatalist"_s);
        prepAtExec = inDragPrep();
        return dropResult;
    }
    void viewDidEndLiveResize() override
    {
        ++liveResizeEnds;
        ZARNTableView::viewDidEndLiveResize();
    }
    void paintEvent(QPaintEvent *event) override
    {
        prepWhilePainting.append(inDragPrep());
        ZARNTableView::paintEvent(event);
    }

    Qt::DropAction dropResult = Qt::IgnoreAction;
    QSize dragPixmapSize;
    bool dragText = false;
    bool prepAtExec = true;
    QList<bool> prepWhilePainting;
    int liveResizeEnds = 0;
};

QList<int> selectedRows(const QTableView &view)
{
    QList<int> rows;
    for (const QModelIndex &index : view.selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void selectRows(QTableView &view, const QList<int> &rows)
{
    view.selectionModel()->clearSelection();
    for (int row : rows)
        view.selectionModel()->select(view.model()->index(row, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QPoint centreOfRow(const QTableView &view, int row)
{
    return view.visualRect(view.model()->index(row, 0)).center();
}

/// The cell whose editor is open, by model row and column.
std::optional<Point> openEditor(const QTableView &view)
{
    for (int row = 0; row < view.model()->rowCount(); ++row)
        for (int column = 0; column < view.model()->columnCount(); ++column)
            if (view.indexWidget(view.model()->index(row, column)))
                return Point{row, column};
    return std::nullopt;
}

QLineEdit *editorAt(const QTableView &view, Point point)
{
    return qobject_cast<QLineEdit *>(view.indexWidget(view.model()->index(point.row, point.column)));
}

using Setup = std::function<void(TestView &, DataSourceModel &, RecordingDelegate &)>;

} // namespace

Q_DECLARE_METATYPE(Point)
Q_DECLARE_METATYPE(Setup)

class TestTableView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keys_data();
    void keys();
    void contextClick_data();
    void contextClick();
    void controlClick_data();
    void controlClick();
    void menuIsNotOwned();
    void editingMoves_data();
    void editingMoves();
    void movesCommitEditorsThatDoNotCommitThemselves();
    void dragPicture_data();
    void dragPicture();
    void liveResize();
    void gradientFollowsActivation();
    void worksWithoutModel();
};

void TestTableView::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("startRow");
    QTest::addColumn<bool>("withDelegate");
    QTest::addColumn<int>("returnKeys");
    QTest::addColumn<int>("deletes");
    QTest::addColumn<int>("changes");
    QTest::addColumn<int>("selectedRow");

    // Five rows "r0c0".. with the start row selected and current.
    QTest::newRow("return") << int(Qt::Key_Return) << 1 << true << 1 << 0 << 0 << 1;
    QTest::newRow("enter") << int(Qt::Key_Enter) << 1 << true << 1 << 0 << 0 << 1;
    QTest::newRow("backspace") << int(Qt::Key_Backspace) << 1 << true << 0 << 1 << 0 << 1;
    QTest::newRow("delete") << int(Qt::Key_Delete) << 1 << true << 0 << 1 << 0 << 1;
    QTest::newRow("return without a delegate is consumed") << int(Qt::Key_Return) << 1 << false << 0 << 0 << 0 << 1;
    QTest::newRow("down") << int(Qt::Key_Down) << 1 << true << 0 << 0 << 1 << 2;
    QTest::newRow("up") << int(Qt::Key_Up) << 1 << true << 0 << 0 << 1 << 0;
    QTest::newRow("up on the first row changes nothing") << int(Qt::Key_Up) << 0 << true << 0 << 0 << 0 << 0;
    QTest::newRow("down on the last row changes nothing") << int(Qt::Key_Down) << 4 << true << 0 << 0 << 0 << 4;
    QTest::newRow("down without a delegate still signals") << int(Qt::Key_Down) << 1 << false << 0 << 0 << 1 << 2;
    QTest::newRow("typing does not select by text") << int(Qt::Key_R) << 1 << true << 0 << 0 << 0 << 1;
    QTest::newRow("other keys go to the table") << int(Qt::Key_PageDown) << 1 << true << 0 << 0 << 0 << 4;
}

void TestTableView::keys()
{
    QFETCH(int, key);
    QFETCH(int, startRow);
    QFETCH(bool, withDelegate);
    QFETCH(int, returnKeys);
    QFETCH(int, deletes);
    QFETCH(int, changes);
    QFETCH(int, selectedRow);

    DataSourceModel model(5, 2);
    TestView view;
    view.setModel(&model);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    RecordingDelegate delegate;
    if (withDelegate)
        view.setDelegate(&delegate);
    view.resize(200, 400);
    view.setCurrentIndex(model.index(startRow, 0));
    QSignalSpy changing(&view, &ZARNTableView::selectionIsChanging);

    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_R ? u"r"_s : QString());
    QApplication::sendEvent(&view, &press);

    QCOMPARE(delegate.returnKeys, returnKeys);
    QCOMPARE(delegate.deletes, deletes);
    QCOMPARE(changing.size(), changes);
    QCOMPARE(view.selectedRow(), selectedRow);
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Backspace || key == Qt::Key_Delete)
        QVERIFY(press.isAccepted());
    QCOMPARE(delegate.notifications.size(), withDelegate ? changes : 0);
    for (const ZARNNotification &notification : std::as_const(delegate.notifications)) {
        QCOMPARE(notification.name, u"NSTableViewSelectionIsChangingNotification"_s);
        QCOMPARE(notification.object.data(), &view);
        QVERIFY(notification.userInfo.isEmpty());
    }
}

void TestTableView::contextClick_data()
{
    QTest::addColumn<bool>("isDataSource");
    QTest::addColumn<bool>("responds");
    QTest::addColumn<std::optional<bool>>("answer");
    QTest::addColumn<int>("row");
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<QList<int>>("asked");

    // Rows 1 and 2 of six are selected before the click; row -1 clicks below the last row.
    const auto yes = std::optional<bool>(true), no = std::optional<bool>(false), silent = std::optional<bool>();
    QTest::newRow("plain model, unselected row") << false << false << silent << 4 << QList<int>{4} << QList<int>{};
    QTest::newRow("plain model, selected row collapses") << false << false << silent << 2 << QList<int>{2} << QList<int>{};
    QTest::newRow("not opted in is never asked") << true << false << no << 4 << QList<int>{4} << QList<int>{};
    QTest::newRow("not opted in, selected row collapses") << true << false << yes << 1 << QList<int>{1} << QList<int>{};
    QTest::newRow("opted in, allowed") << true << true << yes << 4 << QList<int>{4} << QList<int>{4};
    QTest::newRow("opted in, refused") << true << true << no << 4 << QList<int>{1, 2} << QList<int>{4};
    QTest::newRow("opted in, no answer") << true << true << silent << 4 << QList<int>{1, 2} << QList<int>{4};
    QTest::newRow("opted in, selected row keeps the selection") << true << true << yes << 2 << QList<int>{1, 2}
                                                                << QList<int>{};
    QTest::newRow("below the last row") << true << false << yes << -1 << QList<int>{1, 2} << QList<int>{};
}

void TestTableView::contextClick()
{
    QFETCH(bool, isDataSource);
    QFETCH(bool, responds);
    QFETCH(std::optional<bool>, answer);
    QFETCH(int, row);
    QFETCH(QList<int>, selected);
    QFETCH(QList<int>, asked);

    DataSourceModel dataSource(6, 2);
    QStandardItemModel plain(6, 2);
    dataSource.responds = responds;
    dataSource.answer = answer;
    TestView view;
    view.setModel(isDataSource ? static_cast<QAbstractItemModel *>(&dataSource) : &plain);
    view.resize(300, 400);
    QMenu menu;
    menu.addAction(u"Open"_s);
    view.setMenu(&menu);
    QSignalSpy shown(&menu, &QMenu::aboutToShow);
    selectRows(view, {1, 2});

    const QPoint position = row >= 0 ? centreOfRow(view, row) : QPoint(10, view.viewport()->height() - 2);
    QTest::mousePress(view.viewport(), Qt::RightButton, {}, position);

    QCOMPARE(selectedRows(view), selected);
    QCOMPARE(dataSource.asked, asked);
    QCOMPARE(shown.size(), 1);
    QVERIFY(menu.isVisible());
    QCOMPARE(view.contextMenuRow(), row);
    menu.hide();
    QCOMPARE(view.contextMenuRow(), -1);
}

void TestTableView::controlClick_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<bool>("menuShown");

    // Row 1 is selected; the click lands on row 3.
    QTest::newRow("control-click selects, then opens the menu")
        << QEvent::MouseButtonPress << Qt::KeyboardModifiers(Qt::MetaModifier) << QList<int>{3} << true;
    QTest::newRow("control-double-click only opens the menu")
        << QEvent::MouseButtonDblClick << Qt::KeyboardModifiers(Qt::MetaModifier) << QList<int>{1} << true;
    QTest::newRow("a plain click opens no menu")
        << QEvent::MouseButtonPress << Qt::KeyboardModifiers() << QList<int>{3} << false;
}

void TestTableView::controlClick()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QList<int>, selected);
    QFETCH(bool, menuShown);

    DataSourceModel model(5, 2);
    TestView view;
    view.setModel(&model);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.resize(300, 400);
    QMenu menu;
    menu.addAction(u"Open"_s);
    view.setMenu(&menu);
    selectRows(view, {1});

    const QPoint position = centreOfRow(view, 3);
    QMouseEvent click(type, position, view.viewport()->mapToGlobal(position), Qt::LeftButton, Qt::LeftButton, modifiers);
    QApplication::sendEvent(view.viewport(), &click);

    QCOMPARE(selectedRows(view), selected);
    QCOMPARE(menu.isVisible(), menuShown);
    QCOMPARE(view.contextMenuRow(), menuShown ? 3 : -1);
}

void TestTableView::menuIsNotOwned()
{
    DataSourceModel model(3, 1);
    ZARNTableView view;
    view.setModel(&model);
    auto menu = std::make_unique<QMenu>();
    view.setMenu(menu.get());
    menu.reset();
    QCOMPARE(view.menu(), nullptr);
    QTest::mousePress(view.viewport(), Qt::RightButton, {}, centreOfRow(view, 1));
    QCOMPARE(selectedRows(view), QList<int>{1});
    QCOMPARE(view.contextMenuRow(), -1);
}

void TestTableView::editingMoves_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Point>("start");
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<QString>("editing");
    QTest::addColumn<bool>("committed");
    QTest::addColumn<QStringList>("tabs");

    // A 4 x 3 table, every cell editable unless the setup says otherwise. Cells are named by
    // model row and column; the delegate's tab notices by the table's own column order.
    const Setup none = [](TestView &, DataSourceModel &, RecordingDelegate &) {};
    const auto readOnly = [](QList<Point> points) {
        return Setup([points](TestView &, DataSourceModel &model, RecordingDelegate &) {
            for (Point point : points)
                model.setReadOnly(point);
        });
    };
    const auto onlyEditable = [](Point keep) {
        return Setup([keep](TestView &, DataSourceModel &model, RecordingDelegate &) {
            for (int row = 0; row < 4; ++row)
                for (int column = 0; column < 3; ++column)
                    if (!(Point{row, column} == keep))
                        model.setReadOnly({row, column});
        });
    };
    const auto redirect = [](Point to) {
        return Setup([to](TestView &, DataSourceModel &, RecordingDelegate &delegate) { delegate.redirect = to; });
    };
    const int tab = Qt::Key_Tab, backtab = Qt::Key_Backtab, enter = Qt::Key_Return;

    QTest::newRow("tab: next cell") << tab << Point{1, 1} << none << "(1, 2)" << true << QStringList{u"(1, 2) from (1, 1)"_s};
    QTest::newRow("tab: end of row") << tab << Point{1, 2} << none << "(2, 0)" << true << QStringList{u"(2, 0) from (1, 2)"_s};
    QTest::newRow("tab: last cell wraps") << tab << Point{3, 2} << none << "(0, 0)" << true << QStringList{u"(0, 0) from (3, 2)"_s};
    QTest::newRow("tab: skips read-only cells") << tab << Point{1, 1} << readOnly({{1, 2}, {2, 0}}) << "(2, 1)" << true
                                                << QStringList{u"(2, 1) from (1, 1)"_s};
    QTest::newRow("tab: only editable cell") << tab << Point{1, 1} << onlyEditable({1, 1}) << "(1, 1)" << true
                                             << QStringList{u"(1, 1) from (1, 1)"_s};
    QTest::newRow("tab: follows the shown column order")
        << tab << Point{1, 0}
        << Setup([](TestView &view, DataSourceModel &, RecordingDelegate &) { view.horizontalHeader()->moveSection(2, 0); })
        << "(1, 1)" << true << QStringList{u"(1, 2) from (1, 1)"_s};
    QTest::newRow("tab: skips hidden columns")
        << tab << Point{1, 0} << Setup([](TestView &view, DataSourceModel &, RecordingDelegate &) { view.setColumnHidden(1, true); })
        << "(1, 2)" << true << QStringList{u"(1, 1) from (1, 0)"_s};
    QTest::newRow("tab: skips columns hidden by identifier, in their new order")
        << tab << Point{1, 2}
        << Setup([](TestView &view, DataSourceModel &, RecordingDelegate &) {
               view.hideColumnWithIdentifier(u"A"_s);
               view.showColumnWithIdentifier(u"A"_s); // now B, C, A
               view.hideColumnWithIdentifier(u"B"_s); // C, A
           })
        << "(1, 0)" << true << QStringList{u"(1, 1) from (1, 0)"_s};
    QTest::newRow("tab: skips read-only columns")
        << tab << Point{1, 2}
        << Setup([](TestView &view, DataSourceModel &, RecordingDelegate &) { view.tableColumns().at(0)->setEditable(false); })
        << "(2, 1)" << true << QStringList{u"(2, 1) from (1, 2)"_s};
    QTest::newRow("tab: the delegate decides which rows")
        << tab << Point{1, 1}
        << Setup([](TestView &, DataSourceModel &, RecordingDelegate &delegate) { delegate.editableRows = {3}; })
        << "(3, 0)" << true << QStringList{u"(3, 0) from (1, 1)"_s};
    QTest::newRow("tab: the delegate opens a read-only column")
        << tab << Point{1, 2}
        << Setup([](TestView &view, DataSourceModel &, RecordingDelegate &delegate) {
               view.tableColumns().at(0)->setEditable(false);
               delegate.editableRows = {0, 1, 2, 3};
           })
        << "(2, 0)" << true << QStringList{u"(2, 0) from (1, 2)"_s};
    QTest::newRow("tab: delegate redirects") << tab << Point{1, 1} << redirect({3, 0}) << "(3, 0)" << true
                                             << QStringList{u"(1, 2) from (1, 1)"_s};
    QTest::newRow("tab: delegate redirects outside the table") << tab << Point{1, 1} << redirect({9, 0}) << "none" << true
                                                               << QStringList{u"(1, 2) from (1, 1)"_s};
    QTest::newRow("backtab: previous cell") << backtab << Point{1, 1} << none << "(1, 0)" << true << QStringList{};
    QTest::newRow("backtab: start of row") << backtab << Point{1, 0} << none << "(0, 2)" << true << QStringList{};
    QTest::newRow("backtab: first cell wraps") << backtab << Point{0, 0} << none << "(3, 2)" << true << QStringList{};
    QTest::newRow("backtab: delegate is not asked") << backtab << Point{1, 1} << redirect({3, 0}) << "(1, 0)" << true
                                                    << QStringList{};
    QTest::newRow("return: next row") << enter << Point{1, 1} << none << "(2, 1)" << true << QStringList{};
    QTest::newRow("return: last row wraps") << enter << Point{3, 1} << none << "(0, 1)" << true << QStringList{};
    QTest::newRow("return: back to itself") << enter << Point{1, 1} << readOnly({{0, 1}, {2, 1}, {3, 1}}) << "(1, 1)"
                                            << true << QStringList{};
    QTest::newRow("return: delegate is not asked") << enter << Point{1, 1} << redirect({3, 0}) << "(2, 1)" << true
                                                   << QStringList{};
    QTest::newRow("escape reverts and stops") << int(Qt::Key_Escape) << Point{1, 1} << none << "none" << false
                                              << QStringList{};
}

void TestTableView::editingMoves()
{
    QFETCH(int, key);
    QFETCH(Point, start);
    QFETCH(Setup, setup);
    QFETCH(QString, editing);
    QFETCH(bool, committed);
    QFETCH(QStringList, tabs);

    DataSourceModel model(4, 3);
    TestView view;
    view.setModel(&model);
    RecordingDelegate delegate;
    view.setDelegate(&delegate);
    setup(view, model, delegate);
    view.resize(400, 300);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    view.edit(model.index(start.row, start.column));
    QLineEdit *editor = editorAt(view, start);
    QVERIFY(editor);
    QTest::keyClicks(editor, u"new"_s);
    const QString typed = editor->text(), original = model.text(start.row, start.column);
    QCOMPARE_NE(typed, original);
    QTest::keyClick(editor, Qt::Key(key));
    QCoreApplication::processEvents(); // Return reaches the view through a queued call

    QCOMPARE(model.text(start.row, start.column), committed ? typed : original);
    const std::optional<Point> open = openEditor(view);
    QCOMPARE(describe(open), editing);
    if (open) {
        const QLineEdit *next = editorAt(view, *open);
        QVERIFY(next);
        QVERIFY(!next->text().isEmpty());
        QCOMPARE(next->selectedText(), next->text());
        QCOMPARE(selectedRows(view), QList<int>{open->row});
        QCOMPARE(view.currentIndex(), model.index(open->row, open->column));
    }
    QStringList seen;
    for (const auto &[target, from] : std::as_const(delegate.tabs))
        seen.append(describe(target) + u" from "_s + describe(from));
    QCOMPARE(seen, tabs);
}

void TestTableView::movesCommitEditorsThatDoNotCommitThemselves()
{
    DataSourceModel model(4, 3);
    TestView view;
    view.setModel(&model);
    view.edit(model.index(1, 1));
    QLineEdit *editor = editorAt(view, {1, 1});
    QVERIFY(editor);
    editor->setText(u"direct"_s);

    view.closeEditor(editor, QAbstractItemDelegate::EditNextItem);
    QCOMPARE(model.text(1, 1), u"direct"_s);
    QCOMPARE(describe(openEditor(view)), u"(1, 2)"_s);

    // Without a move, closing is Qt's own and commits nothing.
    editor = editorAt(view, {1, 2});
    editor->setText(u"dropped"_s);
    view.closeEditor(editor, QAbstractItemDelegate::NoHint);
    QCOMPARE(model.text(1, 2), u"r1c2"_s);
    QCOMPARE(describe(openEditor(view)), u"none"_s);
}

void TestTableView::dragPicture_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<QAbstractItemView::DragDropMode>("mode");
    QTest::addColumn<bool>("overwrite");
    QTest::addColumn<Qt::DropAction>("result");
    QTest::addColumn<QStringList>("firstColumn");

    const QStringList untouched{u"r0c0"_s, u"r1c0"_s, u"r2c0"_s, u"r3c0"_s, u"r4c0"_s};
    const auto DragDrop = QAbstractItemView::DragDrop;
    QTest::newRow("copy leaves the rows") << QList<int>{1, 2} << DragDrop << false << Qt::CopyAction << untouched;
    QTest::newRow("ignored drop leaves the rows") << QList<int>{1, 2} << DragDrop << false << Qt::IgnoreAction << untouched;
    QTest::newRow("move removes the rows") << QList<int>{1, 2} << DragDrop << false << Qt::MoveAction
                                           << QStringList{u"r0c0"_s, u"r3c0"_s, u"r4c0"_s};
    QTest::newRow("move in overwrite mode clears the cells")
        << QList<int>{3} << DragDrop << true << Qt::MoveAction
        << QStringList{u"r0c0"_s, u"r1c0"_s, u"r2c0"_s, QString(), u"r4c0"_s};
    QTest::newRow("internal move elsewhere leaves the rows")
        << QList<int>{1, 2} << QAbstractItemView::InternalMove << false << Qt::MoveAction << untouched;
    QTest::newRow("nothing selected, no drag") << QList<int>{} << DragDrop << false << Qt::MoveAction << untouched;
}

void TestTableView::dragPicture()
{
    QFETCH(QList<int>, selected);
    QFETCH(QAbstractItemView::DragDropMode, mode);
    QFETCH(bool, overwrite);
    QFETCH(Qt::DropAction, result);
    QFETCH(QStringList, firstColumn);

    DataSourceModel model(5, 2);
    TestView view;
    view.setModel(&model);
    view.setDragDropMode(mode);
    view.setDragDropOverwriteMode(overwrite);
    view.resize(300, 300);
    selectRows(view, selected);
    view.dropResult = result;
    QRect picture;
    for (int row : selected)
        picture |= view.visualRect(model.index(row, 0)) | view.visualRect(model.index(row, 1));
    view.prepWhilePainting.clear();

    view.startDrag(Qt::CopyAction | Qt::MoveAction);

    QVERIFY(!view.inDragPrep());
    if (selected.isEmpty()) {
        QVERIFY(!view.dragPixmapSize.isValid());
        QVERIFY(view.prepWhilePainting.isEmpty());
    } else {
        QCOMPARE(view.dragPixmapSize, picture.intersected(view.viewport()->rect()).size());
        QVERIFY(view.dragText);
        QVERIFY(!view.prepAtExec);
        QVERIFY(!view.prepWhilePainting.isEmpty());
        QVERIFY(!view.prepWhilePainting.contains(false));
    }
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.text(row, 0));
    QCOMPARE(texts, firstColumn);
}

void TestTableView::liveResize()
{
    DataSourceModel model(3, 2);
    TestView view;
    view.setModel(&model);
    view.resize(200, 200);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTRY_VERIFY(!view.inLiveResize());
    view.liveResizeEnds = 0;

    view.resize(260, 220);
    QVERIFY(view.inLiveResize());
    view.resize(300, 240);
    QVERIFY(view.inLiveResize());
    QCOMPARE(view.liveResizeEnds, 0);
    QTRY_COMPARE(view.liveResizeEnds, 1);
    QVERIFY(!view.inLiveResize());
}

void TestTableView::gradientFollowsActivation()
{
    ZARNTableView view;
    QVERIFY(qobject_cast<ZARNNSTableHeaderView *>(view.horizontalHeader()));
    const auto useHighlight = [&view](QColor colour) {
        QPalette palette = view.palette();
        palette.setColor(QPalette::Active, QPalette::Highlight, colour);
        view.setPalette(palette);
    };
    const auto middleHue = [](const QImage &image) { return image.pixelColor(32, image.height() / 2).hsvHue(); };

    useHighlight(QColor(0, 80, 220));
    const QImage blue = view.highlightGradientImage();
    useHighlight(QColor(220, 40, 40));
    QCOMPARE(view.highlightGradientImage(), blue); // kept until the application comes back
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(view.highlightGradientImage(), blue);

    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    const QImage red = view.highlightGradientImage();
    QCOMPARE_NE(middleHue(red), middleHue(blue));
    QCOMPARE(middleHue(red), QColor(220, 40, 40).hsvHue());
}

void TestTableView::worksWithoutModel()
{
    TestView view;
    RecordingDelegate delegate;
    view.setDelegate(&delegate);
    QMenu menu;
    view.setMenu(&menu);
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_A})
        QTest::keyClick(&view, key);
    QTest::mousePress(view.viewport(), Qt::RightButton, {}, QPoint(5, 5));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::MetaModifier, QPoint(5, 5));
    view.startDrag(Qt::MoveAction);
    view.hideColumn(0);
    view.showColumnWithIdentifier(u"A"_s);

    QCOMPARE(delegate.returnKeys, 1);
    QVERIFY(delegate.notifications.isEmpty());
    QCOMPARE(view.selectedRow(), -1);
    QCOMPARE(view.numberOfColumns(), 0);
    QVERIFY(!view.isEditableAtColumn(0, 0));
    QVERIFY(!view.dragPixmapSize.isValid());
}

QTEST_MAIN(TestTableView)
#include "tst_tableview.moc"
