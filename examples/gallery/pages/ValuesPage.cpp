// SPDX-License-Identifier: LGPL-2.1-or-later
// The Values page: a duration field, duration and size strings, the date ranges for today,
// a CSV line splitter and an Exp-Golomb decoder.
#include "../GalleryPages.h"

#include <Brixel/BXTimeIntervalFormatter.h>
#include <Brixel/ZARNBitstream.h>
#include <Brixel/ZARNCalendarDate.h>
#include <Brixel/ZARNDateRanges.h>
#include <Brixel/ZARNFormatterDelegate.h>
#include <Brixel/ZARNFormatterValidator.h>
#include <Brixel/ZARNNSStringAdditions.h>
#include <Brixel/ZARNTimeAndSizeStrings.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStandardItemModel>
#include <QTableView>
#include <QTableWidget>

namespace {

QComboBox *componentChooser(int component)
{
    auto *chooser = new QComboBox;
    for (const QString &name : {QObject::tr("seconds"), QObject::tr("minutes"), QObject::tr("hours"),
                                QObject::tr("days"), QObject::tr("weeks")})
        chooser->addItem(name);
    chooser->setCurrentIndex(component);
    return chooser;
}

QWidget *durationFieldBox()
{
    auto *box = new QGroupBox(QObject::tr("Duration field"));
    auto *field = new QLineEdit;
    auto *smallest = componentChooser(BXTimeIntervalSecondsComponent);
    auto *largest = componentChooser(BXTimeIntervalHoursComponent);
    auto *milliseconds = new QCheckBox(QObject::tr("Milliseconds"));
    auto *seconds = new QLabel;
    auto *table = new QTableView;
    auto *model = new QStandardItemModel(0, 2, table);
    model->setHorizontalHeaderLabels({QObject::tr("Track"), QObject::tr("Length")});
    const QList<std::pair<QString, double>> tracks = {{QObject::tr("Overture"), 431.5}, {QObject::tr("Aria"), 187.25},
                                                      {QObject::tr("Finale"), 3909}};
    for (const auto &[title, length] : tracks)
        model->appendRow({new QStandardItem(title), new QStandardItem(QString::number(length))});
    for (int row = 0; row < model->rowCount(); ++row)
        model->setData(model->index(row, 1), tracks.at(row).second);
    table->setModel(model);
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();

    // The formatter is shared read-only by the field's validator and the table's delegate, so
    // a change of settings builds a new one and hands it to both.
    const auto apply = [=] {
        auto formatter = std::make_shared<BXTimeIntervalFormatter>(smallest->currentIndex(), largest->currentIndex());
        formatter->setShowsMilliseconds(milliseconds->isChecked());
        QVariant value;
        formatter->getObjectValue(&value, field->text().isEmpty() ? u"0"_qs : field->text(), nullptr);
        delete field->validator();
        field->setValidator(new ZARNFormatterValidator(formatter, field));
        field->setText(formatter->stringForObjectValue(value));
        delete table->itemDelegateForColumn(1);
        table->setItemDelegateForColumn(1, new ZARNFormatterDelegate(formatter, table));
    };
    const auto showSeconds = [=] {
        const auto *validator = static_cast<const ZARNFormatterValidator *>(field->validator());
        QVariant value;
        validator->formatter()->getObjectValue(&value, field->text(), nullptr);
        seconds->setText(QObject::tr("%1 seconds").arg(value.toDouble()));
    };
    field->setText(u"1:05:09"_qs);
    apply();
    showSeconds();
    QObject::connect(smallest, &QComboBox::currentIndexChanged, field, apply);
    QObject::connect(largest, &QComboBox::currentIndexChanged, field, apply);
    QObject::connect(milliseconds, &QCheckBox::toggled, field, apply);
    QObject::connect(milliseconds, &QCheckBox::toggled, seconds, showSeconds);
    QObject::connect(field, &QLineEdit::textChanged, seconds, showSeconds);

    auto *layout = new QFormLayout(box);
    layout->addRow(QObject::tr("Duration:"), field);
    layout->addRow(QObject::tr("Smallest:"), smallest);
    layout->addRow(QObject::tr("Largest:"), largest);
    layout->addRow(QString(), milliseconds);
    layout->addRow(QObject::tr("Reads as:"), seconds);
    layout->addRow(table);
    return box;
}

QWidget *durationAndSizeBox()
{
    auto *box = new QGroupBox(QObject::tr("Duration and size strings"));
    auto *interval = new QDoubleSpinBox;
    interval->setRange(-1e9, 1e9);
    interval->setDecimals(1);
    interval->setValue(90061);
    auto *longString = new QLabel;
    auto *description = new QLabel;
    auto *bytes = new QDoubleSpinBox;
    bytes->setRange(0, 1e15);
    bytes->setDecimals(0);
    bytes->setValue(1610612736);
    auto *size = new QLabel;
    const auto update = [=] {
        longString->setText(Brixel::ZARNLongStringForTimeInterval(interval->value()));
        description->setText(Brixel::TimeIntervalDescription(interval->value()));
        size->setText(Brixel::StringForFileSize(quint64(bytes->value())));
    };
    update();
    QObject::connect(interval, &QDoubleSpinBox::valueChanged, box, update);
    QObject::connect(bytes, &QDoubleSpinBox::valueChanged, box, update);
    auto *layout = new QFormLayout(box);
    layout->addRow(QObject::tr("Seconds:"), interval);
    layout->addRow(QObject::tr("In words:"), longString);
    layout->addRow(QObject::tr("As a clock:"), description);
    layout->addRow(QObject::tr("Bytes:"), bytes);
    layout->addRow(QObject::tr("File size:"), size);
    return box;
}

QWidget *dateRangesBox()
{
    auto *box = new QGroupBox(QObject::tr("Date ranges for today"));
    const char *const names[] = {
        QT_TRANSLATE_NOOP("ValuesPage", "Today"), QT_TRANSLATE_NOOP("ValuesPage", "Yesterday"),
        QT_TRANSLATE_NOOP("ValuesPage", "Last week"), QT_TRANSLATE_NOOP("ValuesPage", "Last month"),
        QT_TRANSLATE_NOOP("ValuesPage", "Last quarter"), QT_TRANSLATE_NOOP("ValuesPage", "Last year"),
        QT_TRANSLATE_NOOP("ValuesPage", "This week"), QT_TRANSLATE_NOOP("ValuesPage", "This month"),
        QT_TRANSLATE_NOOP("ValuesPage", "This quarter"), QT_TRANSLATE_NOOP("ValuesPage", "This year"),
        QT_TRANSLATE_NOOP("ValuesPage", "Week to date"), QT_TRANSLATE_NOOP("ValuesPage", "Month to date"),
        QT_TRANSLATE_NOOP("ValuesPage", "Quarter to date"), QT_TRANSLATE_NOOP("ValuesPage", "Year to date"),
    };
    auto *table = new QTableWidget(int(std::size(names)), 2);
    table->setHorizontalHeaderLabels({QObject::tr("Start"), QObject::tr("End")});
    const QString format = u"%a %e %b %Y %H:%M:%S"_qs;
    for (int mnemonic = 0; mnemonic < int(std::size(names)); ++mnemonic) {
        ZARNCalendarDate start;
        ZARNCalendarDate end;
        Brixel::DateRangeForMnemonic(mnemonic, &start, &end);
        table->setVerticalHeaderItem(mnemonic, new QTableWidgetItem(QCoreApplication::translate("ValuesPage", names[mnemonic])));
        table->setItem(mnemonic, 0, new QTableWidgetItem(start.descriptionWithCalendarFormat(format)));
        table->setItem(mnemonic, 1, new QTableWidgetItem(end.descriptionWithCalendarFormat(format)));
    }
    table->resizeColumnsToContents();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 4);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    (new QGridLayout(box))->addWidget(table);
    return box;
}

QWidget *csvBox()
{
    auto *box = new QGroupBox(QObject::tr("CSV line"));
    auto *line = new QLineEdit(u"x,\"a,b\",\"say \"\"hi\"\"\",,last"_qs);
    auto *fields = new QListWidget;
    const auto split = [=] {
        fields->clear();
        for (const QString &field : Brixel::CSVLineComponents(line->text()))
            fields->addItem(u"\u2039%1\u203A"_qs.arg(field));
    };
    split();
    QObject::connect(line, &QLineEdit::textChanged, fields, split);
    auto *layout = new QFormLayout(box);
    layout->addRow(QObject::tr("Line:"), line);
    layout->addRow(QObject::tr("Fields:"), fields);
    return box;
}

// The unsigned Exp-Golomb codes in \a bytes, until the bits run out.
QStringList expGolombCodes(const QByteArray &bytes)
{
    QStringList codes;
    ZARNBitstream stream(bytes);
    while (stream.location() < stream.length()) {
        const qint64 start = stream.location();
        const quint32 value = stream.readExpGolomb();
        codes << QObject::tr("bits %1-%2: %3").arg(start).arg(stream.location() - 1).arg(value);
    }
    return codes;
}

QWidget *bitReaderBox()
{
    auto *box = new QGroupBox(QObject::tr("Exp-Golomb decoder"));
    auto *hex = new QLineEdit(u"A6 42 98 E2 04 8A"_qs);
    auto *codes = new QListWidget;
    const auto decode = [=] {
        codes->clear();
        codes->addItems(expGolombCodes(QByteArray::fromHex(hex->text().toLatin1())));
    };
    decode();
    QObject::connect(hex, &QLineEdit::textChanged, codes, decode);
    auto *layout = new QFormLayout(box);
    layout->addRow(QObject::tr("Hex bytes:"), hex);
    layout->addRow(QObject::tr("Codes:"), codes);
    return box;
}

} // namespace

QWidget *createValuesPage()
{
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    layout->addWidget(durationFieldBox(), 0, 0);
    layout->addWidget(durationAndSizeBox(), 0, 1);
    layout->addWidget(bitReaderBox(), 0, 2);
    layout->addWidget(csvBox(), 1, 0);
    layout->addWidget(dateRangesBox(), 1, 1, 1, 2);
    layout->setRowStretch(1, 1);
    return page;
}
