// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSTableHeaderView.h>
#include <Brixel/ZARNSystemVersion.h>
#include <Brixel/ZARNTableColumn.h>
#include <Brixel/ZARNTableView.h>
#include <Brixel/ZARNTableViewDataSource.h>
#include <Brixel/ZARNTableViewDelegate.h>
#include <Brixel/ZARNTextFieldCell.h>

#include "BrixelTest.h"

#include <QDrag>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString cellName(int row, int column)
{
    return u"(%1, %2)"_s.arg(row).arg(column);
}

class RecordingDelegate : public ZARNTableViewDelegate
{
public:
    void tableViewReturnKey(ZARNTableView *) override { ++returnKeys; }
    void tableViewDeleteBackward(ZARNTableView *) override { ++deletes; }
    void tableViewSelectionIsChanging(const ZARNNotification &notice) override { notices.append(notice); }
    void tableViewWillTabToColumn(ZARNTableView *, int &column, int &row, int fromColumn, int fromRow) override
    {
        tabs.append(cellName(row, column) + u" from "_s + cellName(fromRow, fromColumn));
        if (redirect)
            std::tie(row, column) = *redirect;
    }
    std::optional<bool> tableViewShouldEditTableColumn(ZARNTableView *, ZARNTableColumn *, int row) override
    {
        return editableRows ? std::optional<bool>(editableRows->contains(row)) : std::nullopt;
    }

    int returnKeys = 0;
    int deletes = 0;
    QList<ZARNNotification> notices;
    QStringList tabs;
    std::optional<std::pair<int, int>> redirect;
    std::optional<QList<int>> editableRows;
};

/// Items read "r<row>c<column>", columns are named A, B, C..; answers the context-click question.
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
        dragPictureSize = drag->pixmap().size();
        prepAtExec = inDragPrep();
        return dropResult;
    }
    void viewDidEndLiveResize() override
    {
        ++liveResizeEnds;
        ZARNTableView::viewDidEndLiveResize();
    }

    Qt::DropAction dropResult = Qt::IgnoreAction;
    QSize dragPictureSize;
    bool prepAtExec = true;
    int liveResizeEnds = 0;
};

/// Records, for each cell it draws, whether the view was preparing a drag picture and whether
/// the contents were to be drawn highlighted.
class RecordingCell : public ZARNTextFieldCell
{
public:
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        paints.append({static_cast<const ZARNTableView *>(option.widget)->inDragPrep(),
                       option.state.testFlag(QStyle::State_Selected)});
        ZARNTextFieldCell::paint(painter, option, index);
    }
    mutable QList<std::pair<bool, bool>> paints;
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
        view.selectionModel()->select(view.model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QPoint centreOfRow(const QTableView &view, int row)
{
    return view.visualRect(view.model()->index(row, 0)).center();
}

/// The model cell whose editor is open, "none" without one.
QString openEditor(const QTableView &view)
{
    for (int row = 0; row < view.model()->rowCount(); ++row)
        for (int column = 0; column < view.model()->columnCount(); ++column)
            if (view.indexWidget(view.model()->index(row, column)))
                return cellName(row, column);
    return u"none"_s;
}

QLineEdit *editorAt(const QTableView &view, int row, int column)
{
    return qobject_cast<QLineEdit *>(view.indexWidget(view.model()->index(row, column)));
}

using Setup = std::function<void(TestView &, DataSourceModel &, RecordingDelegate &)>;

} // namespace

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
    void editingMoves_data();
    void editingMoves();
    void dragPicture_data();
    void dragPicture();
    void liveResize();
    void worksWithoutModelOrMenu();
    void lookChangesRepaint_data();
    void lookChangesRepaint();
};

void TestTableView::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("startRow");
    QTest::addColumn<bool>("withDelegate");
    QTest::addColumn<QList<int>>("returnsDeletesChanges");
    QTest::addColumn<int>("selectedRow");

    // Five rows; the start row is selected and current.
    QTest::newRow("return") << int(Qt::Key_Return) << 1 << true << QList<int>{1, 0, 0} << 1;
    QTest::newRow("enter") << int(Qt::Key_Enter) << 1 << true << QList<int>{1, 0, 0} << 1;
    QTest::newRow("backspace") << int(Qt::Key_Backspace) << 1 << true << QList<int>{0, 1, 0} << 1;
    QTest::newRow("delete") << int(Qt::Key_Delete) << 1 << true << QList<int>{0, 1, 0} << 1;
    QTest::newRow("return without a delegate") << int(Qt::Key_Return) << 1 << false << QList<int>{0, 0, 0} << 1;
    QTest::newRow("down") << int(Qt::Key_Down) << 1 << true << QList<int>{0, 0, 1} << 2;
    QTest::newRow("up") << int(Qt::Key_Up) << 1 << true << QList<int>{0, 0, 1} << 0;
    QTest::newRow("up on the first row") << int(Qt::Key_Up) << 0 << true << QList<int>{0, 0, 0} << 0;
    QTest::newRow("down on the last row") << int(Qt::Key_Down) << 4 << true << QList<int>{0, 0, 0} << 4;
    QTest::newRow("down without a delegate signals") << int(Qt::Key_Down) << 1 << false << QList<int>{0, 0, 1} << 2;
    QTest::newRow("typing does not select by text") << int(Qt::Key_R) << 1 << true << QList<int>{0, 0, 0} << 1;
    QTest::newRow("other keys go to the table") << int(Qt::Key_PageDown) << 1 << true << QList<int>{0, 0, 0} << 4;
}

void TestTableView::keys()
{
    QFETCH(int, key);
    QFETCH(int, startRow);
    QFETCH(bool, withDelegate);
    QFETCH(QList<int>, returnsDeletesChanges);
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

    const QList<int> expected = withDelegate ? returnsDeletesChanges : QList<int>{0, 0, returnsDeletesChanges.at(2)};
    QCOMPARE((QList<int>{delegate.returnKeys, delegate.deletes, int(changing.size())}), expected);
    QCOMPARE(view.selectedRow(), selectedRow);
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Backspace || key == Qt::Key_Delete)
        QVERIFY(press.isAccepted());
    QCOMPARE(delegate.notices.size(), withDelegate ? changing.size() : 0);
    for (const ZARNNotification &notice : std::as_const(delegate.notices)) {
        QCOMPARE(notice.name, u"NSTableViewSelectionIsChangingNotification"_s);
        QCOMPARE(notice.object.data(), &view);
        QVERIFY(notice.userInfo.isEmpty());
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

    // Rows 1 and 2 of six are selected before the click; row -1 is below the last row.
    const auto yes = std::optional<bool>(true), no = std::optional<bool>(false), silent = std::optional<bool>();
    QTest::newRow("plain model, unselected row") << false << false << silent << 4 << QList<int>{4} << QList<int>{};
    QTest::newRow("plain model, selected row collapses") << false << false << silent << 2 << QList<int>{2} << QList<int>{};
    QTest::newRow("not opted in is never asked") << true << false << no << 4 << QList<int>{4} << QList<int>{};
    QTest::newRow("not opted in, selected row collapses") << true << false << yes << 1 << QList<int>{1} << QList<int>{};
    QTest::newRow("opted in, allowed") << true << true << yes << 4 << QList<int>{4} << QList<int>{4};
    QTest::newRow("opted in, refused") << true << true << no << 4 << QList<int>{1, 2} << QList<int>{4};
    QTest::newRow("opted in, no answer") << true << true << silent << 4 << QList<int>{1, 2} << QList<int>{4};
    QTest::newRow("opted in, selected row kept") << true << true << yes << 2 << QList<int>{1, 2} << QList<int>{};
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
    view.setMenu(&menu);
    QSignalSpy shown(&menu, &QMenu::aboutToShow);
    selectRows(view, {1, 2});

    const QPoint position = row >= 0 ? centreOfRow(view, row) : QPoint(10, view.viewport()->height() - 2);
    QTest::mousePress(view.viewport(), Qt::RightButton, {}, position);

    QCOMPARE(selectedRows(view), selected);
    QCOMPARE(dataSource.asked, asked);
    QCOMPARE(shown.size(), 1);
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
    QTest::newRow("a plain click opens no menu") << QEvent::MouseButtonPress << Qt::KeyboardModifiers() << QList<int>{3} << false;
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
    view.setMenu(&menu);
    selectRows(view, {1});

    const QPoint position = centreOfRow(view, 3);
    QMouseEvent click(type, position, view.viewport()->mapToGlobal(position), Qt::LeftButton, Qt::LeftButton, modifiers);
    QApplication::sendEvent(view.viewport(), &click);

    QCOMPARE(selectedRows(view), selected);
    QCOMPARE(menu.isVisible(), menuShown);
    QCOMPARE(view.contextMenuRow(), menuShown ? 3 : -1);
}

void TestTableView::editingMoves_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QPoint>("start"); // x = row, y = column of the model
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<QString>("editing");
    QTest::addColumn<QStringList>("tabs"); // the delegate's notices, in shown-column terms

    // A 4 x 3 table, every cell editable unless the setup says otherwise.
    const Setup none = [](TestView &, DataSourceModel &, RecordingDelegate &) {};
    const auto setup = [](auto change) { return Setup(change); };
    const int tab = Qt::Key_Tab, backtab = Qt::Key_Backtab, enter = Qt::Key_Return;

    QTest::newRow("tab: next cell") << tab << QPoint(1, 1) << none << "(1, 2)" << QStringList{u"(1, 2) from (1, 1)"_s};
    QTest::newRow("tab: last cell wraps") << tab << QPoint(3, 2) << none << "(0, 0)" << QStringList{u"(0, 0) from (3, 2)"_s};
    QTest::newRow("backtab: first cell wraps, no notice") << backtab << QPoint(0, 0) << none << "(3, 2)" << QStringList{};
    QTest::newRow("return: next row, no notice") << enter << QPoint(1, 1) << none << "(2, 1)" << QStringList{};
    QTest::newRow("return: back to itself")
        << enter << QPoint(1, 1) << setup([](TestView &, DataSourceModel &model, RecordingDelegate &) {
               for (int row : {0, 2, 3})
                   model.item(row, 1)->setEditable(false);
           })
        << "(1, 1)" << QStringList{};
    QTest::newRow("tab: follows the shown columns")
        << tab << QPoint(1, 2) << setup([](TestView &view, DataSourceModel &, RecordingDelegate &) {
               view.hideColumnWithIdentifier(u"A"_s);
               view.showColumnWithIdentifier(u"A"_s); // B, C, A
               view.hideColumnWithIdentifier(u"B"_s); // C, A
           })
        << "(1, 0)" << QStringList{u"(1, 1) from (1, 0)"_s};
    QTest::newRow("tab: skips read-only columns")
        << tab << QPoint(1, 2) << setup([](TestView &view, DataSourceModel &, RecordingDelegate &) {
               view.tableColumns().at(0)->setEditable(false);
           })
        << "(2, 1)" << QStringList{u"(2, 1) from (1, 2)"_s};
    QTest::newRow("tab: the delegate decides")
        << tab << QPoint(1, 1) << setup([](TestView &, DataSourceModel &, RecordingDelegate &delegate) {
               delegate.editableRows = QList<int>{3};
           })
        << "(3, 0)" << QStringList{u"(3, 0) from (1, 1)"_s};
    QTest::newRow("tab: the delegate opens a read-only column")
        << tab << QPoint(1, 2) << setup([](TestView &view, DataSourceModel &, RecordingDelegate &delegate) {
               view.tableColumns().at(0)->setEditable(false);
               delegate.editableRows = QList<int>{0, 1, 2, 3};
           })
        << "(2, 0)" << QStringList{u"(2, 0) from (1, 2)"_s};
    const auto redirect = [](int row, int column) {
        return Setup([=](TestView &, DataSourceModel &, RecordingDelegate &delegate) { delegate.redirect = {row, column}; });
    };
    QTest::newRow("tab: delegate redirects") << tab << QPoint(1, 1) << redirect(3, 0) << "(3, 0)"
                                             << QStringList{u"(1, 2) from (1, 1)"_s};
    QTest::newRow("tab: redirected outside") << tab << QPoint(1, 1) << redirect(9, 0) << "none"
                                             << QStringList{u"(1, 2) from (1, 1)"_s};
    QTest::newRow("backtab: not redirected") << backtab << QPoint(1, 1) << redirect(3, 0) << "(1, 0)" << QStringList{};
    QTest::newRow("escape reverts and stops") << int(Qt::Key_Escape) << QPoint(1, 1) << none << "none" << QStringList{};
}

void TestTableView::editingMoves()
{
    QFETCH(int, key);
    QFETCH(QPoint, start);
    QFETCH(Setup, setup);
    QFETCH(QString, editing);
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

    view.edit(model.index(start.x(), start.y()));
    QLineEdit *editor = editorAt(view, start.x(), start.y());
    QVERIFY(editor);
    QTest::keyClicks(editor, u"new"_s);
    const QString typed = editor->text(), original = model.text(start.x(), start.y());
    QTest::keyClick(editor, Qt::Key(key));
    QCoreApplication::processEvents(); // Return reaches the view through a queued call

    QCOMPARE(model.text(start.x(), start.y()), key == Qt::Key_Escape ? original : typed);
    QCOMPARE(openEditor(view), editing);
    QCOMPARE(delegate.tabs, tabs);
    if (editing == u"none")
        return;
    const QModelIndex current = view.currentIndex();
    const QLineEdit *next = editorAt(view, current.row(), current.column());
    QVERIFY(next);
    QCOMPARE(cellName(current.row(), current.column()), editing);
    QCOMPARE(next->selectedText(), model.text(current.row(), current.column()));
    QCOMPARE(selectedRows(view), QList<int>{current.row()});
}

void TestTableView::dragPicture_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<QAbstractItemView::DragDropMode>("mode");
    QTest::addColumn<bool>("overwrite");
    QTest::addColumn<Qt::DropAction>("result");
    QTest::addColumn<QString>("rowsLeft");

    const auto DragDrop = QAbstractItemView::DragDrop;
    QTest::newRow("copy") << QList<int>{1, 2} << DragDrop << false << Qt::CopyAction << "r0 r1 r2 r3 r4";
    QTest::newRow("ignored") << QList<int>{1, 2} << DragDrop << false << Qt::IgnoreAction << "r0 r1 r2 r3 r4";
    QTest::newRow("move removes the rows") << QList<int>{1, 2} << DragDrop << false << Qt::MoveAction << "r0 r3 r4";
    QTest::newRow("move in overwrite mode clears") << QList<int>{3} << DragDrop << true << Qt::MoveAction << "r0 r1 r2  r4";
    QTest::newRow("internal move elsewhere") << QList<int>{1, 2} << QAbstractItemView::InternalMove << false
                                             << Qt::MoveAction << "r0 r1 r2 r3 r4";
    QTest::newRow("nothing selected, no drag") << QList<int>{} << DragDrop << false << Qt::MoveAction << "r0 r1 r2 r3 r4";
}

void TestTableView::dragPicture()
{
    QFETCH(QList<int>, selected);
    QFETCH(QAbstractItemView::DragDropMode, mode);
    QFETCH(bool, overwrite);
    QFETCH(Qt::DropAction, result);
    QFETCH(QString, rowsLeft);

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
    RecordingCell cell;
    view.setItemDelegate(&cell);

    view.startDrag(Qt::CopyAction | Qt::MoveAction);

    QVERIFY(!view.inDragPrep());
    QCOMPARE(view.dragPictureSize, selected.isEmpty() ? QSize() : picture.intersected(view.viewport()->rect()).size());
    // The picture holds the dragged rows' cells, drawn prepared and not highlighted.
    QCOMPARE(cell.paints.size(), selected.size() * 2);
    QVERIFY(std::all_of(cell.paints.cbegin(), cell.paints.cend(), [](auto paint) { return paint == std::pair(true, false); }));
    QVERIFY(selected.isEmpty() || !view.prepAtExec);
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.text(row, 0).left(2));
    QCOMPARE(texts.join(u' '), rowsLeft);
}

void TestTableView::liveResize()
{
    TestView view;
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

void TestTableView::worksWithoutModelOrMenu()
{
    TestView view;
    RecordingDelegate delegate;
    view.setDelegate(&delegate);
    auto menu = std::make_unique<QMenu>();
    view.setMenu(menu.get());
    menu.reset();
    QCOMPARE(view.menu(), nullptr);
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_A})
        QTest::keyClick(&view, key);
    QTest::mousePress(view.viewport(), Qt::RightButton, {}, QPoint(5, 5));
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::MetaModifier, QPoint(5, 5));
    view.startDrag(Qt::MoveAction);
    view.hideColumn(0);
    view.showColumnWithIdentifier(u"A"_s);

    QCOMPARE(delegate.returnKeys, 1);
    QVERIFY(delegate.notices.isEmpty());
    QCOMPARE(view.selectedRow(), -1);
    QCOMPARE(view.numberOfColumns(), 0);
    QVERIFY(!view.isEditableAtColumn(0, 0));
    QCOMPARE(view.contextMenuRow(), -1);

    // A right click without a menu still selects.
    DataSourceModel model(3, 1);
    view.setModel(&model);
    QTest::mousePress(view.viewport(), Qt::RightButton, {}, centreOfRow(view, 1));
    QCOMPARE(selectedRows(view), QList<int>{1});
}

void TestTableView::lookChangesRepaint_data()
{
    QTest::addColumn<std::function<void(ZARNTableView &)>>("change");
    QTest::addColumn<bool>("repaints");

    using Change = std::function<void(ZARNTableView &)>;
    QTest::newRow("highlight style") << Change([](auto &v) { v.setHighlightStyle(ZARNTableView::HighlightStyle::Capsule); })
                                     << true;
    QTest::newRow("same highlight style")
        << Change([](auto &v) { v.setHighlightStyle(ZARNTableView::HighlightStyle::Rectangle); }) << false;
    QTest::newRow("empty string") << Change([](auto &v) { v.setEmptyString(u"None"_s); }) << true;
    QTest::newRow("system version") << Change([](auto &) { Brixel::ZARNSetSystemVersion(0x1039); }) << true;
}

void TestTableView::lookChangesRepaint()
{
    QFETCH(std::function<void(ZARNTableView &)>, change);
    QFETCH(bool, repaints);
    DataSourceModel model(3, 2);
    ZARNTableView view;
    view.setModel(&model);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();
    brixeltest::PaintCounter paints(view.viewport());
    change(view);
    QCoreApplication::processEvents();
    Brixel::ZARNSetSystemVersion(ZARNSystemVersionNewest);
    QCOMPARE(paints.count > 0, repaints);
}

QTEST_MAIN(TestTableView)
#include "tst_tableview.moc"
