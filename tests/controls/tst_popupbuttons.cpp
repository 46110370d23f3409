// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNChiseledTextField.h>
#include <Brixel/ZARNChiseledTextPopUpButton.h>
#include <Brixel/ZARNPopUpButton.h>

#include "controls/ChiseledPopUpLayout_p.h"

#include "BrixelTest.h"

#include <QMenu>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class RecordingDelegate : public ZARNPopUpButtonDelegate
{
public:
    void popUpButtonWillDisplayMenu(ZARNPopUpButton *, QMenu *menu) override
    {
        menuVisibleWhenAsked = menu->isVisible();
        ++calls;
    }
    int calls = 0;
    bool menuVisibleWhenAsked = true;
};

// Three items "A", "B", "C" tagged 10, 20, 30, "B" selected.
void addItems(ZARNPopUpButton &button)
{
    for (int i = 0; i < 3; ++i)
        button.addItemWithTitle(QString(QChar(u'A' + i)))->setData(10 * (i + 1));
    button.selectItemAtIndex(1);
}

// Closes a menu as soon as it shows and remembers where it showed.
struct MenuWatcher
{
    explicit MenuWatcher(QMenu *menu)
    {
        QObject::connect(menu, &QMenu::aboutToShow, menu, [this, menu] {
            shown = true;
            QTimer::singleShot(0, menu, [this, menu] { position = menu->pos(), menu->close(); });
        });
    }
    bool shown = false;
    QPoint position;
};

bool isCapsule(const QImage &image)
{
    // The capsule covers the middle of the image's left edge region; the idle look does not.
    return image.pixelColor(image.width() / 2, 1).alpha() > 0;
}

} // namespace

class TestPopUpButtons : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    void selection_data()
    {
        QTest::addColumn<std::function<void(ZARNPopUpButton &)>>("operation");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QList<bool>>("checked");

        using Operation = std::function<void(ZARNPopUpButton &)>;
        QTest::newRow("index") << Operation([](auto &b) { b.selectItemAtIndex(2); }) << 2 << u"C"_s
                               << QList<bool>{false, false, true};
        QTest::newRow("past the end changes nothing") << Operation([](auto &b) {
            b.menu()->actions().at(0)->setChecked(true);
            b.selectItemAtIndex(3);
        }) << 1 << u"B"_s << QList<bool>{true, true, false};
        QTest::newRow("tag") << Operation([](auto &b) { b.selectItemWithTag(10); }) << 0 << u"A"_s
                             << QList<bool>{true, false, false};
        QTest::newRow("chosen in the menu selects nothing")
            << Operation([](auto &b) { b.menu()->actions().at(2)->trigger(); }) << 1 << u"B"_s
            << QList<bool>{false, true, false};
        QTest::newRow("negative index throws") << Operation([](auto &b) {
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, b.selectItemAtIndex(-1));
        }) << 1 << u"B"_s << QList<bool>{false, true, false};
        QTest::newRow("absent tag throws") << Operation([](auto &b) {
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, b.selectItemWithTag(99));
        }) << 1 << u"B"_s << QList<bool>{false, true, false};
        QTest::newRow("removing all items keeps the index") << Operation([](auto &b) {
            b.menu()->removeAction(b.menu()->actions().at(2));
            b.menu()->removeAction(b.menu()->actions().at(1));
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, b.selectedItem());   // the index is now the count
            b.removeAllItems();
            QVERIFY(!b.lastItem());
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, b.selectedItem());
        }) << 1 << u"B"_s << QList<bool>{};
    }

    void selection()
    {
        QFETCH(std::function<void(ZARNPopUpButton &)>, operation);
        QFETCH(int, index);
        QFETCH(QString, title);
        QFETCH(QList<bool>, checked);
        ZARNPopUpButton button;
        addItems(button);
        operation(button);
        QCOMPARE(button.selectedItemIndex(), index);
        QCOMPARE(button.text(), title);
        const QList<QAction *> items = button.menu()->actions();
        QList<bool> states;
        for (const QAction *item : items)
            states.append(item->isChecked());
        QCOMPARE(states, checked);
        if (!checked.isEmpty())
            QCOMPARE(button.selectedItem()->text(), title);
        QCOMPARE(button.lastItem(), items.isEmpty() ? nullptr : items.constLast());
    }

    void popsUpItsMenu_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<Qt::MouseButton>("mouseButton");
        QTest::addColumn<bool>("opens");

        QTest::newRow("left click") << true << Qt::LeftButton << true;
        QTest::newRow("right click is ignored") << true << Qt::RightButton << false;
        QTest::newRow("disabled") << false << Qt::LeftButton << false;
    }

    void popsUpItsMenu()
    {
        QFETCH(bool, enabled);
        QFETCH(Qt::MouseButton, mouseButton);
        QFETCH(bool, opens);
        QWidget window;
        auto *button = new ZARNPopUpButton(&window);
        addItems(*button);
        button->setGeometry(20, 30, 80, 24);
        button->setEnabled(enabled);
        RecordingDelegate delegate;
        button->setDelegate(&delegate);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        const MenuWatcher menu(button->menu());
        QTest::mouseClick(button, mouseButton, {}, QPoint(5, 5));
        QCOMPARE(menu.shown, opens);
        QCOMPARE(delegate.calls, opens ? 1 : 0);
        QVERIFY(!button->isDown());
        if (!opens)
            return;
        QVERIFY(!delegate.menuVisibleWhenAsked);
        // The menu opens at the bottom-left corner, four pixels lower.
        QCOMPARE(menu.position, button->mapToGlobal(QPoint(0, 24 + 4)));
    }

    void titleLayout_data()
    {
        QTest::addColumn<ZARNSize>("title");
        QTest::addColumn<bool>("sizeHeightToFit");
        QTest::addColumn<int>("anchorMask");
        QTest::addColumn<ZARNRect>("frame");

        // From a frame (100, 50, 60, 20) in y-up coordinates, caps 9 and 9, arrow 7:
        // width trunc(40.6 + 9 + 9) + 7 - 4 = 61.
        QTest::newRow("right edge stays") << ZARNSize{40.6f, 14.0f} << false << 1 << ZARNRect(99, 50, 61, 20);
        QTest::newRow("left edge stays") << ZARNSize{40.6f, 14.0f} << false << 0 << ZARNRect(100, 50, 61, 20);
        QTest::newRow("other bits do not anchor") << ZARNSize{40.6f, 14.0f} << false << 2 << ZARNRect(100, 50, 61, 20);
        QTest::newRow("height truncated") << ZARNSize{40.0f, 14.9f} << true << 1 << ZARNRect(99, 50, 61, 18);
    }

    void titleLayout()
    {
        QFETCH(ZARNSize, title);
        QFETCH(bool, sizeHeightToFit);
        QFETCH(int, anchorMask);
        QFETCH(ZARNRect, frame);
        const ZARNRect laidOut = BrixelPrivate::chiseledPopUpFrame(ZARNRect(100, 50, 60, 20), title, {9.0f, 9.0f, 7.0f},
                                                                   sizeHeightToFit, anchorMask);
        QCOMPARE(laidOut.toQRectF(), frame.toQRectF());
        const ZARNPoint origin = BrixelPrivate::chiseledTitleOrigin({49, 20}, {40, 13}, 9);
        QCOMPARE(origin.toQPointF(), QPointF(5, 4.5));
        QCOMPARE(BrixelPrivate::chiseledArrowOrigin(origin, {40, 13}, {7, 4}).toQPointF(), QPointF(45, 4.5));
    }

    void buttonFollowsItsTitle()
    {
        QWidget window;
        window.resize(400, 100);
        auto *button = new ZARNChiseledTextPopUpButton(&window);
        button->SetSizeHeightToFit(true);
        button->setTitle(u"All"_s);
        const QRect first = button->geometry();
        button->setTitle(u"All Documents"_s);
        const QRect second = button->geometry();

        QFont bold = button->font();
        bold.setPointSizeF(11.0);
        bold.setBold(true);
        QFontMetrics metrics(bold);
        QVERIFY(second.width() > first.width());
        QVERIFY(second.width() >= metrics.horizontalAdvance(u"All Documents"_s) + 16);   // room for the caps and arrow
        QCOMPARE(second.right(), first.right());
        QCOMPARE(second.bottom(), first.bottom());
        QCOMPARE(second.height(), metrics.height() + 4);
        QCOMPARE(button->sizeHint(), second.size());
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    }

    void appearances()
    {
        ZARNChiseledTextPopUpButton button(u"Documents"_s);
        const QImage idle = button.image();
        QVERIFY(!isCapsule(idle));
        // The button shows its idle appearance as it is.
        QImage shown = brixeltest::filledImage(button.size(), Qt::transparent);
        button.render(&shown, {}, {}, QWidget::DrawChildren);
        QCOMPARE(shown, idle);
        QVERIFY(isCapsule(button.ConstructMouseOverImage()));
        QVERIFY(isCapsule(button.alternateImage()));
        QVERIFY(button.alternateImage().pixelColor(0, button.height() / 2).alpha() > 0);   // the left cap from x = 0
        QVERIFY(button.ConstructMouseOverImage() != button.alternateImage());

        // The idle title is drawn in the active colour, with a lighter copy below.
        const auto contains = [](const QImage &image, const QColor &color) {
            const auto close = [&](const QColor &pixel) { return brixeltest::colorsClose(pixel, color, 3); };
            return !brixeltest::pixelBounds(image, close).isNull();
        };
        const QColor active = ZARNChiseledTextField::defaultActiveColor();
        QVERIFY(contains(idle, active));
        // The capsules carry white text with a dark copy below, in any activity.
        QVERIFY(contains(button.ConstructMouseOverImage(), Qt::white));
        QVERIFY(contains(button.alternateImage(), ZARNChiseledTextPopUpButton::shadow_HighlightColor()));
        button.deactivate();
        QVERIFY(!contains(button.image(), active));
        QVERIFY(contains(button.image(), ZARNChiseledTextField::defaultInactiveColor()));

        // The kept down-arrow images are never drawn.
        button.activate();
        QImage red = brixeltest::filledImage({7, 4}, Qt::red);
        button.setDownArrow_Idle_Image(red);
        QCOMPARE(button.ConstructIdleImage(), idle);
    }

    void hover_data()
    {
        QTest::addColumn<bool>("activeWindow");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("capsule");

        QTest::newRow("active window") << true << true << true;
        QTest::newRow("inactive window") << false << true << false;
        QTest::newRow("disabled") << true << false << false;
    }

    void hover()
    {
        QFETCH(bool, activeWindow);
        QFETCH(bool, enabled);
        QFETCH(bool, capsule);
        QWidget window;
        auto *button = new ZARNChiseledTextPopUpButton(u"Documents"_s, &window);
        button->setEnabled(enabled);
        window.show();
        if (activeWindow) {
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
        }
        QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), QPointF(2, 2));
        QCoreApplication::sendEvent(button, &enter);
        QCOMPARE(isCapsule(button->image()), capsule);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(button, &leave);
        QVERIFY(!isCapsule(button->image()));
    }
};

QTEST_MAIN(TestPopUpButtons)
#include "tst_popupbuttons.moc"
