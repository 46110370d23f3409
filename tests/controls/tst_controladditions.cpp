// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/NSPopUpButton_Category.h>
#include <Brixel/NSSegmentedControl_Category.h>
#include <Brixel/ZARNNSMenuAdditions.h>
#include <Brixel/ZARNNSPopUpButtonAdditions.h>
#include <Brixel/ZARNNSTabViewAdditions.h>
#include <Brixel/ZARNSegmentedControlBase.h>
#include <Brixel/ZARNSystemVersion.h>

#include <QComboBox>
#include <QMenu>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Segments tagged 5, 7, 7, 0 with nothing selected; counts the times the control was asked to
// select by tag itself.
class TaggedSegments : public ZARNSegmentedControlBase
{
public:
    TaggedSegments()
    {
        setSegmentCount(4);
        setTag(5, 0);
        setTag(7, 1);
        setTag(7, 2);
    }
    bool selectSegmentWithTag(int tag) override
    {
        ++ownSelections;
        return ZARNSegmentedControlBase::selectSegmentWithTag(tag);
    }
    int ownSelections = 0;
};

} // namespace

class TestControlAdditions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { Brixel::ZARNSetSystemVersion(ZARNSystemVersionNewest); }

    void menuItems()
    {
        QMenu menu;
        QCOMPARE(Brixel::lastItem(&menu), nullptr);
        QAction first(u"First"_s), second(u"Second"_s);
        Brixel::addItems(&menu, {&first, nullptr, &second});
        QCOMPARE(menu.actions(), (QList<QAction *>{&first, &second}));
        QCOMPARE(Brixel::lastItem(&menu), &second);
    }

    void popUpTags_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<int>("item");

        // Items tagged 1, 2, 2 and one without data, which has tag 0.
        QTest::newRow("first of two tagged alike") << 2 << 1;
        QTest::newRow("item without data") << 0 << 3;
        QTest::newRow("absent") << 9 << -1;
    }

    void popUpTags()
    {
        QFETCH(int, tag);
        QFETCH(int, item);
        QComboBox button;
        button.addItem(u"One"_s, 1);
        button.addItem(u"Two"_s, 2);
        button.addItem(u"Two again"_s, 2);
        button.addItem(u"Untagged"_s);
        button.setCurrentIndex(2);

        QCOMPARE(Brixel::itemWithTag(&button, tag), item);
        QCOMPARE(Brixel::selectItemWithTag(&button, tag), item != -1);
        QCOMPARE(button.currentIndex(), item == -1 ? 2 : item); // a miss keeps the selection
        Brixel::selectItemWithTagOrClear(&button, tag);
        QCOMPARE(button.currentIndex(), item); // a miss clears it
    }

    void tabIdentifiers_data()
    {
        QTest::addColumn<QVariant>("identifier");
        QTest::addColumn<int>("tab");

        // Tabs with identifiers "general" and 3, and one without.
        QTest::newRow("text") << QVariant(u"general"_s) << 0;
        QTest::newRow("number of another type") << QVariant(3.0) << 1;
        QTest::newRow("invalid matches no page") << QVariant() << -1;
    }

    void tabIdentifiers()
    {
        QFETCH(QVariant, identifier);
        QFETCH(int, tab);
        QTabWidget tabView;
        for (const QVariant &pageIdentifier : {QVariant(u"general"_s), QVariant(3), QVariant()}) {
            auto *page = new QWidget;
            page->setProperty(ZARNTabViewItemIdentifierProperty, pageIdentifier);
            tabView.addTab(page, pageIdentifier.toString());
        }
        if (tab == -1)
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, Brixel::tabViewItemWithIdentifier(&tabView, identifier));
        else
            QCOMPARE(Brixel::tabViewItemWithIdentifier(&tabView, identifier), tabView.widget(tab));
    }

    void segmentTags_data()
    {
        QTest::addColumn<quint32>("systemVersion");
        QTest::addColumn<int>("tag");
        QTest::addColumn<int>("segment");
        QTest::addColumn<int>("ownSelections");

        // Above system version 0x103F the control selects by tag itself; up to it the segments are walked.
        QTest::newRow("control selects: first of two") << 0x1040u << 7 << 1 << 1;
        QTest::newRow("control selects: absent") << 0x1040u << 9 << -1 << 1;
        QTest::newRow("walked: first of two") << 0x103Fu << 7 << 1 << 0;
        QTest::newRow("walked: default tag") << 0x103Fu << 0 << 3 << 0;
        QTest::newRow("walked: absent") << 0x103Fu << 9 << -1 << 0;
    }

    void segmentTags()
    {
        QFETCH(quint32, systemVersion);
        QFETCH(int, tag);
        QFETCH(int, segment);
        QFETCH(int, ownSelections);
        Brixel::ZARNSetSystemVersion(systemVersion);
        TaggedSegments control;

        QCOMPARE(Brixel::segmentWithTag(&control, tag), segment);
        QCOMPARE(Brixel::selectSegmentWithTag(&control, tag), segment != -1);
        QCOMPARE(control.ownSelections, ownSelections);
        QCOMPARE(control.selectedSegment(), segment);
        QCOMPARE(Brixel::selectedSegmentTag(&control), segment == -1 ? -1 : tag);
    }

    void nullControls()
    {
        Brixel::addItems(nullptr, {});
        QCOMPARE(Brixel::lastItem(nullptr), nullptr);
        QCOMPARE(Brixel::itemWithTag(nullptr, 0), -1);
        QVERIFY(!Brixel::selectItemWithTag(nullptr, 0));
        Brixel::selectItemWithTagOrClear(nullptr, 0);
        QCOMPARE(Brixel::tabViewItemWithIdentifier(nullptr, u"general"_s), nullptr);
        QCOMPARE(Brixel::selectedSegmentTag(nullptr), -1);
        QCOMPARE(Brixel::segmentWithTag(nullptr, 0), -1);
        QVERIFY(!Brixel::selectSegmentWithTag(nullptr, 0));
    }
};

QTEST_MAIN(TestControlAdditions)
#include "tst_controladditions.moc"
