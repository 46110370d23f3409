// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXDateRangePanel.h"

#include "BXDateFormats.h"
#include "DateEntrySizing_p.h"
#include "DatePickerPluginLoader_p.h"
#include "ZARNCalendarDateFormatter.h"

#include "../controls/ZARNChiseledTextField.h"
#include "../controls/ZARNFormatterValidator.h"
#include "../platform/ZARNLocalizedString.h"
#include "../platform/ZARNSystemVersion.h"

#include <QCloseEvent>
#include <QDateTime>
#include <QEventLoop>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

// From 0x1040 on, the plug-in's pickers; before, line edits.
bool usesDatePickers()
{
    return Brixel::ZARNSystemVersion() > 0x103F;
}

ZARNSize sizeOf(const QWidget *widget)
{
    return widget ? ZARNSize::fromQSizeF(widget->size()) : ZARNSize{};
}

} // namespace

class BXDateRangePanelPrivate
{
public:
    QLineEdit *makeDateField(QWidget *container) const;
    QString text(const ZARNCalendarDate &date) const;
    std::optional<ZARNCalendarDate> read(const QWidget *control) const;
    bool refuses(const QWidget *control) const;

    QPointer<QWidget> fromObject;
    QPointer<QWidget> toObject;
    ZARNChiseledTextField *fromLabel = nullptr;
    ZARNChiseledTextField *toLabel = nullptr;
    QPushButton *okButton = nullptr;
    ZARNCalendarDate fromDate;
    ZARNCalendarDate toDate;
    std::shared_ptr<const ZARNCalendarDateFormatter> formatter;
    QEventLoop *loop = nullptr;
};

QLineEdit *BXDateRangePanelPrivate::makeDateField(QWidget *container) const
{
    auto *field = new QLineEdit(container);
    field->resize(BrixelPrivate::lineEditSizeFor(*field, u" XX/XX/XXXX"_s));
    field->setValidator(new ZARNFormatterValidator(formatter, field));
    field->setText(text(ZARNCalendarDate::date()));
    return field;
}

QString BXDateRangePanelPrivate::text(const ZARNCalendarDate &date) const
{
    return formatter->stringForObjectValue(QVariant::fromValue(date));
}

std::optional<ZARNCalendarDate> BXDateRangePanelPrivate::read(const QWidget *control) const
{
    if (usesDatePickers()) {
        const QDateTime value = control ? control->property("dateValue").toDateTime() : QDateTime();
        if (!value.isValid())
            return std::nullopt;
        return ZARNCalendarDate::fromDateTime(value);
    }
    const auto *field = qobject_cast<const QLineEdit *>(control);
    return field ? ZARNCalendarDate::dateWithString(field->text(), formatter->dateFormat()) : std::nullopt;
}

bool BXDateRangePanelPrivate::refuses(const QWidget *control) const
{
    // Text being edited or typed by the user that the formatter cannot read keeps the panel
    // open, wherever the focus went (a click on OK takes it); text set by the program does
    // not, and reads as today.
    const auto *field = qobject_cast<const QLineEdit *>(control);
    return field && (field->hasFocus() || field->isModified()) && !read(field);
}

BXDateRangePanel::BXDateRangePanel(QPointF, const std::optional<ZARNCalendarDate> &from,
                                   const std::optional<ZARNCalendarDate> &to, QWidget *parent)
    : ZARNWindow(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , d(std::make_unique<BXDateRangePanelPrivate>())
{
    setFromDate(from);
    setToDate(to);
    initInterface();
}

BXDateRangePanel::~BXDateRangePanel() = default;

void BXDateRangePanel::initInterface()
{
    auto *container = new QWidget(this);

    d->okButton = new QPushButton(Brixel::ZARNLocalizedString("OK"), container);
    d->okButton->resize(d->okButton->sizeHint() + QSize(10, 0));
    d->okButton->setShortcut(Qt::Key_Return);
    connect(d->okButton, &QPushButton::clicked, this, &BXDateRangePanel::OK_Button);

    const auto makeLabel = [container](const char *word) {
        auto *label = new ZARNChiseledTextField(container);
        label->setText(Brixel::ZARNLocalizedString(word) + u':');
        label->resize(label->sizeHint());
        return label;
    };
    d->fromLabel = makeLabel("From");
    d->toLabel = makeLabel("To");

    const bool pickers = usesDatePickers();
    if (pickers) {
        d->fromObject = BrixelPrivate::createTextDatePicker(container);
        d->toObject = BrixelPrivate::createTextDatePicker(container);
    } else {
        d->formatter = std::make_shared<ZARNCalendarDateFormatter>(
            Brixel::DateFormatStringToShortestDateFormatString(Brixel::userShortDateFormat()));
        d->fromObject = d->makeDateField(container);
        d->toObject = d->makeDateField(container);
    }

    // The labels sit lower in the row beside line edits than beside pickers, so their text
    // lines up with the text inside each kind of control.
    const BrixelPrivate::DateRangeLayout layout = BrixelPrivate::dateRangePanelLayout(
        sizeOf(d->fromObject), sizeOf(d->toObject), sizeOf(d->okButton), sizeOf(d->fromLabel), sizeOf(d->toLabel),
        pickers ? 7.0f : 2.0f);
    const float height = layout.content.height;
    const auto place = [height](QWidget *widget, const ZARNRect &frame) {
        if (widget)
            widget->setGeometry(frame.flipped(height).toQRectF().toRect());
    };
    place(d->fromObject, layout.fromControl);
    place(d->toObject, layout.toControl);
    place(d->fromLabel, layout.fromLabel);
    place(d->toLabel, layout.toLabel);
    place(d->okButton, layout.okButton);
    for (QWidget *widget : std::initializer_list<QWidget *>{d->fromObject, d->toObject, d->fromLabel, d->toLabel,
                                                             d->okButton}) {
        if (widget)
            widget->raise();
    }

    const QSize content = layout.content.toQSizeF().toSize();
    container->setGeometry(QRect(QPoint(0, 0), content));
    setFixedSize(content);
    setWindowTitle(Brixel::ZARNLocalizedString("Enter Date Range"));
}

ZARNCalendarDate BXDateRangePanel::fromDate() const
{
    return d->fromDate;
}

void BXDateRangePanel::setFromDate(const std::optional<ZARNCalendarDate> &date)
{
    d->fromDate = date.value_or(ZARNCalendarDate::date());
}

ZARNCalendarDate BXDateRangePanel::toDate() const
{
    return d->toDate;
}

void BXDateRangePanel::setToDate(const std::optional<ZARNCalendarDate> &date)
{
    d->toDate = date.value_or(ZARNCalendarDate::date());
}

QWidget *BXDateRangePanel::fromObject() const
{
    return d->fromObject;
}

QWidget *BXDateRangePanel::toObject() const
{
    return d->toObject;
}

ZARNChiseledTextField *BXDateRangePanel::fromLabel() const
{
    return d->fromLabel;
}

ZARNChiseledTextField *BXDateRangePanel::toLabel() const
{
    return d->toLabel;
}

QPushButton *BXDateRangePanel::okButton() const
{
    return d->okButton;
}

bool BXDateRangePanel::run()
{
    const std::array<std::pair<QWidget *, ZARNCalendarDate>, 2> controls{
        std::pair{d->fromObject.data(), d->fromDate}, std::pair{d->toObject.data(), d->toDate}};
    for (const auto &[control, date] : controls) {
        if (!control)
            continue;
        if (usesDatePickers())
            control->setProperty("dateValue", date.toDateTime());
        else if (auto *field = qobject_cast<QLineEdit *>(control); field && d->formatter)
            field->setText(d->text(date));
    }
    if (const QScreen *screen = this->screen())
        move(screen->availableGeometry().center() - rect().center());
    setWindowModality(Qt::ApplicationModal);
    show();
    activateWindow();
    QEventLoop loop;
    d->loop = &loop;
    const int result = loop.exec();
    d->loop = nullptr;
    return result == 1;
}

void BXDateRangePanel::internationalize()
{
}

void BXDateRangePanel::OK_Button()
{
    if (d->refuses(d->fromObject) || d->refuses(d->toObject))
        return;
    if (d->loop)
        d->loop->exit(1);
    hide();
    setFromDate(d->read(d->fromObject));
    setToDate(d->read(d->toObject));
}

void BXDateRangePanel::closeEvent(QCloseEvent *event)
{
    // Only OK ends the panel.
    if (d->loop)
        event->ignore();
    else
        ZARNWindow::closeEvent(event);
}
