// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXLegacyDatePicker.h>
#include <Brixel/ZARNUserDefaults.h>

#include "BrixelTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// The x origins of the fields, separators and captions, in the picker's own order.
QList<int> positions(const BXLegacyDatePicker &picker)
{
    return {picker.monthField()->x(), picker.dayField()->x(),       picker.yearField()->x(),
            picker.separatorField()->x(), picker.separator2Field()->x(), picker.monthTitleField()->x(),
            picker.dayTitleField()->x(), picker.yearTitleField()->x()};
}

} // namespace

class TestLegacyDatePicker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        brixeltest::useTestFont();
    }

    void init()
    {
        ZARNUserDefaults::setObject(u"%m/%d/%y"_s, u"NSShortDateFormatString"_s);
    }

    void layout_data()
    {
        QTest::addColumn<QString>("format");
        // Month, day and year fields, the two separators, then the month, day and year captions.
        QTest::addColumn<QList<int>>("x");

        QTest::newRow("month, day, year") << u"%m/%d/%y"_s << QList<int>{99, 157, 215, 132, 190, 92, 150, 207};
        QTest::newRow("month, year, day") << u"%b %Y %e"_s << QList<int>{99, 225, 157, 132, 200, 92, 218, 149};
        QTest::newRow("day, month, year") << u"%d.%m.%Y"_s << QList<int>{157, 99, 215, 132, 190, 150, 92, 207};
        QTest::newRow("day, year, month") << u"%e %y %m"_s << QList<int>{225, 99, 157, 132, 200, 218, 92, 149};
        QTest::newRow("year, month, day") << u"%Y-%m-%d"_s << QList<int>{167, 225, 99, 142, 200, 160, 218, 91};
        QTest::newRow("year, day, month") << u"%Y %d %B"_s << QList<int>{225, 167, 99, 142, 200, 218, 160, 91};
        QTest::newRow("no order moves nothing") << u"%H:%M"_s << QList<int>{99, 157, 215, 132, 190, 92, 150, 207};
        QTest::newRow("no order in an empty format") << u""_s << QList<int>{99, 157, 215, 132, 190, 92, 150, 207};
    }

    void layout()
    {
        QFETCH(QString, format);
        QFETCH(QList<int>, x);
        // Made in the stored month-first order, then changed.
        BXLegacyDatePicker picker;
        picker.setDateFormat(format);
        QCOMPARE(picker.dateFormat(), format);
        QCOMPARE(positions(picker), x);

        // A picker made with the format stored as the user's starts in its order; with a format
        // that orders nothing, its fields stay where they were made.
        ZARNUserDefaults::setObject(format, u"NSShortDateFormatString"_s);
        const BXLegacyDatePicker fresh;
        QCOMPARE(positions(fresh), QByteArray(QTest::currentDataTag()).startsWith("no order") ? QList<int>(8, 0) : x);
    }

    void keyboardFollowsTheOrder()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *before = new QLineEdit;
        auto *picker = new BXLegacyDatePicker;
        auto *after = new QLineEdit;
        layout->addWidget(before);
        layout->addWidget(picker);
        layout->addWidget(after);

        picker->setDateFormat(u"%Y-%m-%d"_s);
        const QList<QWidget *> expected{picker->yearField(), picker->monthField(), picker->dayField(), after};
        QList<QWidget *> chain;
        QWidget *widget = before;
        while (chain.size() < expected.size()) {
            widget = widget->nextInFocusChain();
            if (widget->focusPolicy() & Qt::TabFocus)
                chain.append(widget);
        }
        QCOMPARE(chain, expected);
    }

    void showsTheDateOnly()
    {
        BXLegacyDatePicker picker;
        QVERIFY(picker.monthField()->text().isEmpty());
        const ZARNCalendarDate date = ZARNCalendarDate::dateWithYear(2007, 3, 5, 0, 0, 0);
        // Typing is logged, the date's own text is not, and typing never changes the date.
        static QStringList logged;
        const QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &message) { logged.append(message); });
        picker.setDate(date);
        QTest::keyClicks(picker.dayField(), u"9"_s);
        qInstallMessageHandler(previous);
        QCOMPARE(logged, QStringList{u"text changed in \"day\" : \"59\""_s});
        QCOMPARE(picker.monthField()->text(), u"3"_s);
        QCOMPARE(picker.yearField()->text(), u"2007"_s);
        picker.syncDateFromInterface();
        QCOMPARE(picker.date().dayOfMonth(), 5);
    }

    void boundsHoldEveryField()
    {
        const BXLegacyDatePicker picker;
        QRect children;
        for (const QWidget *child : picker.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
            children |= child->geometry();
        // From the bounds' origin: the captions stand 10 above the bottom.
        QCOMPARE(children.topLeft().y(), 0);
        QCOMPARE(picker.sizeHint(), QSize(children.right() + 1, children.bottom() + 1 + 10));
        // Each entry field sits 2 pixels above its caption, as wide as its sample.
        QCOMPARE(picker.monthField()->geometry().bottom() + 1 + 2, picker.monthTitleField()->y());
        QVERIFY(picker.yearField()->width() > picker.dayField()->width());
        QCOMPARE(picker.dayField()->width(), picker.monthField()->width());
        // Entry fields are as tall as a line edit asks to be; separators as large as their "/".
        QCOMPARE(picker.dayField()->height(), picker.dayField()->sizeHint().height());
        QCOMPARE(picker.separatorField()->size(), picker.separatorField()->sizeHint());
    }
};

QTEST_MAIN(TestLegacyDatePicker)
#include "tst_legacydatepicker.moc"
