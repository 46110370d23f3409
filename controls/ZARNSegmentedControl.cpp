// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSegmentedControl.h"

#include "ZARNSegmentedCell.h"

#include <QEvent>
#include <QHash>
#include <QPainter>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// The shared separator table, keyed by each control's identity.
QHash<QString, QStringList> &separatorTable()
{
    static QHash<QString, QStringList> table;
    return table;
}

QString identityKey(const ZARNSegmentedControl *control)
{
    return QString::number(quintptr(control));
}

QString rectString(const QRectF &rect)
{
    return u"{{%1, %2}, {%3, %4}}"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

// The rectangle a rectString() describes; an empty rectangle for any other text.
QRectF rectFromString(const QString &text)
{
    static const QRegularExpression number(u"-?[0-9.]+(?:e[-+]?[0-9]+)?"_s);
    QList<double> values;
    for (auto match = number.globalMatch(text); match.hasNext();)
        values.append(match.next().captured().toDouble());
    return values.size() == 4 ? QRectF(values[0], values[1], values[2], values[3]) : QRectF();
}

} // namespace

ZARNSegmentedCell::~ZARNSegmentedCell() = default;

void ZARNSegmentedCell::drawSegment(QPainter &painter, int segment, const QRect &frame,
                                    ZARNSegmentedControl &control) const
{
    control.ZARNSegmentedControlBase::drawSegment(painter, segment, frame);
    // No line after the last segment, nor on either side of the selected one.
    const int selected = control.selectedSegment();
    if (segment < control.segmentCount() - 1 && segment != selected && segment != selected - 1) {
        const QRectF separator(frame.x() + frame.width(), frame.y(), 1.0, frame.height());
        ZARNSegmentedControl::addSeparator(rectString(separator), &control);
    }
}

class ZARNSegmentedControlPrivate
{
public:
    std::unique_ptr<ZARNSegmentedCell> cell = std::make_unique<ZARNSegmentedCell>();
};

ZARNSegmentedControl::ZARNSegmentedControl(QWidget *parent)
    : ZARNSegmentedControlBase(parent)
    , d(std::make_unique<ZARNSegmentedControlPrivate>())
{
}

ZARNSegmentedControl::~ZARNSegmentedControl() = default;

const ZARNSegmentedCell &ZARNSegmentedControl::cell() const
{
    return *d->cell;
}

void ZARNSegmentedControl::setCell(std::unique_ptr<ZARNSegmentedCell> cell)
{
    d->cell = cell ? std::move(cell) : std::make_unique<ZARNSegmentedCell>();
    update();
}

QStringList ZARNSegmentedControl::separatorsForSegmentedControl(const ZARNSegmentedControl *control)
{
    return control ? separatorTable().value(identityKey(control)) : QStringList();
}

void ZARNSegmentedControl::addSeparator(const QString &rect, const ZARNSegmentedControl *control)
{
    if (rect.isEmpty() || !control)
        return;
    separatorTable()[identityKey(control)].append(rect);
}

void ZARNSegmentedControl::removeSeparatorsForSegmentedControl(const ZARNSegmentedControl *control)
{
    const auto entry = separatorTable().find(identityKey(control));
    if (entry != separatorTable().end())
        entry->clear();
}

void ZARNSegmentedControl::drawSegment(QPainter &painter, int segment, const QRect &frame)
{
    d->cell->drawSegment(painter, segment, frame, *this);
}

void ZARNSegmentedControl::paintEvent(QPaintEvent *event)
{
    removeSeparatorsForSegmentedControl(this);
    ZARNSegmentedControlBase::paintEvent(event);
    if (!isActiveWindow())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgbF(0.0f, 0.0f, 0.0f, 0.33f), 1.0));
    for (const QString &text : separatorsForSegmentedControl(this)) {
        const QRectF separator = rectFromString(text);
        painter.drawLine(QPointF(separator.x() + 0.5, separator.y()),
                         QPointF(separator.x() + 0.5, separator.y() + separator.height()));
    }
}

void ZARNSegmentedControl::changeEvent(QEvent *event)
{
    ZARNSegmentedControlBase::changeEvent(event);
    if (event->type() == QEvent::ActivationChange)
        update();
}
