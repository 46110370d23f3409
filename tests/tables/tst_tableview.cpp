// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNSystemVersion.h>
#include <Brixel/ZARNTableColumn.h>
#include <Brixel/ZARNTableView.h>
#include <Brixel/ZARNTableViewDelegate.h>
#include <Brixel/ZARNTextFieldCell.h>
#include "tables/EditingMoves_p.h"

#include "BrixelTest.h"
#include "ViewKinds.h"

#include <QDrag>
#include <QLineEdit>
#include <QTest>

#include <climits>

using namespace Qt::StringLiterals;
using namespace viewkinds;
using BrixelPrivate::Cell;
using BrixelPrivate::TextMovement;

Q_DECLARE_METATYPE(BrixelPrivate::TextMovement)

namespace {

QString cellName(int row, int column)
{
    return u"(%1, %2)"_s.arg(row).arg(column);
}

/// Notes where Tab moves editing and decides it when told to.
class TabDelegate : public ZARNTableViewDelegate
{
public:
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

    QStringList tabs;
    std::optional<std::pair<int, int>> redirect;
    std::optional<QList<int>> editableRows;
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

using Setup = std::function<void(TestView &, DataSourceModel &, TabDelegate &)>;

} // namespace

Q_DECLARE_METATYPE(Setup)

class TestTableView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nextEditableCell_data();
    void nextEditableCell();
    void editingMoves_data();
    void editingMoves();
    void dragPicture_data();
    void dragPicture();
    void liveResize();
    void lookChangesRepaint_data();
    void lookChangesRepaint();
};

void TestTableView::nextEditableCell_data()
{
    QTest::addColumn<TextMovement>("movement");
    QTest::addColumn<Cell>("from");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<Cell>>("editable");
    QTest::addColumn<QString>("expected");

    // Tables of three columns.
    const auto Tab = TextMovement::Tab, Backtab = TextMovement::Backtab, Return = TextMovement::Return;
    const QList<Cell> scattered{{0, 2}, {1, 0}, {2, 1}, {3, 2}};
    QTest::newRow("tab: first editable cell after") << Tab << Cell{1, 0} << 4 << scattered << "(2, 1)";
    QTest::newRow("tab: wraps to the first") << Tab << Cell{3, 2} << 4 << scattered << "(0, 2)";
    QTest::newRow("backtab: first editable cell before") << Backtab << Cell{2, 1} << 4 << scattered << "(1, 0)";
    QTest::newRow("backtab: wraps to the last") << Backtab << Cell{0, 2} << 4 << scattered << "(3, 2)";
    QTest::newRow("return: wraps in the column") << Return << Cell{3, 2} << 4 << scattered << "(0, 2)";
    QTest::newRow("tab: only editable cell returns to itself") << Tab << Cell{2, 1} << 4 << QList<Cell>{{2, 1}} << "(2, 1)";
    QTest::newRow("return: only editable cell returns to itself") << Return << Cell{2, 1} << 4 << QList<Cell>{{2, 1}} << "(2, 1)";
    QTest::newRow("nothing editable") << Tab << Cell{2, 1} << 4 << QList<Cell>{} << "none";
    QTest::newRow("empty table") << Tab << Cell{0, 0} << 0 << scattered << "none";
    QTest::newRow("negative rows") << Backtab << Cell{0, 0} << -4 << scattered << "none";
    // The editor's row may be gone: a hit there answers "nowhere".
    QTest::newRow("hit in a removed row") << Tab << Cell{7, 0} << 4 << QList<Cell>{{7, 1}, {1, 0}} << "none";
    QTest::newRow("tab: extreme indexes") << Tab << Cell{INT_MAX, INT_MAX} << 4 << scattered << "(0, 2)";
    QTest::newRow("backtab: extreme indexes") << Backtab << Cell{INT_MIN, INT_MIN} << 4 << scattered << "(3, 2)";
    QTest::newRow("return: extreme row") << Return << Cell{INT_MAX, 1} << 4 << scattered << "(2, 1)";
    QTest::newRow("return: column out of range") << Return << Cell{1, 3} << 4 << scattered << "none";
}

void TestTableView::nextEditableCell()
{
    QFETCH(TextMovement, movement);
    QFETCH(Cell, from);
    QFETCH(int, rows);
    QFETCH(QList<Cell>, editable);
    QFETCH(QString, expected);

    const auto isEditable = [&editable](Cell cell) { return editable.contains(cell); };
    const std::optional<Cell> cell = BrixelPrivate::nextEditableCell(movement, from, rows, 3, isEditable);
    QCOMPARE(cell ? cellName(cell->row, cell->column) : u"none"_s, expected);
}

void TestTableView::editingMoves_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QPoint>("start"); // x = row, y = column of the model
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<QString>("editing");
    QTest::addColumn<QStringList>("tabs"); // the delegate's notices, in shown-column terms

    // A 4 x 3 table, every cell editable unless the setup says otherwise.
    const Setup none = [](TestView &, DataSourceModel &, TabDelegate &) {};
    const auto setup = [](auto change) { return Setup(change); };
    const int tab = Qt::Key_Tab, backtab = Qt::Key_Backtab, enter = Qt::Key_Return;

    QTest::newRow("tab: next cell") << tab << QPoint(1, 1) << none << "(1, 2)" << QStringList{u"(1, 2) from (1, 1)"_s};
    QTest::newRow("tab: last cell wraps") << tab << QPoint(3, 2) << none << "(0, 0)" << QStringList{u"(0, 0) from (3, 2)"_s};
    QTest::newRow("backtab: first cell wraps, no notice") << backtab << QPoint(0, 0) << none << "(3, 2)" << QStringList{};
    QTest::newRow("return: next row, no notice") << enter << QPoint(1, 1) << none << "(2, 1)" << QStringList{};
    QTest::newRow("return: back to itself")
        << enter << QPoint(1, 1) << setup([](TestView &, DataSourceModel &model, TabDelegate &) {
               for (int row : {0, 2, 3})
                   model.item(row, 1)->setEditable(false);
           })
        << "(1, 1)" << QStringList{};
    QTest::newRow("tab: follows the shown columns")
        << tab << QPoint(1, 2) << setup([](TestView &view, DataSourceModel &, TabDelegate &) {
               view.hideColumnWithIdentifier(u"A"_s);
               view.showColumnWithIdentifier(u"A"_s); // B, C, A
               view.hideColumnWithIdentifier(u"B"_s); // C, A
           })
        << "(1, 0)" << QStringList{u"(1, 1) from (1, 0)"_s};
    QTest::newRow("tab: skips read-only columns")
        << tab << QPoint(1, 2) << setup([](TestView &view, DataSourceModel &, TabDelegate &) {
               view.tableColumns().at(0)->setEditable(false);
           })
        << "(2, 1)" << QStringList{u"(2, 1) from (1, 2)"_s};
    QTest::newRow("tab: the delegate decides")
        << tab << QPoint(1, 1) << setup([](TestView &, DataSourceModel &, TabDelegate &delegate) {
               delegate.editableRows = QList<int>{3};
           })
        << "(3, 0)" << QStringList{u"(3, 0) from (1, 1)"_s};
    QTest::newRow("tab: the delegate opens a read-only column")
        << tab << QPoint(1, 2) << setup([](TestView &view, DataSourceModel &, TabDelegate &delegate) {
               view.tableColumns().at(0)->setEditable(false);
               delegate.editableRows = QList<int>{0, 1, 2, 3};
           })
        << "(2, 0)" << QStringList{u"(2, 0) from (1, 2)"_s};
    const auto redirect = [](int row, int column) {
        return Setup([=](TestView &, DataSourceModel &, TabDelegate &delegate) { delegate.redirect = {row, column}; });
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
    TabDelegate delegate;
    view.setDelegate(&delegate);
    setup(view, model, delegate);
    viewkinds::showView(view, {400, 300});

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

    view.startDrag(Qt::CopyAction | Qt::MoveAction);

    QVERIFY(!view.inDragPrep());
    QCOMPARE(view.dragPictureSize, selected.isEmpty() ? QSize() : picture.intersected(view.viewport()->rect()).size());
    QVERIFY(selected.isEmpty() || !view.prepAtExec);
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.append(model.text(row, 0).left(2));
    QCOMPARE(texts.join(u' '), rowsLeft);
}

void TestTableView::liveResize()
{
    TestView view;
    viewkinds::showView(view, {200, 200});
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
