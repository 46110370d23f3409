// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXLegacyDatePicker.h"

#include "BXDateFormats.h"
#include "DateEntrySizing_p.h"
#include "DateFieldOrder_p.h"

#include "../platform/ZARNLocalizedString.h"
#include "../platform/ZARNRect.h"

#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcDatePicker, "brixel.dates", QtInfoMsg)

namespace {

// The x origins of each order: first field, first separator, second field, second separator,
// third field, then the three fields' captions in the same order.
using Positions = std::array<float, 8>;
constexpr Positions closeSeparators{99, 132, 157, 190, 215, 92, 150, 207};
constexpr Positions wideSecondSeparator{99, 132, 157, 200, 225, 92, 149, 218};
constexpr Positions yearFirst{99, 142, 167, 200, 225, 91, 160, 218};

enum class Field { Month, Day, Year };

struct Layout
{
    std::array<Field, 3> order;
    Positions positions;
};

// The order the field positions give, in this order of conditions: month first, then day
// first, then year first; none when no field stands strictly first.
std::optional<Layout> layoutFor(const BrixelPrivate::DateFieldPositions &p)
{
    if (p.month < p.day && p.month < p.year) {
        return p.day < p.year ? Layout{{Field::Month, Field::Day, Field::Year}, closeSeparators}
                              : Layout{{Field::Month, Field::Year, Field::Day}, wideSecondSeparator};
    }
    if (p.day < p.year && p.day < p.month) {
        return p.month < p.year ? Layout{{Field::Day, Field::Month, Field::Year}, closeSeparators}
                                : Layout{{Field::Day, Field::Year, Field::Month}, wideSecondSeparator};
    }
    if (p.year < p.month && p.year < p.day) {
        return p.month < p.day ? Layout{{Field::Year, Field::Month, Field::Day}, yearFirst}
                               : Layout{{Field::Year, Field::Day, Field::Month}, yearFirst};
    }
    return std::nullopt;
}

QFont smallControlFont(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * 11.0 / 13.0);
    return font;
}

// Walks the focus chain from \a field, away in \a direction, to the first widget outside
// \a picker; null when the chain leads back to the field.
QWidget *neighbourOutside(const QWidget &picker, QWidget *field, bool forward)
{
    for (QWidget *widget = forward ? field->nextInFocusChain() : field->previousInFocusChain();
         widget && widget != field; widget = forward ? widget->nextInFocusChain() : widget->previousInFocusChain()) {
        if (widget != &picker && !picker.isAncestorOf(widget))
            return widget;
    }
    return nullptr;
}

} // namespace

class BXLegacyDatePickerPrivate
{
public:
    QLineEdit *field(Field kind) const { return kind == Field::Month ? month : kind == Field::Day ? day : year; }
    QLabel *caption(Field kind) const
    {
        return kind == Field::Month ? monthTitle : kind == Field::Day ? dayTitle : yearTitle;
    }
    ZARNRect &frame(QWidget *widget) { return frames[widget]; }

    QLineEdit *month = nullptr;
    QLineEdit *day = nullptr;
    QLineEdit *year = nullptr;
    QLabel *monthTitle = nullptr;
    QLabel *dayTitle = nullptr;
    QLabel *yearTitle = nullptr;
    QLabel *separator = nullptr;
    QLabel *separator2 = nullptr;
    // Every child's frame with y up, from the picker's bottom.
    QHash<QWidget *, ZARNRect> frames;
    QSize bounds;
    QString dateFormat;
    ZARNCalendarDate date = ZARNCalendarDate::date();
};

BXLegacyDatePicker::BXLegacyDatePicker(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<BXLegacyDatePickerPrivate>())
{
    const auto makeCaption = [this](const char *word) {
        auto *caption = new QLabel(Brixel::ZARNLocalizedString(word), this);
        caption->setFont(smallControlFont(font()));
        const QSize size = caption->sizeHint();
        d->frame(caption) = ZARNRect(0, 10, float(size.width()), float(size.height()));
        return caption;
    };
    d->monthTitle = makeCaption("Month");
    d->yearTitle = makeCaption("Year");
    d->dayTitle = makeCaption("Day");

    // Each entry sits above its caption, as wide as its sample text, then emptied.
    const auto makeEntry = [this](QLabel *caption, const QString &sample, const QString &name) {
        auto *entry = new QLineEdit(this);
        entry->setObjectName(name);
        const ZARNRect &below = d->frame(caption);
        const QSize size = BrixelPrivate::lineEditSizeFor(*entry, sample);
        d->frame(entry) = ZARNRect(0, below.maxY() + 2.0f, float(size.width()), float(size.height()));
        // Only the user's edits are logged, not the text setDate() puts in.
        connect(entry, &QLineEdit::textEdited, this, [entry](const QString &text) {
            qCInfo(lcDatePicker) << "text changed in" << entry->objectName() << ":" << text;
        });
        return entry;
    };
    d->month = makeEntry(d->monthTitle, u"XX"_s, u"month"_s);
    d->day = makeEntry(d->dayTitle, u"XX"_s, u"day"_s);
    d->year = makeEntry(d->yearTitle, u"XXXX"_s, u"year"_s);

    const auto makeSeparator = [this] {
        auto *separator = new QLabel(u"/"_s, this);
        const QSize size = separator->sizeHint();
        const ZARNRect &start = d->frame(d->yearTitle);
        d->frame(separator) = ZARNRect(start.x(), start.y(), float(size.width()), float(size.height()));
        return separator;
    };
    d->separator = makeSeparator();
    d->separator2 = makeSeparator();
    // Stacked in this order, the second separator on top.
    for (QWidget *widget : std::initializer_list<QWidget *>{d->month, d->day, d->year, d->monthTitle, d->dayTitle,
                                                             d->yearTitle, d->separator, d->separator2})
        widget->raise();

    setDateFormat(Brixel::userShortDateFormat());

    // The bounds hold every child; each candidate is truncated as it becomes the largest.
    float width = 0.0f;
    float height = 0.0f;
    for (const ZARNRect &frame : std::as_const(d->frames)) {
        if (frame.maxX() > width)
            width = std::trunc(frame.maxX());
        if (frame.maxY() > height)
            height = std::trunc(frame.maxY());
    }
    d->bounds = QSize(int(width), int(height));
    placeVertically();
}

BXLegacyDatePicker::~BXLegacyDatePicker() = default;

QString BXLegacyDatePicker::dateFormat() const
{
    return d->dateFormat;
}

void BXLegacyDatePicker::setDateFormat(const QString &format)
{
    if (format.isNull())
        return;
    d->dateFormat = format;
    const std::array<QLineEdit *, 3> entries{d->month, d->day, d->year};
    QWidget *previous = nullptr;
    QWidget *next = nullptr;
    for (QLineEdit *entry : entries) {
        if (!previous)
            previous = neighbourOutside(*this, entry, false);
        if (!next)
            next = neighbourOutside(*this, entry, true);
    }

    const std::optional<Layout> layout = layoutFor(BrixelPrivate::dateFieldPositions(format));
    if (!layout)
        return;
    const Positions &x = layout->positions;
    const std::array<QWidget *, 5> row{d->field(layout->order[0]), d->separator, d->field(layout->order[1]),
                                       d->separator2, d->field(layout->order[2])};
    for (std::size_t i = 0; i < row.size(); ++i)
        d->frame(row[i]).origin.x = x[i];
    for (std::size_t i = 0; i < 3; ++i)
        d->frame(d->caption(layout->order[i])).origin.x = x[5 + i];
    placeVertically();

    // The keyboard goes through the fields as they are shown.
    QWidget *before = previous;
    for (const Field kind : layout->order) {
        if (before)
            setTabOrder(before, d->field(kind));
        before = d->field(kind);
    }
    if (next)
        setTabOrder(before, next);
}

ZARNCalendarDate BXLegacyDatePicker::date() const
{
    return d->date;
}

void BXLegacyDatePicker::setDate(const ZARNCalendarDate &date)
{
    d->date = date;
    d->year->setText(QString::number(date.yearOfCommonEra()));
    d->month->setText(QString::number(date.monthOfYear()));
    d->day->setText(QString::number(date.dayOfMonth()));
}

void BXLegacyDatePicker::syncDateFromInterface()
{
}

QLineEdit *BXLegacyDatePicker::monthField() const
{
    return d->month;
}

QLineEdit *BXLegacyDatePicker::dayField() const
{
    return d->day;
}

QLineEdit *BXLegacyDatePicker::yearField() const
{
    return d->year;
}

QLabel *BXLegacyDatePicker::monthTitleField() const
{
    return d->monthTitle;
}

QLabel *BXLegacyDatePicker::dayTitleField() const
{
    return d->dayTitle;
}

QLabel *BXLegacyDatePicker::yearTitleField() const
{
    return d->yearTitle;
}

QLabel *BXLegacyDatePicker::separatorField() const
{
    return d->separator;
}

QLabel *BXLegacyDatePicker::separator2Field() const
{
    return d->separator2;
}

QSize BXLegacyDatePicker::sizeHint() const
{
    return d->bounds;
}

void BXLegacyDatePicker::placeVertically()
{
    const float height = float(d->bounds.height());
    for (auto frame = d->frames.cbegin(); frame != d->frames.cend(); ++frame)
        frame.key()->setGeometry(frame.value().flipped(height).toQRectF().toRect());
}
