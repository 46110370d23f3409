// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSTableViewSelectionColorAdditions.h>
#include <Brixel/ZARNSystemVersion.h>
#include <Brixel/ZARNTableColumn.h>
#include <Brixel/ZARNTableView.h>
#include <Brixel/ZARNTableViewDelegate.h>
#include <Brixel/ZARNTextFieldCell.h>
#include "tables/EditingMoves_p.h"
#include "tables/RowHighlighting_p.h"

#include "BrixelTest.h"
#include "ViewKinds.h"

#include <QDrag>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>

#include <climits>

using namespace Qt::StringLiterals;
using namespace viewkinds;
using brixeltest::colorAt;
using brixeltest::colorsClose;
using BrixelPrivate::Cell;
using BrixelPrivate::TextMovement;

Q_DECLARE_METATYPE(BrixelPrivate::TextMovement)

namespace {

QString cellName(int row, int column)
{
    return u"(%1, %2)"_s.arg(row).arg(column);
}

/// Notes where Tab moves editing and decides it when told to; gives rows its highlight image.
class TestDelegate : public ZARNTableViewDelegate
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
    std::optional<QImage> tableViewCustomHighlightImageForRow(ZARNTableView *, int) override { return image; }

    QStringList tabs;
    std::optional<std::pair<int, int>> redirect;
    std::optional<QList<int>> editableRows;
    std::optional<QImage> image;
};

class TestView : public ZARNTableView
{
public:
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

using Setup = std::function<void(TestView &, DataSourceModel &, TestDelegate &)>;

/// A focused table of 2 columns, 90 wide, in an active window; rows read "r<row>c<column>".
struct Table
{
    explicit Table(int rows, int viewHeight = 160)
        : model(rows, 2)
    {
        view.setModel(&model);
        view.setShowGrid(false);
        view.verticalHeader()->hide();
        view.horizontalHeader()->hide();
        view.setColumnWidth(0, 90);
        view.setColumnWidth(1, 90);
        showFocused(view, {200, viewHeight});
    }

    QImage render() { return brixeltest::renderWidget(*view.viewport()); }

    DataSourceModel model;
    ZARNTableView view;
};

QColor over(const QColor &colour, qreal alpha, const QColor &below = Qt::white)
{
    return QColor::fromRgbF(colour.redF() * alpha + below.redF() * (1 - alpha),
                            colour.greenF() * alpha + below.greenF() * (1 - alpha),
                            colour.blueF() * alpha + below.blueF() * (1 - alpha));
}

bool isText(const QColor &colour)
{
    return colour.lightness() < 128;
}

enum class Expect { Background, Edge, GradientTop, GradientBottom, Flat, Custom };

} // namespace

Q_DECLARE_METATYPE(Setup)
Q_DECLARE_METATYPE(Expect)

class TestTableView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    void nextEditableCell_data()
    {
        QTest::addColumn<TextMovement>("movement");
        QTest::addColumn<Cell>("from");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QList<Cell>>("editable");
        QTest::addColumn<QString>("expected");

        // Tables of three columns.
        const auto Tab = TextMovement::Tab, Backtab = TextMovement::Backtab, Return = TextMovement::Return;
        const QList<Cell> scattered{{0, 2}, {1, 0}, {2, 1}, {3, 2}}, onlyOne{{2, 1}};
        QTest::newRow("tab: first editable cell after") << Tab << Cell{1, 0} << 4 << scattered << "(2, 1)";
        QTest::newRow("tab: wraps to the first") << Tab << Cell{3, 2} << 4 << scattered << "(0, 2)";
        QTest::newRow("backtab: first editable cell before") << Backtab << Cell{2, 1} << 4 << scattered << "(1, 0)";
        QTest::newRow("backtab: wraps to the last") << Backtab << Cell{0, 2} << 4 << scattered << "(3, 2)";
        QTest::newRow("return: wraps in the column") << Return << Cell{3, 2} << 4 << scattered << "(0, 2)";
        QTest::newRow("tab: only editable cell returns to itself") << Tab << Cell{2, 1} << 4 << onlyOne << "(2, 1)";
        QTest::newRow("return: only editable cell returns to itself")
            << Return << Cell{2, 1} << 4 << onlyOne << "(2, 1)";
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

    void nextEditableCell()
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

    void editingMoves_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QPoint>("start"); // x = row, y = column of the model
        QTest::addColumn<Setup>("setup");
        QTest::addColumn<QString>("editing");
        QTest::addColumn<QString>("tabs"); // the delegate's notices, in shown-column terms

        // A 4 x 3 table, every cell editable unless the setup says otherwise.
        const Setup none = [](TestView &, DataSourceModel &, TestDelegate &) {};
        const auto setup = [](auto change) { return Setup(change); };
        const int tab = Qt::Key_Tab, backtab = Qt::Key_Backtab, enter = Qt::Key_Return;

        QTest::newRow("tab: next cell") << tab << QPoint(1, 1) << none << "(1, 2)" << "(1, 2) from (1, 1)";
        QTest::newRow("tab: last cell wraps") << tab << QPoint(3, 2) << none << "(0, 0)" << "(0, 0) from (3, 2)";
        QTest::newRow("backtab: first cell wraps, no notice") << backtab << QPoint(0, 0) << none << "(3, 2)" << "";
        QTest::newRow("return: next row, no notice") << enter << QPoint(1, 1) << none << "(2, 1)" << "";
        QTest::newRow("return: back to itself")
            << enter << QPoint(1, 1) << setup([](TestView &, DataSourceModel &model, TestDelegate &) {
                   for (int row : {0, 2, 3})
                       model.item(row, 1)->setEditable(false);
               })
            << "(1, 1)" << "";
        QTest::newRow("tab: follows the shown columns")
            << tab << QPoint(1, 2) << setup([](TestView &view, DataSourceModel &, TestDelegate &) {
                   view.hideColumnWithIdentifier(u"A"_s);
                   view.showColumnWithIdentifier(u"A"_s); // B, C, A
                   view.hideColumnWithIdentifier(u"B"_s); // C, A
               })
            << "(1, 0)" << "(1, 1) from (1, 0)";
        QTest::newRow("tab: skips read-only columns")
            << tab << QPoint(1, 2) << setup([](TestView &view, DataSourceModel &, TestDelegate &) {
                   view.tableColumns().at(0)->setEditable(false);
               })
            << "(2, 1)" << "(2, 1) from (1, 2)";
        QTest::newRow("tab: the delegate decides")
            << tab << QPoint(1, 1) << setup([](TestView &, DataSourceModel &, TestDelegate &delegate) {
                   delegate.editableRows = QList<int>{3};
               })
            << "(3, 0)" << "(3, 0) from (1, 1)";
        QTest::newRow("tab: the delegate opens a read-only column")
            << tab << QPoint(1, 2) << setup([](TestView &view, DataSourceModel &, TestDelegate &delegate) {
                   view.tableColumns().at(0)->setEditable(false);
                   delegate.editableRows = QList<int>{0, 1, 2, 3};
               })
            << "(2, 0)" << "(2, 0) from (1, 2)";
        const auto redirect = [](int row, int column) {
            return Setup([=](TestView &, DataSourceModel &, TestDelegate &delegate) {
                delegate.redirect = {row, column};
            });
        };
        QTest::newRow("tab: delegate redirects")
            << tab << QPoint(1, 1) << redirect(3, 0) << "(3, 0)" << "(1, 2) from (1, 1)";
        QTest::newRow("tab: redirected outside")
            << tab << QPoint(1, 1) << redirect(9, 0) << "none" << "(1, 2) from (1, 1)";
        QTest::newRow("backtab: not redirected") << backtab << QPoint(1, 1) << redirect(3, 0) << "(1, 0)" << "";
        QTest::newRow("escape reverts and stops") << int(Qt::Key_Escape) << QPoint(1, 1) << none << "none" << "";
    }

    void editingMoves()
    {
        QFETCH(int, key);
        QFETCH(QPoint, start);
        QFETCH(Setup, setup);
        QFETCH(QString, editing);
        QFETCH(QString, tabs);

        DataSourceModel model(4, 3);
        TestView view;
        view.setModel(&model);
        TestDelegate delegate;
        view.setDelegate(&delegate);
        QCOMPARE(view.delegate(), &delegate);
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
        QCOMPARE(delegate.tabs.join(u"; "), tabs);
        if (editing == u"none")
            return;
        const QModelIndex current = view.currentIndex();
        const QLineEdit *next = editorAt(view, current.row(), current.column());
        QVERIFY(next);
        QCOMPARE(cellName(current.row(), current.column()), editing);
        QCOMPARE(next->selectedText(), model.text(current.row(), current.column()));
        QCOMPARE(selectedRows(view), QList<int>{current.row()});
    }

    void dragPicture_data()
    {
        QTest::addColumn<QList<int>>("selected");
        QTest::addColumn<QAbstractItemView::DragDropMode>("mode");
        QTest::addColumn<bool>("overwrite");
        QTest::addColumn<Qt::DropAction>("result");
        QTest::addColumn<QString>("rowsLeft");

        const auto DragDrop = QAbstractItemView::DragDrop;
        const QList<int> two{1, 2};
        QTest::newRow("copy") << two << DragDrop << false << Qt::CopyAction << "r0 r1 r2 r3 r4";
        QTest::newRow("move removes the rows") << two << DragDrop << false << Qt::MoveAction << "r0 r3 r4";
        QTest::newRow("move in overwrite mode clears")
            << QList<int>{3} << DragDrop << true << Qt::MoveAction << "r0 r1 r2  r4";
        QTest::newRow("internal move elsewhere")
            << two << QAbstractItemView::InternalMove << false << Qt::MoveAction << "r0 r1 r2 r3 r4";
        QTest::newRow("nothing selected, no drag")
            << QList<int>{} << DragDrop << false << Qt::MoveAction << "r0 r1 r2 r3 r4";
    }

    void dragPicture()
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
        const QSize pictureSize = picture.intersected(view.viewport()->rect()).size();
        QCOMPARE(view.dragPictureSize, selected.isEmpty() ? QSize() : pictureSize);
        QVERIFY(selected.isEmpty() || !view.prepAtExec);
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.text(row, 0).left(2));
        QCOMPARE(texts.join(u' '), rowsLeft);
    }

    void liveResize()
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

    void lookChangesRepaint_data()
    {
        QTest::addColumn<std::function<void(ZARNTableView &)>>("change");
        QTest::addColumn<bool>("repaints");

        using Change = std::function<void(ZARNTableView &)>;
        QTest::newRow("highlight style")
            << Change([](auto &v) { v.setHighlightStyle(ZARNTableView::HighlightStyle::Capsule); }) << true;
        QTest::newRow("same highlight style")
            << Change([](auto &v) { v.setHighlightStyle(ZARNTableView::HighlightStyle::Rectangle); }) << false;
        QTest::newRow("empty string") << Change([](auto &v) { v.setEmptyString(u"None"_s); }) << true;
        QTest::newRow("system version") << Change([](auto &) { Brixel::ZARNSetSystemVersion(0x1039); }) << true;
    }

    void lookChangesRepaint()
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

    void selectedRow_data()
    {
        QTest::addColumn<quint32>("style");
        QTest::addColumn<bool>("focused");
        QTest::addColumn<bool>("customImage");
        QTest::addColumn<QPoint>("point"); // in the row; x below 0 counts from the right
        QTest::addColumn<Expect>("expected");

        const quint32 rect = quint32(ZARNTableView::HighlightStyle::Rectangle);
        const quint32 capsule = quint32(ZARNTableView::HighlightStyle::Capsule);
        // The fill covers the inner half of the 1-wide outline: edge pixels are half of each.
        QTest::newRow("rectangle: left end outlined") << rect << false << false << QPoint(0, 8) << Expect::Edge;
        QTest::newRow("capsule: corners left open") << capsule << true << false << QPoint(0, 0) << Expect::Background;
        QTest::newRow("capsule: right corner open") << capsule << true << false << QPoint(-1, 0) << Expect::Background;
        QTest::newRow("capsule: top edge outlined") << capsule << true << false << QPoint(180, 0) << Expect::Edge;
        QTest::newRow("rounded: top edge outlined") << quint32(2) << true << false << QPoint(180, 0) << Expect::Edge;
        QTest::newRow("gradient at the top") << capsule << true << false << QPoint(180, 1) << Expect::GradientTop;
        // The shape ends 2 above the row's bottom, its edge pixel half outline.
        QTest::newRow("gradient at the bottom") << rect << true << false << QPoint(180, -3) << Expect::GradientBottom;
        QTest::newRow("unfocused: flat grey") << capsule << false << false << QPoint(180, 8) << Expect::Flat;
        QTest::newRow("unfocused: grey outline") << rect << false << false << QPoint(180, 0) << Expect::Edge;
        QTest::newRow("custom image: no outline") << rect << true << true << QPoint(180, 0) << Expect::Custom;
        QTest::newRow("custom image: fills the row") << capsule << true << true << QPoint(180, 8) << Expect::Custom;
    }

    void selectedRow()
    {
        QFETCH(quint32, style);
        QFETCH(bool, focused);
        QFETCH(bool, customImage);
        QFETCH(QPoint, point);
        QFETCH(Expect, expected);

        Table table(3);
        TestDelegate delegate;
        QImage red = brixeltest::filledImage({4, 4}, Qt::red);
        if (customImage)
            delegate.image = red;
        table.view.setDelegate(&delegate);
        table.view.setHighlightStyle(ZARNTableView::HighlightStyle(style));
        table.view.selectRow(1);
        if (!focused)
            table.view.clearFocus();
        const QRect row = table.view.rectOfRow(1);
        // A y below 0 counts from the bottom of the row.
        const QPoint at(point.x() < 0 ? row.right() + 1 + point.x() : point.x(),
                        point.y() < 0 ? row.bottom() + 1 + point.y() : row.top() + point.y());

        const QImage gradient = table.view.highlightGradientImage();
        const QColor fill = focused ? gradient.pixelColor(0, 0) : Brixel::selectionColor(&table.view);
        const QColor colours[] = {Qt::white, over(Brixel::selectionOutlineColor(&table.view), 0.5, fill),
                                  gradient.pixelColor(0, 1), gradient.pixelColor(0, gradient.height() - 1),
                                  Brixel::selectionColor(&table.view), Qt::red};
        const QColor want = colours[int(expected)];
        const QColor got = colorAt(table.render(), at);
        QVERIFY2(colorsClose(got, want, 6), qPrintable(got.name() + u" want "_s + want.name()));
        if (!focused)
            QVERIFY(colorsClose(Brixel::selectionColor(&table.view), QColor::fromRgbF(0.7f, 0.7f, 0.7f)));
    }

    void textCellInset_data()
    {
        QTest::addColumn<quint32>("style");
        QTest::addColumn<bool>("inset");
        QTest::newRow("rectangle") << quint32(ZARNTableView::HighlightStyle::Rectangle) << false;
        QTest::newRow("capsule") << quint32(ZARNTableView::HighlightStyle::Capsule) << true;
        QTest::newRow("unknown style") << quint32(7) << false;
    }

    void textCellInset()
    {
        QFETCH(quint32, style);
        QFETCH(bool, inset);

        Table table(2);
        const auto textLeft = [&] {
            return brixeltest::pixelBounds(table.render().copy(table.view.rectOfRow(0)), isText).left();
        };
        const int plainLeft = textLeft();
        table.view.setHighlightStyle(ZARNTableView::HighlightStyle(style));
        const int shift = inset ? BrixelPrivate::textCellInset(table.view.rectOfRow(0).height()) : 0;
        QCOMPARE(textLeft(), plainLeft + shift);
    }

    void emptyMessage_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("attributed");
        QTest::addColumn<int>("viewHeight");
        QTest::addColumn<bool>("drawn");

        QTest::newRow("plain, centred") << 0 << u"Nothing here"_s << false << 160 << true;
        QTest::newRow("attributed, centred") << 0 << u"Nothing"_s << true << 160 << true;
        QTest::newRow("no message") << 0 << QString() << false << 160 << false;
        QTest::newRow("rows exist") << 1 << u"Nothing here"_s << false << 160 << false;
        QTest::newRow("taller than the view") << 0 << u"One two three four five six seven"_s << false << 40 << false;
    }

    void emptyMessage()
    {
        QFETCH(int, rows);
        QFETCH(QString, text);
        QFETCH(bool, attributed);
        QFETCH(int, viewHeight);
        QFETCH(bool, drawn);

        Table table(rows, viewHeight);
        if (attributed) {
            QFont font = QGuiApplication::font();
            font.setPixelSize(20);
            table.view.setEmptyAttributedString(ZARNAttributedString(
                text, {{ZARNFontAttributeName, font}, {ZARNForegroundColorAttributeName, QColor(Qt::red)}}));
        } else {
            table.view.setEmptyString(text);
        }
        const QColor ink = attributed ? QColor(Qt::red) : QColor(128, 128, 128);
        // Below the first row, so that a row's own text does not count.
        const QRect area(0, 40, 200, viewHeight - 40);
        const QImage image = table.render();
        if (rows > 0)
            QVERIFY(!brixeltest::pixelBounds(image.copy(table.view.rectOfRow(0)), isText).isNull());
        const QRect inked = brixeltest::pixelBounds(image.copy(area), [](const QColor &c) { return c != Qt::white; });
        QCOMPARE(!inked.isNull(), drawn && area.height() > 0);
        QCOMPARE(table.view.emptyAttributedString().has_value(), attributed);
        if (!drawn)
            return;
        const QRect message = inked.translated(area.topLeft());
        // The attributed message carries no alignment and starts at the left of its rectangle,
        // 10 in from the view's edge; the plain one is centred, in the application font, bold,
        // at 15 points.
        if (attributed) {
            QCOMPARE_LE(qAbs(message.left() - 11), 1);
        } else {
            QFont font = QGuiApplication::font();
            font.setPointSizeF(15.0);
            font.setBold(true);
            QCOMPARE_LE(qAbs(message.width() - QFontMetricsF(font).tightBoundingRect(text).width()), 3);
            QCOMPARE_LE(qAbs(message.center().x() - image.rect().center().x()), 2);
        }
        QCOMPARE_LE(qAbs(message.center().y() - image.rect().center().y()), 5);
        // Drawn without font smoothing: every inked pixel is the text colour itself.
        for (int y = message.top(); y <= message.bottom(); ++y)
            for (int x = message.left(); x <= message.right(); ++x)
                QVERIFY(image.pixelColor(x, y) == Qt::white || colorsClose(image.pixelColor(x, y), ink, 1));
    }

    void dropFeedback_data()
    {
        QTest::addColumn<int>("row");         // row under the drag, -1 below the rows
        QTest::addColumn<int>("yInRow");      // where in the row
        QTest::addColumn<QPoint>("probe");    // pixel relative to the probed row's top left
        QTest::addColumn<int>("probedRow");   // -1: the viewport
        QTest::addColumn<qreal>("alpha");     // the outline colour's strength at the probe

        QTest::newRow("on a row: frame") << 1 << 12 << QPoint(100, 1) << 1 << 0.9;
        QTest::newRow("on a row: tinted inside") << 1 << 12 << QPoint(150, 12) << 1 << 0.0;
        QTest::newRow("above a row: line on its top") << 2 << 1 << QPoint(100, 0) << 2 << 1.0;
        QTest::newRow("below a row: line on the next") << 1 << -1 << QPoint(100, 0) << 2 << 1.0;
        QTest::newRow("below the rows: frame round the view") << -1 << 0 << QPoint(0, 100) << -1 << 0.9;
    }

    void dropFeedback()
    {
        QFETCH(int, row);
        QFETCH(int, yInRow);
        QFETCH(QPoint, probe);
        QFETCH(int, probedRow);
        QFETCH(qreal, alpha);

        Table table(3);
        table.view.setDragDropMode(QAbstractItemView::DropOnly);
        table.view.clearFocus();
        const QRect rect = table.view.rectOfRow(row);
        const int y = row < 0 ? 150 : (yInRow < 0 ? rect.bottom() : rect.top() + yInRow);
        std::unique_ptr<QMimeData> data(table.model.mimeData({table.model.index(0, 0)}));
        // As a real drag does: it enters the view, then moves over it.
        QDragEnterEvent enter(QPoint(60, y), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(table.view.viewport(), &enter);
        QDragMoveEvent move(QPoint(60, y), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(table.view.viewport(), &move);

        const QPoint at = probe + (probedRow < 0 ? QPoint() : table.view.rectOfRow(probedRow).topLeft());
        const QColor outline = Brixel::selectionOutlineColor(&table.view);
        const QColor want = alpha > 0 ? over(outline, alpha) : over(Brixel::selectionColor(&table.view), 0.15);
        const QColor got = colorAt(table.render(), at);
        QVERIFY2(colorsClose(got, want, 3), qPrintable(got.name() + u" want "_s + want.name()));

        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(table.view.viewport(), &leave);
        QCOMPARE(colorAt(table.render(), at), QColor(Qt::white));
    }

    // Grid lines lie where QTableView draws them, also when the view is scrolled sideways.
    void gridMatchesQtTables()
    {
        QStandardItemModel model(6, 3);
        ZARNTableView ours;
        QTableView qts;
        for (QTableView *view : {static_cast<QTableView *>(&ours), &qts}) {
            view->setModel(&model);
            view->setFrameShape(QFrame::NoFrame);
            view->verticalHeader()->hide();
            view->horizontalHeader()->hide();
            view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
            view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
            for (int column = 0; column < 3; ++column)
                view->setColumnWidth(column, 90 - 10 * column);
            showView(*view, {200, 100});
            view->horizontalScrollBar()->setValue(25);
            view->verticalScrollBar()->setValue(7);
        }
        QCOMPARE(brixeltest::renderWidget(*ours.viewport()), brixeltest::renderWidget(*qts.viewport()));
    }
};

QTEST_MAIN(TestTableView)
#include "tst_tableview.moc"
