// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXTimeIntervalFormatter.h>
#include <Brixel/ZARNFormatterDelegate.h>
#include <Brixel/ZARNFormatterValidator.h>

#include <QLineEdit>
#include <QSignalSpy>
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
        if (ok)
            *object = count;
        return ok;
    }
};

FormatterPointer durations(int minimum = 0, int maximum = 2)
{
    return std::make_shared<BXTimeIntervalFormatter>(minimum, maximum);
}

FormatterPointer counter()
{
    return std::make_shared<CountFormatter>();
}
} // namespace

class TestFormatterAdapters : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void validate_data();
    void validate();
    void fixup_data();
    void fixup();
    void lineEditTidiesOnReturn_data();
    void lineEditTidiesOnReturn();
    void delegateShowsFormattedValues();
    void delegateEditsThroughFormatter_data();
    void delegateEditsThroughFormatter();
    void refusedTextLeavesModelAlone();
};

void TestFormatterAdapters::validate_data()
{
    QTest::addColumn<FormatterPointer>("formatter");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QValidator::State>("state");

    QTest::newRow("as the formatter shows it") << durations() << u"1:05:09"_s << QValidator::Acceptable;
    QTest::newRow("readable, not tidy") << durations() << u"1:5:9"_s << QValidator::Intermediate;
    QTest::newRow("empty") << durations() << QString() << QValidator::Intermediate;
    QTest::newRow("refused") << counter() << u"x"_s << QValidator::Intermediate;
    QTest::newRow("no formatter") << FormatterPointer() << u"x"_s << QValidator::Acceptable;
}

void TestFormatterAdapters::validate()
{
    QFETCH(FormatterPointer, formatter);
    QFETCH(QString, text);
    QFETCH(QValidator::State, state);
    const ZARNFormatterValidator validator(formatter);
    int position = 0;
    QCOMPARE(validator.validate(text, position), state);
}

void TestFormatterAdapters::fixup_data()
{
    QTest::addColumn<FormatterPointer>("formatter");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("acceptable");

    QTest::newRow("padded") << durations() << u"1:5:9"_s << u"1:05:09"_s << true;
    QTest::newRow("carried into larger components") << durations() << u"3909"_s << u"1:05:09"_s << true;
    QTest::newRow("empty field is zero") << durations() << QString() << u"0:00:00"_s << true;
    // -65 shows as "-1:0-5", which reads back as -60.
    QTest::newRow("display that reads as another value") << durations(0, 1) << u"-65"_s << u"-1:00"_s << true;
    QTest::newRow("refused text stays") << counter() << u"1.5"_s << u"1.5"_s << false;
}

void TestFormatterAdapters::fixup()
{
    QFETCH(FormatterPointer, formatter);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QFETCH(bool, acceptable);
    const ZARNFormatterValidator validator(formatter);
    validator.fixup(text);
    QCOMPARE(text, expected);
    int position = 0;
    QCOMPARE(validator.validate(text, position) == QValidator::Acceptable, acceptable);
}

void TestFormatterAdapters::lineEditTidiesOnReturn_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");

    QTest::newRow("padded") << u"1:5:9"_s << u"1:05:09"_s;
    QTest::newRow("seconds only") << u"75"_s << u"0:01:15"_s;
    QTest::newRow("already tidy") << u"2:00:00"_s << u"2:00:00"_s;
}

void TestFormatterAdapters::lineEditTidiesOnReturn()
{
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QLineEdit field;
    field.setValidator(new ZARNFormatterValidator(durations(), &field));
    QSignalSpy finished(&field, &QLineEdit::editingFinished);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));

    QTest::keyClicks(&field, typed);
    QCOMPARE(field.text(), typed); // typing is never blocked
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(field.text(), shown);
    QCOMPARE(finished.count(), 1);
}

void TestFormatterAdapters::delegateShowsFormattedValues()
{
    QStandardItemModel model(3, 1);
    model.setData(model.index(0, 0), 3909.0);
    model.setData(model.index(1, 0), 360000);
    model.setData(model.index(2, 0), u"not a number"_s);
    QTableView view;
    view.setModel(&model);
    ZARNFormatterDelegate delegate(durations(), &view);
    view.setItemDelegate(&delegate);

    const QStringList expected = {u"1:05:09"_s, u"100:00:00"_s, u"0"_s};
    for (int row = 0; row < model.rowCount(); ++row)
        QCOMPARE(delegate.displayText(model.index(row, 0).data(), view.locale()), expected.at(row));
}

void TestFormatterAdapters::delegateEditsThroughFormatter_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("stored");

    QTest::newRow("hours to seconds") << u"1:05:09"_s << 3909.0;
    QTest::newRow("untidy text") << u"2:3"_s << 123.0;
    QTest::newRow("words read as zero") << u"soon"_s << 0.0;
}

void TestFormatterAdapters::delegateEditsThroughFormatter()
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
    QCOMPARE(editor->text(), u"0:01:00"_s);
    editor->selectAll();
    QTest::keyClicks(editor, typed);
    QTest::keyClick(editor, Qt::Key_Return);

    // The view commits and closes the editor from the event loop.
    QTRY_COMPARE(model.data(cell, Qt::EditRole), QVariant(stored));
    QTRY_VERIFY(!view.findChild<QLineEdit *>());
}

void TestFormatterAdapters::refusedTextLeavesModelAlone()
{
    QStandardItemModel model(1, 1);
    const QModelIndex cell = model.index(0, 0);
    model.setData(cell, 7);
    const ZARNFormatterDelegate delegate(std::make_shared<CountFormatter>());
    QLineEdit editor;
    delegate.setEditorData(&editor, cell);
    QCOMPARE(editor.text(), u"#7"_s);
    editor.setText(u"#8"_s);
    delegate.setModelData(&editor, &model, cell);
    QCOMPARE(model.data(cell), QVariant(8));
    editor.setText(u"eight"_s);
    delegate.setModelData(&editor, &model, cell);
    QCOMPARE(model.data(cell), QVariant(8));
}

QTEST_MAIN(TestFormatterAdapters)
#include "tst_formatteradapters.moc"
