// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXAlert.h>
#include <Brixel/ZARNChiseledTextField.h>
#include <Brixel/ZARNProgressWindow.h>

#include "BrixelTest.h"

#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<BXAlert> makeAlert(const QString &button1 = u"OK"_s, const QString &button2 = u"Cancel"_s,
                                   const QString &button3 = u"Other"_s)
{
    return BXAlert::alertWithTitle(u"Title"_s, u"Statement"_s, u"Message"_s, QImage(), button1, button2, button3);
}

class CancelCounter : public ZARNProgressWindowDelegate
{
public:
    void progressWindowCanceled(ZARNProgressWindow *) override { ++cancels; }
    int cancels = 0;
};

} // namespace

class TestPanels : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { brixeltest::useTestFont(); }

    void missingFormsGiveNull()
    {
        QVERIFY(!BXAlert::alertWithTitle({}, {}, {}, {}, {}, {}, {}, u"/nonexistent/Alert.ui"_s));
        QVERIFY(!BXAlert::alertWithTitle({}, {}, {}, {}, {}, {}, {}, ZARNProgressWindow::defaultFormPath()));
        QVERIFY(!ZARNProgressWindow::progressWindow(u"/nonexistent/ProgressWindow.ui"_s));
        QVERIFY(!ZARNProgressWindow::progressWindow(BXAlert::defaultFormPath()));
    }

    void alertButtons_data()
    {
        QTest::addColumn<QString>("button2Title");
        QTest::addColumn<bool>("button2Shown");

        QTest::newRow("three buttons") << u"Cancel"_s << true;
        QTest::newRow("empty button 2 is hidden but still fitted") << QString() << false;
    }

    void alertButtons()
    {
        QFETCH(QString, button2Title);
        QFETCH(bool, button2Shown);
        // A wider title moves button 1's left edge, and buttons 2 and 3 with it, by its growth.
        const std::unique_ptr<BXAlert> alert = makeAlert(u"OK"_s, button2Title, u"Other"_s);
        QPushButton *button1 = alert->button1();
        const int right = button1->geometry().right();
        const QList<int> lefts{button1->x(), alert->button2()->x(), alert->button3()->x()};
        QCOMPARE(button1->width(), button1->sizeHint().width() + 14);
        QCOMPARE(alert->button2()->isVisibleTo(alert->window()), button2Shown);
        QCOMPARE(alert->button2()->isEnabled(), button2Shown);

        // Made taller than its title needs, it is refitted from its bottom edge.
        button1->setGeometry(button1->geometry().adjusted(0, -20, 0, 0));
        const int bottom = button1->geometry().bottom();
        const int oldWidth = button1->width();
        alert->setButton1Title(u"OK, and a much longer title"_s);
        const int growth = button1->width() - oldWidth;
        QCOMPARE(button1->geometry().bottom(), bottom);
        QCOMPARE(button1->geometry().right(), right);
        QCOMPARE(button1->x(), lefts[0] - growth);
        QCOMPARE(alert->button2()->x(), lefts[1] - growth);
        QCOMPARE(alert->button3()->x(), lefts[2] - growth);
        QVERIFY(growth > 0);
    }

    void alertStatementGrowsTheWindow()
    {
        const std::unique_ptr<BXAlert> alert = makeAlert();
        ZARNWindow *window = alert->window();
        ZARNChiseledTextField *statement = alert->statementField();
        const QRect windowBefore = window->geometry();
        const int statementFromBottom = window->height() - statement->geometry().bottom();
        const int buttonFromBottom = window->height() - alert->button1()->y();
        const int oneLine = statement->height();

        alert->setStatement(u"A statement long enough to take three lines in the alert's statement field, which "
                            u"keeps its width while its height follows its text."_s);
        QCOMPARE(statement->height() / oneLine, 3);
        QCOMPARE(window->height(), windowBefore.height() + statement->height() - oneLine);
        QCOMPARE(window->geometry().bottom(), windowBefore.bottom());
        QCOMPARE(window->height() - alert->button1()->y(), buttonFromBottom);
        QCOMPARE(window->height() - statement->geometry().bottom(), statementFromBottom);
    }

    void alertRunsReturnTheTag()
    {
        const std::unique_ptr<BXAlert> alert = makeAlert();
        QTimer::singleShot(0, alert->button3(), &QPushButton::click);
        QCOMPARE(alert->runModal(), -1);

        QWidget parent;
        parent.resize(500, 400);
        parent.show();
        const int height = alert->window()->height();
        const int buttonFromBottom = height - alert->button1()->y();
        for (int run = 0; run < 2; ++run) {
            QTimer::singleShot(0, alert->button1(), &QPushButton::click);
            QCOMPARE(alert->runAsSheetForWindow(&parent), 1);
        }
        QCOMPARE(alert->window()->height(), height + 10);
        QCOMPARE(alert->window()->height() - alert->button1()->y(), buttonFromBottom);
        QCOMPARE(alert->window()->windowModality(), Qt::WindowModal);
        // The alert keeps its window when a former sheet parent goes.
        auto *gone = new QWidget;
        QTimer::singleShot(0, alert->button1(), &QPushButton::click);
        alert->runAsSheetForWindow(gone);
        delete gone;
        QVERIFY(alert->window());
    }

    void progressWindow()
    {
        const std::unique_ptr<ZARNProgressWindow> window(ZARNProgressWindow::progressWindow());
        QVERIFY(window);
        QVERIFY(window->progressView() && window->progressIndicator() && window->titleField() && window->stepField()
                && window->iconView());
        window->resize(400, window->height());
        const int left = window->x();
        const int buttonWidth = window->cancelButton()->width();

        auto counter = std::make_shared<CancelCounter>();
        window->setDelegate(counter);
        window->cancelButton()->click();
        QCOMPARE(counter->cancels, 1);

        window->setCancelHidden(true);
        window->setCancelHidden(true);
        QVERIFY(window->isCancelHidden());
        QCOMPARE(window->width(), 400 - buttonWidth);
        QVERIFY(!window->cancelButton()->isEnabled());
        QCOMPARE(window->x(), left);
        window->setCancelHidden(false);
        QCOMPARE(window->width(), 400);

        // A delegate that does not answer changes nothing.
        window->setDelegate(std::make_shared<ZARNProgressWindowDelegate>());
        window->cancelButton()->click();
        QCOMPARE(counter->cancels, 1);
    }
};

QTEST_MAIN(TestPanels)
#include "tst_panels.moc"
