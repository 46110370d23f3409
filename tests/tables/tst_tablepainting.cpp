// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSTableViewSelectionColorAdditions.h>
#include "tables/RowHighlighting_p.h"
#include <Brixel/ZARNTableView.h>
#include <Brixel/ZARNTableViewDelegate.h>

#include <BrixelTest.h>
#include "ViewKinds.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::StringLiterals;
using brixeltest::colorAt;
using brixeltest::colorsClose;

namespace {

class ImageDelegate : public ZARNTableViewDelegate
{
public:
    std::optional<QImage> tableViewCustomHighlightImageForRow(ZARNTableView *, int) override { return image; }
    std::optional<QImage> image;
};

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
        viewkinds::showFocused(view, {200, viewHeight});
    }

    QImage render() { return brixeltest::renderWidget(*view.viewport()); }

    void moveDrag(QPoint position)
    {
        std::unique_ptr<QMimeData> data(model.mimeData({model.index(0, 0)}));
        // As a real drag does: it enters the view, then moves over it.
        QDragEnterEvent enter(position, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &enter);
        QDragMoveEvent move(position, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &move);
    }

    void leaveDrag()
    {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(view.viewport(), &event);
    }

    viewkinds::DataSourceModel model;
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

} // namespace

class TestTablePainting : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }
    void selectedRow_data();
    void selectedRow();
    void textCellInset_data();
    void textCellInset();
    void emptyMessage_data();
    void emptyMessage();
    void dropFeedback_data();
    void dropFeedback();
    void gridMatchesQtTables();
};

enum class Expect { Background, Edge, GradientTop, GradientBottom, Flat, Custom };
Q_DECLARE_METATYPE(Expect)

void TestTablePainting::selectedRow_data()
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

void TestTablePainting::selectedRow()
{
    QFETCH(quint32, style);
    QFETCH(bool, focused);
    QFETCH(bool, customImage);
    QFETCH(QPoint, point);
    QFETCH(Expect, expected);

    Table table(3);
    ImageDelegate delegate;
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
    const QColor colours[] = {Qt::white, over(Brixel::selectionOutlineColor(&table.view), 0.5, fill), gradient.pixelColor(0, 1),
                              gradient.pixelColor(0, gradient.height() - 1), Brixel::selectionColor(&table.view), Qt::red};
    const QColor want = colours[int(expected)];
    const QColor got = colorAt(table.render(), at);
    QVERIFY2(colorsClose(got, want, 6), qPrintable(u"%1 at (%2, %3), want %4"_s.arg(got.name()).arg(at.x()).arg(at.y()).arg(want.name())));
    if (!focused)
        QVERIFY(colorsClose(Brixel::selectionColor(&table.view), QColor::fromRgbF(0.7f, 0.7f, 0.7f)));
}

void TestTablePainting::textCellInset_data()
{
    QTest::addColumn<quint32>("style");
    QTest::addColumn<bool>("inset");
    QTest::newRow("rectangle") << quint32(ZARNTableView::HighlightStyle::Rectangle) << false;
    QTest::newRow("capsule") << quint32(ZARNTableView::HighlightStyle::Capsule) << true;
    QTest::newRow("rounded rectangle") << quint32(ZARNTableView::HighlightStyle::RoundedRectangle) << true;
    QTest::newRow("unknown style") << quint32(7) << false;
}

void TestTablePainting::textCellInset()
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

void TestTablePainting::emptyMessage_data()
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

void TestTablePainting::emptyMessage()
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
    const QRect inked = brixeltest::pixelBounds(image.copy(area), [](const QColor &c) { return c != Qt::white; });
    QCOMPARE(!inked.isNull(), drawn && area.height() > 0);
    QCOMPARE(table.view.emptyAttributedString().has_value(), attributed);
    if (!drawn)
        return;
    const QRect message = inked.translated(area.topLeft());
    if (!attributed) {   // the default look: the application font, bold, at 15 points
        QFont font = QGuiApplication::font();
        font.setPointSizeF(15.0);
        font.setBold(true);
        const qreal width = QFontMetricsF(font).tightBoundingRect(text).width();
        QVERIFY2(qAbs(message.width() - width) <= 3, qPrintable(u"%1 for %2"_s.arg(message.width()).arg(width)));
    }
    // The plain message is centred; the attributed one carries no alignment and starts at the
    // left of its rectangle, 10 in from the view's edge.
    if (attributed)
        QVERIFY2(message.left() >= 10 && message.left() <= 12, qPrintable(u"%1"_s.arg(message.left())));
    else
        QVERIFY2(qAbs(message.center().x() - image.rect().center().x()) <= 2, qPrintable(u"%1"_s.arg(message.center().x())));
    QVERIFY2(qAbs(message.center().y() - image.rect().center().y()) <= 5, qPrintable(u"%1"_s.arg(message.center().y())));
    // Drawn without font smoothing: every inked pixel is the text colour itself.
    for (int y = message.top(); y <= message.bottom(); ++y)
        for (int x = message.left(); x <= message.right(); ++x)
            QVERIFY(image.pixelColor(x, y) == Qt::white || colorsClose(image.pixelColor(x, y), ink, 1));
}

void TestTablePainting::dropFeedback_data()
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

void TestTablePainting::dropFeedback()
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
    table.moveDrag(QPoint(60, y));

    const QPoint at = probe + (probedRow < 0 ? QPoint() : table.view.rectOfRow(probedRow).topLeft());
    const QColor outline = Brixel::selectionOutlineColor(&table.view);
    const QColor want = alpha > 0 ? over(outline, alpha) : over(Brixel::selectionColor(&table.view), 0.15);
    QVERIFY2(colorsClose(colorAt(table.render(), at), want, 3),
             qPrintable(colorAt(table.render(), at).name() + u" want "_s + want.name()));

    table.leaveDrag();
    QCOMPARE(colorAt(table.render(), at), QColor(Qt::white));
}

// Grid lines lie where QTableView draws them, also when the view is scrolled sideways.
void TestTablePainting::gridMatchesQtTables()
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
        viewkinds::showView(*view, {200, 100});
        view->horizontalScrollBar()->setValue(25);
        view->verticalScrollBar()->setValue(7);
    }
    QCOMPARE(brixeltest::renderWidget(*ours.viewport()), brixeltest::renderWidget(*qts.viewport()));
}

QTEST_MAIN(TestTablePainting)
#include "tst_tablepainting.moc"
