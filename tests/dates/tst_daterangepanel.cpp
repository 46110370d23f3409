// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXDateRangePanel.h>
#include <Brixel/ZARNChiseledTextField.h>
#include <Brixel/ZARNClock.h>
#include <Brixel/ZARNSystemVersion.h>
#include <Brixel/ZARNUserDefaults.h>

#include "dates/DateEntrySizing_p.h"
#include "dates/DatePickerPluginLoader_p.h"

#include "BrixelTest.h"

#include <QDateTime>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class FixedClock : public ZARNClock
{
public:
    double now() const override { return 1715783420.0; }   // 2024-05-15 14:30:20 UTC
};

ZARNCalendarDate day(int year, int month, int dayOfMonth)
{
    return ZARNCalendarDate::dateWithYear(year, month, dayOfMonth, 0, 0, 0);
}

QString ymd(const ZARNCalendarDate &date)
{
    return date.descriptionWithCalendarFormat(u"%Y-%m-%d"_s);
}

using Edit = std::function<void(BXDateRangePanel &)>;

} // namespace

class TestDateRangePanel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        brixeltest::useTestFont();
        ZARNCalendarDate::setDefaultTimeZone(QTimeZone::utc());
    }

    void init()
    {
        ZARNClock::setCurrent(std::make_unique<FixedClock>());
        ZARNUserDefaults::setObject(u"%d.%m.%Y"_s, u"NSShortDateFormatString"_s);
    }

    void cleanup()
    {
        ZARNClock::setCurrent(nullptr);
        Brixel::ZARNSetSystemVersion(ZARNSystemVersionNewest);
    }

    void layoutArithmetic()
    {
        // Two 100 x 22 pickers, labels 40 and 25 wide, the OK button 70 x 32 after widening.
        const auto layout = BrixelPrivate::dateRangePanelLayout({100, 22}, {100, 22}, {70, 32}, {40, 16}, {25, 16}, 7);
        QCOMPARE(layout.content.toQSizeF(), QSizeF(303, 86));
        QCOMPARE(layout.okButton.toQRectF(), QRectF(226, 10, 70, 32));
        QCOMPARE(layout.fromLabel.toQRectF(), QRectF(12, 76 - 16 - 7, 40, 16));
        QCOMPARE(layout.fromControl.toQRectF(), QRectF(53, 54, 100, 22));
        QCOMPARE(layout.toLabel.toQRectF(), QRectF(165, 53, 25, 16));
        QCOMPARE(layout.toControl.toQRectF(), QRectF(191, 54, 100, 22));
    }

    void layoutOfRealControls_data()
    {
        QTest::addColumn<quint32>("version");
        QTest::addColumn<int>("labelOffset");
        QTest::addColumn<QString>("controlClass");

        QTest::newRow("plug-in pickers") << 0x1040u << 7 << u"ZARNTextDatePicker"_s;
        QTest::newRow("line edits before 0x1040") << 0x103Fu << 2 << u"QLineEdit"_s;
    }

    void layoutOfRealControls()
    {
        QFETCH(quint32, version);
        QFETCH(int, labelOffset);
        QFETCH(QString, controlClass);
        Brixel::ZARNSetSystemVersion(version);
        const BXDateRangePanel panel(QPointF(500, 500), day(2024, 1, 2), day(2024, 3, 4));
        QWidget *from = panel.fromObject();
        QVERIFY(from);
        QCOMPARE(QString::fromLatin1(from->metaObject()->className()), controlClass);
        const QSize button = panel.okButton()->size();
        QCOMPARE(button.width(), panel.okButton()->sizeHint().width() + 10);   // 10 wider than it asks for
        const QSize label = panel.fromLabel()->size();
        const QSize to = panel.toLabel()->size();

        QCOMPARE(panel.size(), QSize(2 * from->width() + label.width() + to.width() + 38,
                                     from->height() + button.height() + 32));
        // Converted from y up: the row's top is 10 below the content's top.
        QCOMPARE(from->geometry().topLeft(), QPoint(12 + label.width() + 1, 10));
        QCOMPARE(panel.fromLabel()->y(), 10 + labelOffset);
        QCOMPARE(panel.toObject()->x(), from->geometry().right() + 1 + 12 + to.width() + 1);
        QCOMPARE(panel.okButton()->geometry().right(), panel.width() - 7 - 1);
        QCOMPARE(panel.okButton()->geometry().bottom(), panel.height() - 10 - 1);
        QCOMPARE(panel.fromLabel()->text(), u"From:"_s);
        QCOMPARE(panel.windowTitle(), u"Enter Date Range"_s);
        QCOMPARE(panel.okButton()->shortcut(), QKeySequence(Qt::Key_Return));
        QVERIFY(panel.windowFlags().testFlag(Qt::WindowTitleHint));
        QVERIFY(!panel.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        if (auto *field = qobject_cast<QLineEdit *>(from))
            QCOMPARE(field->text(), u"15/5/24"_s);   // today, in the shortest format "%e/%1m/%y"
    }

    void ok_data()
    {
        QTest::addColumn<quint32>("version");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<bool>("ends");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");

        const Edit none = [](BXDateRangePanel &) {};
        QTest::newRow("pickers, as given") << 0x1040u << none << true << u"2024-01-02"_s << u"2024-03-04"_s;
        QTest::newRow("pickers, reversed range kept") << 0x1040u << Edit([](auto &p) {
            p.fromObject()->setProperty("dateValue", QDateTime(QDate(2024, 12, 31), QTime(), QTimeZone::utc()));
        }) << true << u"2024-12-31"_s << u"2024-03-04"_s;
        QTest::newRow("line edits, typed") << 0x103Fu << Edit([](auto &p) {
            qobject_cast<QLineEdit *>(p.toObject())->setText(u"9/6/24"_s);
        }) << true << u"2024-01-02"_s << u"2024-06-09"_s;
        QTest::newRow("line edits, unreadable text elsewhere becomes today") << 0x103Fu << Edit([](auto &p) {
            qobject_cast<QLineEdit *>(p.toObject())->setText(u"soon"_s);
            p.fromObject()->setFocus();
        }) << true << u"2024-01-02"_s << u"2024-05-15"_s;
        const auto focusedFrom = [](const QString &text) {
            return Edit([text](auto &p) {
                qobject_cast<QLineEdit *>(p.fromObject())->setText(text);
                p.fromObject()->setFocus();
            });
        };
        QTest::newRow("line edits, the focused editor refuses") << 0x103Fu << focusedFrom(u"31/2/24"_s) << false
                                                                << u"2024-01-02"_s << u"2024-03-04"_s;
        QTest::newRow("line edits, typed unreadable text refuses after a click") << 0x103Fu << Edit([](auto &p) {
            auto *field = qobject_cast<QLineEdit *>(p.fromObject());
            field->clear();
            QTest::keyClicks(field, u"soon"_s);
            p.okButton()->setFocus();
        }) << false << u"2024-01-02"_s << u"2024-03-04"_s;
        QTest::newRow("line edits, readable text in another form") << 0x103Fu << focusedFrom(u"09/06/24"_s) << true
                                                                   << u"2024-06-09"_s << u"2024-03-04"_s;
    }

    void ok()
    {
        QFETCH(quint32, version);
        QFETCH(Edit, edit);
        QFETCH(bool, ends);
        QFETCH(QString, from);
        QFETCH(QString, to);
        Brixel::ZARNSetSystemVersion(version);
        BXDateRangePanel panel(QPointF(), day(2024, 1, 2), day(2024, 3, 4));

        bool pressed = false;
        QTimer::singleShot(0, &panel, [&] {
            QVERIFY(QTest::qWaitForWindowExposed(&panel));
            edit(panel);
            // Escape and closing the window change nothing.
            QTest::keyClick(&panel, Qt::Key_Escape);
            panel.close();
            QVERIFY(panel.isVisible());
            panel.OK_Button();
            pressed = true;
            if (panel.isVisible())
                QTimer::singleShot(0, &panel, [&panel] {
                    qobject_cast<QLineEdit *>(panel.fromObject())->setText(u"2/1/24"_s);
                    panel.okButton()->click();
                });
        });
        QVERIFY(panel.run());
        QVERIFY(pressed);
        if (ends) {
            QCOMPARE(ymd(panel.fromDate()), from);
            QCOMPARE(ymd(panel.toDate()), to);
        }
    }

    void pickersKeepTimeAndZone()
    {
        Brixel::ZARNSetSystemVersion(0x1040);
        const ZARNCalendarDate from = ZARNCalendarDate::dateWithYear(2024, 1, 2, 23, 30, 0, QTimeZone(9 * 3600));
        BXDateRangePanel panel(QPointF(), from, day(2024, 3, 4));
        QTimer::singleShot(0, panel.okButton(), &QPushButton::click);
        QVERIFY(panel.run());
        QCOMPARE(panel.fromDate(), from);
    }

    void missingPlugin()
    {
        BrixelPrivate::setDatePickerPluginSearchPaths(QStringList());
        const BXDateRangePanel panel(QPointF(), std::nullopt, day(2024, 3, 4));
        BrixelPrivate::setDatePickerPluginSearchPaths(std::nullopt);
        QVERIFY(BXDateRangePanel(QPointF(), std::nullopt, std::nullopt).fromObject());
        QVERIFY(!panel.fromObject());
        QVERIFY(!panel.toObject());
        // Laid out as if the controls were empty.
        QCOMPARE(panel.width(), panel.fromLabel()->width() + panel.toLabel()->width() + 38);
        QCOMPARE(ymd(panel.fromDate()), u"2024-05-15"_s);
    }
};

QTEST_MAIN(TestDateRangePanel)
#include "tst_daterangepanel.moc"
