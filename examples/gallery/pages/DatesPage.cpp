// SPDX-License-Identifier: LGPL-2.1-or-later
// The Dates page: the legacy date picker in three field orders, the shortest date format of a
// few real formats, and the date range panel with the plug-in's pickers and with line edits.
#include "../GalleryPages.h"

#include <Brixel/BXDateFormats.h>
#include <Brixel/BXDateRangePanel.h>
#include <Brixel/BXLegacyDatePicker.h>
#include <Brixel/ZARNSystemVersion.h>

#include <QDateTime>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QGroupBox *pickers()
{
    auto *box = new QGroupBox(QObject::tr("Legacy date picker in three orders"));
    auto *layout = new QFormLayout(box);
    const ZARNCalendarDate date = ZARNCalendarDate::dateWithYear(2007, 3, 5, 0, 0, 0);
    for (const QString &format : {QStringLiteral("%m/%d/%y"), QStringLiteral("%d.%m.%Y"), QStringLiteral("%Y-%m-%d")}) {
        auto *picker = new BXLegacyDatePicker;
        picker->setDateFormat(format);
        picker->setDate(date);
        picker->setFixedSize(picker->sizeHint());
        layout->addRow(format, picker);
    }
    return box;
}

QGroupBox *shortestFormats()
{
    auto *box = new QGroupBox(QObject::tr("Shortest date formats"));
    auto *layout = new QFormLayout(box);
    for (const QString &format : {QStringLiteral("%m/%d/%y"), QStringLiteral("%d.%m.%Y"), QStringLiteral("%Y-%m-%d"),
                                  QStringLiteral("%A, %B %e, %Y"), QStringLiteral("Week %W, %m/%d")})
        layout->addRow(format, new QLabel(Brixel::DateFormatStringToShortestDateFormatString(format)));
    return box;
}

QLabel *panelPicture(quint32 version)
{
    const quint32 current = Brixel::ZARNSystemVersion();
    Brixel::ZARNSetSystemVersion(version);
    BXDateRangePanel panel(QPointF(), ZARNCalendarDate::dateWithYear(2024, 5, 1, 0, 0, 0),
                                 ZARNCalendarDate::dateWithYear(2024, 5, 31, 0, 0, 0));
    Brixel::ZARNSetSystemVersion(current);
    // The panel shows its dates when it runs; the picture shows them without running it.
    for (QWidget *control : {panel.fromObject(), panel.toObject()}) {
        if (control)
            control->setProperty("dateValue", QDateTime(QDate(2024, 5, control == panel.fromObject() ? 1 : 31), QTime()));
    }
    auto *picture = new QLabel;
    picture->setPixmap(panel.grab());
    return picture;
}

QGroupBox *rangePanels(QWidget *page)
{
    auto *box = new QGroupBox(QObject::tr("Date range panel: plug-in pickers, and line edits before 0x1040"));
    auto *layout = new QHBoxLayout(box);
    layout->addWidget(panelPicture(ZARNSystemVersionNewest));
    layout->addWidget(panelPicture(0x1039));
    auto *open = new QPushButton(QObject::tr("Enter a range…"));
    auto *shown = new QLabel;
    QObject::connect(open, &QPushButton::clicked, page, [shown] {
        BXDateRangePanel panel(QPointF(), std::nullopt, std::nullopt);
        if (panel.run())
            shown->setText(QStringLiteral("%1 – %2")
                               .arg(panel.fromDate().descriptionWithCalendarFormat(QStringLiteral("%Y-%m-%d")),
                                    panel.toDate().descriptionWithCalendarFormat(QStringLiteral("%Y-%m-%d"))));
    });
    layout->addWidget(open);
    layout->addWidget(shown);
    layout->addStretch();
    return box;
}

} // namespace

QWidget *createDatesPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    auto *row = new QHBoxLayout;
    row->addWidget(pickers());
    row->addWidget(shortestFormats());
    layout->addLayout(row);
    layout->addWidget(rangePanels(page));
    layout->addStretch();
    return page;
}
