// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNNSViewAdditions.h>
#include <Brixel/ZARNTabView.h>

#include "windows/TabViewFitting_p.h"

#include "BrixelTest.h"

#include <QLineEdit>
#include <QTabBar>
#include <QTest>

namespace {

class Recorder : public ZARNTabViewDelegate
{
public:
    void tabViewReallyDidSelectTabViewItem(ZARNTabView *tabs, QWidget *item) override
    {
        windowHeights.append(tabs->window()->height());
        items.append(item);
    }
    QList<int> windowHeights;
    QList<QWidget *> items;
};

} // namespace

class TestTabView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void customViewFrames_data()
    {
        QTest::addColumn<uint>("mode");
        QTest::addColumn<ZARNRect>("frame");

        // A window (100, 200, 300, 400), y up, that must grow by 100 in height and 40 in width.
        QTest::newRow("0: unchanged") << 0u << ZARNRect(100, 200, 300, 400);
        QTest::newRow("17: top edge, horizontal centre") << 17u << ZARNRect(80, 100, 340, 500);
        QTest::newRow("18: vertical centre, horizontal centre") << 18u << ZARNRect(80, 150, 340, 500);
        QTest::newRow("33: top and right edges") << 33u << ZARNRect(60, 100, 340, 500);
        QTest::newRow("only 4: bottom-left corner stays") << 4u << ZARNRect(100, 200, 340, 500);
    }

    void customViewFrames()
    {
        QFETCH(uint, mode);
        QFETCH(ZARNRect, frame);
        const ZARNRect fitted = BrixelPrivate::windowFrameForCustomView(ZARNRect(100, 200, 300, 400), {240, 250},
                                                                        {200, 150}, mode);
        QCOMPARE(fitted.toQRectF(), frame.toQRectF());
        // Fractions are rounded outwards.
        const ZARNRect rounded = BrixelPrivate::windowFrameForCustomView(ZARNRect(0, 0, 100, 100), {111, 101},
                                                                         {100, 100}, 18);
        QCOMPARE(rounded.toQRectF(), QRectF(-6, -1, 112, 102));
    }

    void selectingFitsTheWindow()
    {
        QWidget window;
        window.setGeometry(50, 60, 400, 300);
        auto *tabs = new ZARNTabView(&window);
        tabs->setGeometry(0, 0, 400, 300);
        tabs->addTab(new QWidget, QStringLiteral("Empty"));
        auto *tall = new QWidget;   // its children span 50 to 250
        (new QWidget(tall))->setGeometry(10, 50, 50, 20);
        (new QWidget(tall))->setGeometry(10, 220, 50, 30);
        tabs->addTab(tall, QStringLiteral("Tall"));
        auto *item = new ZARNTabViewItem;
        auto *custom = new QWidget;
        custom->resize(300, 260);
        auto *field = new QLineEdit(custom);
        item->setCustomView(custom);
        tabs->addTab(item, QStringLiteral("Custom"));
        tabs->setWindowResizeMode(1);
        Recorder recorder;
        tabs->setDelegate(&recorder);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QPoint topLeft = window.geometry().topLeft();
        const int chrome = tabs->height() - tabs->currentWidget()->height();
        field->setFocus();

        tabs->setCurrentIndex(1);
        // The tab view's chrome, the children's 200 and 35.
        QCOMPARE(tabs->height(), chrome + 200 + 35);
        QCOMPARE(window.height(), 300 + (chrome + 235 - 300));
        QCOMPARE(window.geometry().topLeft(), topLeft);
        QCOMPARE(tabs->currentWidget()->childrenRect().top(), 15);
        QCOMPARE(recorder.windowHeights, QList<int>{window.height()});

        // A page without children leaves the window alone.
        const QSize size = window.size();
        tabs->setCurrentIndex(0);
        QCOMPARE(window.size(), size);
        QCOMPARE(recorder.items.size(), 2);

        // A custom view is installed after the window is resized around it.
        const QSize pageArea = tabs->currentWidget()->size();
        tabs->setCurrentIndex(2);
        QCOMPARE(window.size(), size + QSize(300, 260) - pageArea);
        QCOMPARE(window.geometry().topLeft(), topLeft);
        QVERIFY(custom->isVisible());
        QVERIFY(field->hasFocus());
        QCOMPARE(custom->parentWidget(), item);
    }

    void imageWidensTheLabel()
    {
        ZARNTabView tabs;
        auto *plain = new ZARNTabViewItem;
        auto *withImage = new ZARNTabViewItem;
        QImage star = brixeltest::filledImage({12, 12}, Qt::red);
        withImage->setImage(star);
        tabs.addTab(plain, QStringLiteral("Same"));
        tabs.addTab(withImage, QStringLiteral("Same"));
        tabs.resize(300, 200);
        const int labelHeight = tabs.tabBar()->fontMetrics().height();
        QCOMPARE(tabs.tabBar()->tabRect(1).width() - tabs.tabBar()->tabRect(0).width(), labelHeight + 2);
        // An image given to a tab that exists widens it as well.
        plain->setImage(star);
        QCOMPARE(tabs.tabBar()->tabRect(0).width(), tabs.tabBar()->tabRect(1).width());
    }

    void nextResponderOfClass()
    {
        ZARNTabView outer;
        QTabWidget inner(&outer);
        QWidget leaf(&inner);
        // The exact class further up wins over a nearer subclass.
        QCOMPARE(Brixel::nextResponderOfClass(&leaf, ZARNTabView::staticMetaObject), &outer);
        QCOMPARE(Brixel::nextResponderOfClass(&leaf, QTabWidget::staticMetaObject), &inner);
        QCOMPARE(Brixel::nextResponderOfClass(&inner, QTabWidget::staticMetaObject), &outer);
        QCOMPARE(Brixel::nextResponderOfClass(&outer, QWidget::staticMetaObject), nullptr);
        QCOMPARE(Brixel::nextResponderOfClass(nullptr, QWidget::staticMetaObject), nullptr);

        QWidget box;
        (new QWidget(&box))->setGeometry(10, 10, 30, 20);
        (new QWidget(&box))->setGeometry(50, 5, 10, 50);
        Brixel::sizeToFit(&box);
        QCOMPARE(box.size(), QSize(60, 55));
    }
};

QTEST_MAIN(TestTabView)
#include "tst_tabview.moc"
