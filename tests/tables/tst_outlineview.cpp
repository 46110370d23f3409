// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/NSOutlineView_Category.h>
#include <Brixel/ZARNNSTableHeaderView.h>
#include <Brixel/ZARNOutlineView.h>
#include <Brixel/ZARNOutlineViewDelegate.h>
#include <Brixel/ZARNTableColumn.h>
#include <Brixel/ZARNTextFieldCell.h>

#include "BrixelTest.h"
#include "ViewKinds.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Answers the marker question when told to.
class MarkerDelegate : public ZARNOutlineViewDelegate
{
public:
    std::optional<bool> outlineViewShouldShowIndentationMarkerForItem(ZARNOutlineView *, const QModelIndex &) override
    {
        return showsMarker;
    }
    std::optional<bool> showsMarker;
};

// Rows "a" (children "a1" with child "a1x", and "a2"), "b", "c"; columns "name", "size", "kind".
void fill(QStandardItemModel &model)
{
    model.setHorizontalHeaderLabels({u"name"_s, u"size"_s, u"kind"_s});
    auto row = [](const QString &name) {
        return QList<QStandardItem *>{new QStandardItem(name), new QStandardItem(name + u"+"_s),
                                      new QStandardItem(name + u"*"_s)};
    };
    auto a = row(u"a"_s);
    auto a1 = row(u"a1"_s);
    a1.first()->appendRow(row(u"a1x"_s));
    a.first()->appendRow(a1);
    a.first()->appendRow(row(u"a2"_s));
    model.appendRow(a);
    model.appendRow(row(u"b"_s));
    model.appendRow(row(u"c"_s));
}

// A shown outline over the model above, with fixed section widths for click positions.
struct Fixture
{
    Fixture()
    {
        fill(model);
        view.setModel(&model);
        view.setDelegate(&delegate);
        view.setIndentation(16);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.header()->setStretchLastSection(false);
        view.header()->resizeSection(0, 30);
        view.header()->resizeSection(1, 80);
        viewkinds::showView(view, {200, 150});
    }

    QModelIndex item(const QString &name) const
    {
        return model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchRecursive | Qt::MatchExactly).value(0);
    }

    QPoint pointIn(const QString &name, int x) const { return {x, view.visualRect(item(name)).center().y()}; }

    QStandardItemModel model;
    MarkerDelegate delegate;
    ZARNOutlineView view;
};

} // namespace

using Action = std::function<void(Fixture &)>;
using Colors = QList<QColor>;  // text, background of each cell checked
Q_DECLARE_METATYPE(Action)

class TestOutlineView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    void defaults()
    {
        const ZARNOutlineView view;
        QCOMPARE(view.highlightStyle(), ZARNTableView::HighlightStyle::Rectangle);
        QVERIFY(view.highlightFollowsIndentation());
        QVERIFY(view.showsIndentationMarker());
        QVERIFY(view.drawsBranchIndicators()); // Qt's own marker drawing stays on as well
        QVERIFY(!view.shouldCollapseAutoExpandedItemsForDeposits());
        QVERIFY(view.shouldCollapseAutoExpandedItemsForFailedDeposits());
        QVERIFY(view.acceptsFirstResponder());
        // The library's header, set up as Qt sets up its own.
        auto *header = qobject_cast<ZARNNSTableHeaderView *>(view.header());
        QVERIFY(header);
        QVERIFY(header->sectionsMovable());
        QVERIFY(header->stretchLastSection());
    }

    void hiddenMarkerMovesTheClick_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<bool>("viewShowsMarker");
        QTest::addColumn<std::optional<bool>>("delegateShowsMarker");
        QTest::addColumn<int>("clickedColumn");
        QTest::addColumn<bool>("expanded");
        QTest::addColumn<bool>("widened"); // a leaf's cell is drawn over the marker's place

        // Column 0 is 30 wide and its first 16 pixels hold the marker of "a"; column 1 follows.
        const std::optional<bool> noAnswer, shows = true, hides = false;
        QTest::newRow("marker shown: the click toggles it") << 15 << true << noAnswer << -1 << true << false;
        QTest::newRow("marker shown: content click stays") << 20 << true << noAnswer << 0 << false << false;
        QTest::newRow("marker hidden: 15 lands at 35, in column 1") << 15 << false << noAnswer << 1 << false << true;
        QTest::newRow("marker hidden: 5 lands at 25, in column 0") << 5 << false << noAnswer << 0 << false << true;
        QTest::newRow("delegate hides what the view shows") << 15 << true << hides << 1 << false << true;
        QTest::newRow("delegate shows what the view hides") << 15 << false << shows << -1 << true << false;
    }

    void hiddenMarkerMovesTheClick()
    {
        QFETCH(int, x);
        QFETCH(bool, viewShowsMarker);
        QFETCH(std::optional<bool>, delegateShowsMarker);
        QFETCH(int, clickedColumn);
        QFETCH(bool, expanded);
        QFETCH(bool, widened);
        Fixture f;
        f.view.setShowsIndentationMarker(viewShowsMarker);
        f.delegate.showsMarker = delegateShowsMarker;
        QSignalSpy clicked(&f.view, &QAbstractItemView::clicked);
        // "b" is a leaf: unless its cell is widened, nothing is drawn left of it.
        const QRect cell = f.view.visualRect(f.item(u"b"_s));
        const QImage image = brixeltest::renderWidget(*f.view.viewport());
        const auto hasText = [&image](const QRect &area) {
            const auto isText = [](const QColor &c) { return c.lightness() < 128; };
            return !brixeltest::pixelBounds(image.copy(area), isText).isNull();
        };
        QCOMPARE(hasText(QRect(cell.left() - 16, cell.top(), 16, cell.height())), widened);
        QVERIFY(hasText(cell.adjusted(-16, 0, 0, 0)));

        QTest::mouseClick(f.view.viewport(), Qt::LeftButton, {}, f.pointIn(u"a"_s, x));

        QCOMPARE(f.view.isExpanded(f.item(u"a"_s)), expanded);
        QCOMPARE(clicked.count(), clickedColumn < 0 ? 0 : 1);
        if (clickedColumn >= 0) {
            QCOMPARE(clicked.first().first().toModelIndex().column(), clickedColumn);
            QCOMPARE(viewkinds::selectedRows(f.view), QList<int>{0}); // "a" alone
        }
    }

    void highlightFollowsIndentation_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("follows");
        QTest::addColumn<int>("indent"); // where the shape starts, in indentation steps plus 16 for leaves

        QTest::newRow("nested leaf, following") << u"a2"_s << true << 1;
        QTest::newRow("nested leaf, not following") << u"a2"_s << false << 0;
        QTest::newRow("top-level leaf") << u"b"_s << true << 0;
    }

    void highlightFollowsIndentation()
    {
        QFETCH(QString, name);
        QFETCH(bool, follows);
        QFETCH(int, indent);
        Fixture f;
        viewkinds::showFocused(f.view, f.view.size());
        f.view.header()->resizeSection(0, 120);
        f.view.expandAll();
        f.view.setHighlightFollowsIndentation(follows);
        f.view.selectionModel()->select(f.item(name), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        const int left = indent == 0 ? 0 : indent * f.view.indentation() + 16;
        const int y = f.view.visualRect(f.item(name)).center().y();
        const QImage image = brixeltest::renderWidget(*f.view.viewport());

        // Left of the shape is background; just inside it (past the 1-wide outline) is the fill.
        const auto isWhite = [](const QColor &c) { return c.red() > 245 && c.green() > 245 && c.blue() > 245; };
        if (left > 0)
            QVERIFY(isWhite(brixeltest::colorAt(image, {left - 2, y})));
        QVERIFY(!isWhite(brixeltest::colorAt(image, {left + 2, y})));
    }

    void disablingGreysAndRestores_data()
    {
        QTest::addColumn<QList<Action>>("steps");
        QTest::addColumn<Colors>("sharedCell");  // column "name": the view's own cell, colours unset
        QTest::addColumn<Colors>("ownCell");     // column "kind": red on yellow; "size" is no text cell
        QTest::addColumn<Qt::ScrollBarPolicy>("policy");
        QTest::addColumn<bool>("barEnabledBefore");
        QTest::addColumn<bool>("barEnabledAfter");

        const Action disable = [](Fixture &f) { f.view.setEnabled(false); };
        const Action enable = [](Fixture &f) { f.view.setEnabled(true); };
        const Action disableParent = [](Fixture &f) { f.view.parentWidget()->setEnabled(false); };
        const Action changeWhileDisabled = [](Fixture &f) {
            qobject_cast<ZARNTextFieldCell *>(f.view.itemDelegateForColumn(2))->setTextColor(Qt::blue);
            f.view.verticalScrollBar()->setEnabled(true);
        };
        const QColor grey = QColor::fromRgbF(0.5f, 0.5f, 0.5f);
        const QColor light = QColor::fromRgbF(0.94f, 0.94f, 0.94f);
        const Colors greyed{grey, light};
        const Colors unset{QColor(), QColor()};
        const Colors own{Qt::red, Qt::yellow};
        const Action hideName = [](Fixture &f) { f.view.hideColumnWithIdentifier(u"name"_s); };
        const auto asNeeded = Qt::ScrollBarAsNeeded;
        const QList<Action> disableThenEnable{disable, enable};

        QTest::newRow("disabling greys every text cell, bar off")
            << QList{disable} << greyed << greyed << asNeeded << true << false;
        QTest::newRow("enabling restores, unset colours too")
            << disableThenEnable << unset << own << asNeeded << true << true;
        QTest::newRow("a disabled bar stays disabled")
            << disableThenEnable << unset << own << asNeeded << false << false;
        QTest::newRow("an always-off bar is left alone")
            << disableThenEnable << unset << own << Qt::ScrollBarAlwaysOff << true << true;
        QTest::newRow("disabling twice saves once")
            << QList{disable, changeWhileDisabled, disable, enable} << unset << own << Qt::ScrollBarAlwaysOn << false
            << false;
        QTest::newRow("a disabled parent greys too")
            << QList{disableParent} << greyed << greyed << asNeeded << true << false;
        // The saved pairs are handed out in column order: a column hidden meanwhile shifts them.
        QTest::newRow("hiding a column while disabled shifts the pairs")
            << QList{disable, hideName, enable} << greyed << unset << asNeeded << true << true;
    }

    void disablingGreysAndRestores()
    {
        QFETCH(QList<Action>, steps);
        QFETCH(Colors, sharedCell);
        QFETCH(Colors, ownCell);
        QFETCH(Qt::ScrollBarPolicy, policy);
        QFETCH(bool, barEnabledBefore);
        QFETCH(bool, barEnabledAfter);
        QWidget parent;
        Fixture f;
        f.view.setParent(&parent);
        parent.show();
        f.view.setItemDelegateForColumn(1, new QStyledItemDelegate(&f.view));
        auto *cell = new ZARNTextFieldCell(&f.view);
        cell->setTextColor(Qt::red);
        cell->setBackgroundColor(Qt::yellow);
        f.view.setItemDelegateForColumn(2, cell);
        auto *shared = qobject_cast<ZARNTextFieldCell *>(f.view.itemDelegate());
        f.view.setVerticalScrollBarPolicy(policy);
        f.view.verticalScrollBar()->setEnabled(barEnabledBefore);

        for (const Action &step : steps)
            step(f);

        QCOMPARE(Colors({shared->textColor(), shared->backgroundColor()}), sharedCell);
        QCOMPARE(Colors({cell->textColor(), cell->backgroundColor()}), ownCell);
        QCOMPARE(!f.view.verticalScrollBar()->testAttribute(Qt::WA_ForceDisabled), barEnabledAfter);
    }

    void hidingColumns_data()
    {
        QTest::addColumn<int>("treePosition");
        QTest::addColumn<Action>("hide");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("treePositionAfter");

        const auto hide = [](QList<int> indexes) {
            return Action([indexes](Fixture &f) {
                for (int index : indexes)
                    f.view.hideColumn(index);
            });
        };
        const auto hideNamed = [](const QString &identifier) {
            return Action([identifier](Fixture &f) { f.view.hideColumnWithIdentifier(identifier); });
        };
        QTest::newRow("another column") << -1 << hide({1}) << u"name kind"_s << -1;
        QTest::newRow("the tree's first column moves it to column 1") << -1 << hide({0}) << u"size kind"_s << 1;
        QTest::newRow("the tree's chosen column moves it to column 0") << 2 << hide({2}) << u"name size"_s << 0;
        QTest::newRow("tree column 0 chosen, moved to column 1") << 0 << hide({0}) << u"size kind"_s << 1;
        QTest::newRow("by identifier") << -1 << hideNamed(u"name"_s) << u"size kind"_s << 1;
        QTest::newRow("unknown identifier") << -1 << hideNamed(u"date"_s) << u"name size kind"_s << -1;
        QTest::newRow("out of range") << -1 << hide({-1, 3}) << u"name size kind"_s << -1;
        QTest::newRow("the last column stays") << -1 << hide({1, 1, 0}) << u"name"_s << -1;
        QTest::newRow("shown again at the right end")
            << -1 << Action([](Fixture &f) {
                   f.view.hideColumn(0);
                   f.view.showColumnWithIdentifier(u"name"_s);
               })
            << u"size kind name"_s << 1;
    }

    void hidingColumns()
    {
        QFETCH(int, treePosition);
        QFETCH(Action, hide);
        QFETCH(QString, shown);
        QFETCH(int, treePositionAfter);
        Fixture f;
        f.view.setTreePosition(treePosition);

        hide(f);

        QStringList identifiers;
        for (const ZARNTableColumn *column : f.view.tableColumns())
            identifiers << column->identifier();
        QCOMPARE(identifiers.join(u' '), shown);
        QCOMPARE(f.view.treePosition(), treePositionAfter);
        QCOMPARE(f.view.numberOfColumns(), identifiers.size());
        QCOMPARE(f.view.hiddenTableColumns().size(), 3 - identifiers.size());
        for (ZARNTableColumn *hidden : f.view.hiddenTableColumns())
            QCOMPARE(f.view.hiddenTableColumnWithIdentifier(hidden->identifier()), hidden);
        QCOMPARE(f.view.tableColumnWithIdentifier(identifiers.first())->identifier(), identifiers.first());
    }

    void drops_data()
    {
        QTest::addColumn<bool>("collapseForDeposits");
        QTest::addColumn<bool>("collapseForFailedDeposits");
        QTest::addColumn<QString>("ending");
        QTest::addColumn<bool>("openedStayOpen");

        QTest::newRow("successful drop keeps them by default") << false << true << u"drop"_s << true;
        QTest::newRow("successful drop, collapsing") << true << true << u"drop"_s << false;
        QTest::newRow("refused drop collapses them by default") << false << true << u"refused"_s << false;
        QTest::newRow("refused drop, keeping") << false << false << u"refused"_s << true;
        QTest::newRow("leaving the view collapses them") << false << true << u"leave"_s << false;
    }

    void drops()
    {
        QFETCH(bool, collapseForDeposits);
        QFETCH(bool, collapseForFailedDeposits);
        QFETCH(QString, ending);
        QFETCH(bool, openedStayOpen);
        Fixture f;
        f.view.setDragDropMode(QAbstractItemView::DragDrop);
        f.view.setShouldCollapseAutoExpandedItemsForDeposits(collapseForDeposits);
        f.view.setShouldCollapseAutoExpandedItemsForFailedDeposits(collapseForFailedDeposits);
        f.view.expand(f.item(u"a"_s));  // opened by the user before the drag
        std::unique_ptr<QMimeData> data(f.model.mimeData({f.item(u"b"_s)}));
        QMimeData refused;
        refused.setText(u"plain text"_s);
        const QPoint over = f.pointIn(u"a1"_s, 60);
        QDragEnterEvent enter(over, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(f.view.viewport(), &enter);
        f.view.expand(f.item(u"a1"_s));  // as Qt's auto-expand does while hovering
        f.view.expand(f.item(u"c"_s));

        if (ending == u"leave"_s) {
            QDragLeaveEvent leave;
            QApplication::sendEvent(f.view.viewport(), &leave);
        } else {
            QDropEvent drop(over, Qt::CopyAction, ending == u"refused"_s ? &refused : data.get(), Qt::LeftButton, {});
            QApplication::sendEvent(f.view.viewport(), &drop);
            QCOMPARE(drop.isAccepted(), ending == u"drop"_s);
        }

        QVERIFY(f.view.isExpanded(f.item(u"a"_s)));
        QCOMPARE(f.view.isExpanded(f.item(u"a1"_s)), openedStayOpen);
        QCOMPARE(f.view.isExpanded(f.item(u"c"_s)), openedStayOpen);
    }

    void qtAutoExpansionIsFollowed()
    {
        Fixture f;
        f.view.setDragDropMode(QAbstractItemView::DragDrop);
        f.view.setAutoExpandDelay(0);
        std::unique_ptr<QMimeData> data(f.model.mimeData({f.item(u"b"_s)}));
        const QPoint over = f.pointIn(u"a"_s, 60);
        QCursor::setPos(f.view.viewport()->mapToGlobal(over));
        if (QCursor::pos() != f.view.viewport()->mapToGlobal(over))
            QSKIP("the platform cannot place the cursor, which Qt's auto-expand reads");
        QDragEnterEvent enter(over, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(f.view.viewport(), &enter);
        QDragMoveEvent move(over, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(f.view.viewport(), &move);
        QTRY_VERIFY(f.view.isExpanded(f.item(u"a"_s)));

        QDragLeaveEvent leave;
        QApplication::sendEvent(f.view.viewport(), &leave);

        QVERIFY(!f.view.isExpanded(f.item(u"a"_s)));
    }

    void editorDrawsNoBackground()
    {
        Fixture f;
        f.view.edit(f.item(u"b"_s));
        auto *editor = qobject_cast<QLineEdit *>(f.view.indexWidget(f.item(u"b"_s)));
        QVERIFY(editor);
        QVERIFY(!editor->autoFillBackground());
        QVERIFY(!editor->hasFrame());
        QCOMPARE(editor->palette().color(QPalette::Base).alpha(), 0);
    }

    void tile2LogsTheShownRows_data()
    {
        QTest::addColumn<QStringList>("expand");
        QTest::addColumn<QStringList>("hide");
        QTest::addColumn<int>("rows");

        QTest::newRow("top level") << QStringList{} << QStringList{} << 3;
        QTest::newRow("one level open") << QStringList{u"a"_s} << QStringList{} << 5;
        QTest::newRow("all open") << QStringList{u"a"_s, u"a1"_s} << QStringList{} << 6;
        QTest::newRow("open under a closed parent") << QStringList{u"a1"_s} << QStringList{} << 3;
        QTest::newRow("hidden row and its children") << QStringList{u"a"_s, u"a1"_s} << QStringList{u"a1"_s} << 4;
    }

    void tile2LogsTheShownRows()
    {
        QFETCH(QStringList, expand);
        QFETCH(QStringList, hide);
        QFETCH(int, rows);
        Fixture f;
        for (const QString &name : expand)
            f.view.expand(f.item(name));
        for (const QString &name : hide)
            f.view.setRowHidden(f.item(name).row(), f.item(name).parent(), true);

        const QString line = u"numberOfRows:  %1 (%2)"_s.arg(rows).arg(reinterpret_cast<quintptr>(&f.view), 0, 16);
        QTest::ignoreMessage(QtInfoMsg, line.toUtf8().constData());
        f.view.tile2();
        QCOMPARE(f.view.numberOfRows(), rows);
    }

    void zapHidesTheMarkers()
    {
        QTreeView plain;
        Brixel::zapIndentationMarker(&plain);
        QVERIFY(!plain.rootIsDecorated());
        Brixel::zapIndentationMarker(nullptr);

        Fixture f;
        f.view.expand(f.item(u"a"_s));
        // The markers of "a" (top level) and "a1" (nested) sit left of their text.
        const auto markerArea = [&f](const QString &name) {
            const QRect text = f.view.visualRect(f.item(name));
            return QRect(text.left() - f.view.indentation(), text.top(), f.view.indentation(), text.height());
        };
        const auto inkIn = [&f](const QRect &area) {
            const QImage image = brixeltest::renderWidget(*f.view.viewport());
            const QColor base = f.view.palette().color(QPalette::Base);
            for (int y = area.top(); y <= area.bottom(); ++y)
                for (int x = qMax(0, area.left()); x <= area.right(); ++x)
                    if (!brixeltest::colorsClose(brixeltest::colorAt(image, {x, y}), base, 8))
                        return true;
            return false;
        };
        QVERIFY(inkIn(markerArea(u"a"_s)));
        QVERIFY(inkIn(markerArea(u"a1"_s)));

        Brixel::zapIndentationMarker(&f.view);

        QVERIFY(!f.view.rootIsDecorated());
        QVERIFY(!f.view.drawsBranchIndicators());
        QVERIFY(!inkIn(markerArea(u"a1"_s)));
    }
};

QTEST_MAIN(TestOutlineView)
#include "tst_outlineview.moc"
