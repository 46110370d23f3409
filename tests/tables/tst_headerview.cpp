// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSTableHeaderView.h>

#include "ViewKinds.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Every cell is 100 wide, so a fitted column is 114 (100 x 1.1 + 4).
class HundredWideCell : public QStyledItemDelegate
{
public:
    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override { return {100, 16}; }
};

constexpr int fitted = 114;

} // namespace

class TestHeaderView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void doubleClick_data();
    void doubleClick();
};

void TestHeaderView::doubleClick_data()
{
    QTest::addColumn<QList<int>>("widths"); // section sizes before the click
    QTest::addColumn<std::function<int(int grip)>>("x"); // where to click, given the grip margin
    QTest::addColumn<std::function<void(QTableView &, ZARNNSTableHeaderView &)>>("setUp");
    QTest::addColumn<QList<int>>("expected"); // section sizes after the click
    QTest::addColumn<int>("handleSignals"); // QHeaderView's sectionHandleDoubleClicked
    QTest::addColumn<int>("sectionSignals"); // QHeaderView's sectionDoubleClicked

    using X = std::function<int(int)>;
    using SetUp = std::function<void(QTableView &, ZARNNSTableHeaderView &)>;
    const SetUp none = [](QTableView &, ZARNNSTableHeaderView &) {};
    const QList<int> even{60, 60, 60};
    QTest::newRow("trailing edge of the first") << even << X([](int) { return 59; }) << none
                                                << QList<int>{fitted, 60, 60} << 0 << 0;
    QTest::newRow("leading edge of the second fits the first") << even << X([](int) { return 61; }) << none
                                                               << QList<int>{fitted, 60, 60} << 0 << 0;
    QTest::newRow("trailing edge of the last") << even << X([](int) { return 178; }) << none
                                               << QList<int>{60, 60, fitted} << 0 << 0;
    QTest::newRow("8 points from a divider fits, beyond the grip") << even << X([](int) { return 52; }) << none
                                                                  << QList<int>{fitted, 60, 60} << 0 << 0;
    QTest::newRow("12 points from a divider goes to the header") << even << X([](int) { return 48; }) << none
                                                                 << even << 0 << 1;
    QTest::newRow("switched off goes to the header")
        << even << X([](int) { return 59; })
        << SetUp([](auto &, auto &header) { header.setResizeColumnsOnDoubleClick(false); }) << QList<int>{-1, 60, 60}
        << 1 << 0;
    QTest::newRow("fixed section is not fitted")
        << even << X([](int) { return 59; })
        << SetUp([](auto &, auto &header) { header.setSectionResizeMode(0, QHeaderView::Fixed); }) << even << 0 << 1;
    QTest::newRow("disabled view ignores it")
        << even << X([](int) { return 59; }) << SetUp([](auto &view, auto &) { view.setEnabled(false); }) << even << 0
        << 0;
    QTest::newRow("edge next to a hidden section")
        << even << X([](int) { return 61; })
        << SetUp([](auto &, auto &header) { header.hideSection(1); }) << QList<int>{fitted, 0, 60} << 0 << 0;
    // Dividers at 100 and 106: the nearer one wins, the left one on a tie.
    const QList<int> narrow{100, 6, 60};
    QTest::newRow("nearer right edge wins") << narrow << X([](int) { return 105; }) << none
                                            << QList<int>{100, fitted, 60} << 0 << 0;
    QTest::newRow("tie goes to the left column") << narrow << X([](int) { return 103; }) << none
                                                 << QList<int>{fitted, 6, 60} << 0 << 0;
}

void TestHeaderView::doubleClick()
{
    QFETCH(QList<int>, widths);
    QFETCH(std::function<int(int)>, x);
    QFETCH(std::function<void(QTableView &, ZARNNSTableHeaderView &)>, setUp);
    QFETCH(QList<int>, expected);
    QFETCH(int, handleSignals);
    QFETCH(int, sectionSignals);
    QStandardItemModel model(2, 3);
    QTableView view;
    view.setModel(&model);
    auto *header = new ZARNNSTableHeaderView(&view);
    view.setHorizontalHeader(header);
    header->setMinimumSectionSize(1);
    HundredWideCell cell;
    view.setItemDelegate(&cell);
    for (int section = 0; section < widths.size(); ++section)
        header->resizeSection(section, widths.at(section));
    viewkinds::showView(view, {400, 200});
    setUp(view, *header);
    QSignalSpy handleSpy(header, &QHeaderView::sectionHandleDoubleClicked);
    QSignalSpy sectionSpy(header, &QHeaderView::sectionDoubleClicked);
    const int grip = header->style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, header);
    QVERIFY2(grip >= 3, "the clicks below lie within a grip margin of at least 3 pixels");

    QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, QPoint(x(grip), header->height() / 2));
    for (int section = 0; section < expected.size(); ++section)
        if (expected.at(section) >= 0) // -1: whatever Qt's own resizing gave
            QCOMPARE(header->sectionSize(section), expected.at(section));
    QCOMPARE(handleSpy.size(), handleSignals);
    QCOMPARE(sectionSpy.size(), sectionSignals);
}

QTEST_MAIN(TestHeaderView)
#include "tst_headerview.moc"
