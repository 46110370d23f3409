// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNOutlineView.h>
#include <Brixel/ZARNOutlineViewDelegate.h>

#include <BrixelTest.h>
#include "ViewKinds.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class MarkerDelegate : public ZARNOutlineViewDelegate
{
public:
    std::optional<bool> outlineViewShouldShowIndentationMarkerForItem(ZARNOutlineView *, const QModelIndex &) override
    {
        return showsMarker;
    }
    std::optional<QImage> outlineViewCollapsedIndicatorForItem(ZARNOutlineView *, const QModelIndex &) override
    {
        return indicator;
    }
    std::optional<bool> showsMarker;
    std::optional<QImage> indicator;
};

/// An active, focused outline of one column on white: "a" (children "a1", "a2") and "b".
struct Outline
{
    Outline()
    {
        auto *a = new QStandardItem(u"a"_s);
        a->appendRow(new QStandardItem(u"a1"_s));
        a->appendRow(new QStandardItem(u"a2"_s));
        model.appendRow(a);
        model.appendRow(new QStandardItem(u"b"_s));
        view.setModel(&model);
        view.setDelegate(&delegate);
        view.header()->hide();
        viewkinds::showFocused(view, {200, 120});
    }

    QModelIndex item(const QString &name) const { return model.findItems(name, Qt::MatchRecursive).value(0)->index(); }
    QRect cell(const QString &name) const { return view.visualRect(item(name)); }
    QImage render() { return brixeltest::renderWidget(*view.viewport()); }

    QStandardItemModel model;
    MarkerDelegate delegate;
    ZARNOutlineView view;
};

bool isWhite(const QColor &c)
{
    return c.red() > 245 && c.green() > 245 && c.blue() > 245;
}

bool isText(const QColor &c)
{
    return c.lightness() < 128;
}

/// Whether \a image has a pixel matching \a matches inside \a area.
bool hasPixel(const QImage &image, const QRect &area, bool (*matches)(const QColor &))
{
    return !brixeltest::pixelBounds(image.copy(area), matches).isNull();
}

} // namespace

class TestOutlinePainting : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }
    void highlightFollowsIndentation_data();
    void highlightFollowsIndentation();
    void hiddenMarkerWidensCell_data();
    void hiddenMarkerWidensCell();
};

void TestOutlinePainting::highlightFollowsIndentation_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("follows");
    QTest::addColumn<int>("indent"); // where the shape starts, in indentation steps plus 16 for leaves

    // A nested leaf: one level in, plus the missing triangle's 16.
    QTest::newRow("nested leaf, following") << u"a1"_s << true << 1;
    QTest::newRow("nested leaf, not following") << u"a1"_s << false << 0;
    QTest::newRow("top-level leaf") << u"b"_s << true << 0;
}

void TestOutlinePainting::highlightFollowsIndentation()
{
    QFETCH(QString, name);
    QFETCH(bool, follows);
    QFETCH(int, indent);

    Outline o;
    o.view.expandAll();
    o.view.setHighlightFollowsIndentation(follows);
    o.view.selectionModel()->select(o.item(name), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    const int left = indent == 0 ? 0 : indent * o.view.indentation() + 16;
    const int y = o.cell(name).center().y();
    const QImage image = o.render();

    // Left of the shape is background; just inside it (past the 1-wide outline) is the fill.
    if (left > 0)
        QVERIFY(isWhite(brixeltest::colorAt(image, {left - 2, y})));
    QVERIFY(!isWhite(brixeltest::colorAt(image, {left + 2, y})));
}

void TestOutlinePainting::hiddenMarkerWidensCell_data()
{
    QTest::addColumn<std::optional<bool>>("delegateAnswer");
    QTest::addColumn<bool>("viewShows");
    QTest::addColumn<bool>("widened");

    QTest::newRow("marker shown") << std::optional<bool>() << true << false;
    QTest::newRow("view hides markers") << std::optional<bool>() << false << true;
    QTest::newRow("delegate hides the marker") << std::optional<bool>(false) << true << true;
    QTest::newRow("delegate shows it over the view") << std::optional<bool>(true) << false << false;
}

void TestOutlinePainting::hiddenMarkerWidensCell()
{
    QFETCH(std::optional<bool>, delegateAnswer);
    QFETCH(bool, viewShows);
    QFETCH(bool, widened);

    Outline o;
    o.delegate.showsMarker = delegateAnswer;
    o.view.setShowsIndentationMarker(viewShows);
    // "b" is a leaf: without a widened cell nothing is drawn left of its cell.
    const QRect cell = o.cell(u"b"_s);
    const QImage image = o.render();
    QCOMPARE(hasPixel(image, QRect(cell.left() - 16, cell.top(), 16, cell.height()), isText), widened);
    QVERIFY(hasPixel(image, cell.adjusted(-16, 0, 0, 0), isText));
}

QTEST_MAIN(TestOutlinePainting)
#include "tst_outlinepainting.moc"
