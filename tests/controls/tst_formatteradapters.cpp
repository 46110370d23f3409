// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXTimeIntervalFormatter.h>
#include <Brixel/ZARNFormatterDelegate.h>
#include <Brixel/ZARNFormatterValidator.h>

#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

using FormatterPointer = std::shared_ptr<const ZARNFormatter>;
Q_DECLARE_METATYPE(FormatterPointer)

namespace {
// Reads only whole numbers and shows them as "#n", so it refuses text and its display
// differs from the text it reads.
class CountFormatter : public ZARNFormatter
{
public:
    QString stringForObjectValue(const QVariant &object) const override { return u"#"_s + object.toString(); }
    bool getObjectValue(QVariant *object, const QString &string, QString *) const override
    {
        bool ok = false;
        const int count = QStringView(string).sliced(string.startsWith(u'#') ? 1 : 0).toInt(&ok);
        if (ok && object)
            *object = count;
        return ok;
    }
};

FormatterPointer durations(int minimum = 0, int maximum = 2)
{
    return std::make_shared<BXTimeIntervalFormatter>(minimum, maximum);
}
} // namespace

class TestFormatterAdapters : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void validateAndFixup_data()
    {
        QTest::addColumn<FormatterPointer>("formatter");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QValidator::State>("state");
        QTest::addColumn<QString>("fixed");

        QTest::newRow("as the formatter shows it") << durations() << u"1:05:09"_s << QValidator::Acceptable
                                                   << u"1:05:09"_s;
        QTest::newRow("padded") << durations() << u"1:5:9"_s << QValidator::Intermediate << u"1:05:09"_s;
        QTest::newRow("empty field is zero") << durations() << QString() << QValidator::Intermediate << u"0:00:00"_s;
        // -65 shows as "-1:0-5", which reads back as -60.
        QTest::newRow("display reads as another value") << durations(0, 1) << u"-65"_s << QValidator::Intermediate
                                                        << u"-1:00"_s;
        QTest::newRow("refused text stays") << FormatterPointer(std::make_shared<CountFormatter>()) << u"1.5"_s
                                            << QValidator::Intermediate << u"1.5"_s;
        QTest::newRow("no formatter") << FormatterPointer() << u"x"_s << QValidator::Acceptable << u"x"_s;
    }

    void validateAndFixup()
    {
        QFETCH(FormatterPointer, formatter);
        QFETCH(QString, text);
        QFETCH(QValidator::State, state);
        QFETCH(QString, fixed);
        const ZARNFormatterValidator validator(formatter);
        int position = 0;
        QCOMPARE(validator.validate(text, position), state);
        validator.fixup(text);
        QCOMPARE(text, fixed);
        // What fixup leaves behind is final, unless the formatter cannot read it at all.
        if (formatter && formatter->getObjectValue(nullptr, fixed, nullptr))
            QCOMPARE(validator.validate(text, position), QValidator::Acceptable);
    }

    void delegateEditsThroughFormatter_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("stored");

        QTest::newRow("untidy text") << u"2:3"_s << 123.0;
        QTest::newRow("words read as zero") << u"soon"_s << 0.0;
    }

    void delegateEditsThroughFormatter()
    {
        QFETCH(QString, typed);
        QFETCH(double, stored);
        QStandardItemModel model(1, 1);
        const QModelIndex cell = model.index(0, 0);
        model.setData(cell, 60.0);
        QTableView view;
        view.setModel(&model);
        view.setItemDelegate(new ZARNFormatterDelegate(durations(), &view));
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));

        view.setCurrentIndex(cell);
        view.edit(cell);
        auto *editor = view.findChild<QLineEdit *>();
        QVERIFY(editor);
        QVERIFY(qobject_cast<const ZARNFormatterValidator *>(editor->validator()));
        QCOMPARE(editor->text(), u"0:01:00"_s);
        editor->selectAll();
        QTest::keyClicks(editor, typed);
        QTest::keyClick(editor, Qt::Key_Return);

        // The view commits and closes the editor from the event loop.
        QTRY_COMPARE(model.data(cell, Qt::EditRole), QVariant(stored));
        QTRY_VERIFY(!view.findChild<QLineEdit *>());
    }

    void delegateWithoutAView()
    {
        const ZARNFormatterDelegate durationDelegate(durations());
        QCOMPARE(durationDelegate.displayText(360000, QLocale()), u"100:00:00"_s);
        QCOMPARE(durationDelegate.displayText(u"not a number"_s, QLocale()), u"0"_s);

        QStandardItemModel model(1, 1);
        const QModelIndex cell = model.index(0, 0);
        model.setData(cell, 7);
        const ZARNFormatterDelegate countDelegate(std::make_shared<CountFormatter>());
        QLineEdit editor;
        countDelegate.setEditorData(&editor, cell);
        QCOMPARE(editor.text(), u"#7"_s);
        editor.setText(u"eight"_s);
        countDelegate.setModelData(&editor, &model, cell);
        QCOMPARE(model.data(cell), QVariant(7));   // refused text leaves the model alone
        // Without a formatter it edits as Qt's own delegate does.
        ZARNFormatterDelegate(nullptr).setModelData(&editor, &model, cell);
        QCOMPARE(model.data(cell), QVariant(u"eight"_s));
    }
};

QTEST_MAIN(TestFormatterAdapters)
#include "tst_formatteradapters.moc"
