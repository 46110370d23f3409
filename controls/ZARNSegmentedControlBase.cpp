// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSegmentedControlBase.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

QStyleOptionButton buttonOption(const QWidget &widget, const QString &label, const QImage &image)
{
    QStyleOptionButton option;
    option.initFrom(&widget);
    option.text = label;
    if (!image.isNull()) {
        option.icon = QIcon(QPixmap::fromImage(image));
        option.iconSize = image.size();
    }
    return option;
}

} // namespace

class ZARNSegmentedControlBasePrivate
{
public:
    struct Segment
    {
        QString label;
        QImage image;
        int tag = 0;
    };

    QList<Segment> segments;
    int selectedSegment = -1;
};

ZARNSegmentedControlBase::ZARNSegmentedControlBase(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<ZARNSegmentedControlBasePrivate>())
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

ZARNSegmentedControlBase::~ZARNSegmentedControlBase() = default;

bool ZARNSegmentedControlBase::isSegment(int segment) const
{
    return segment >= 0 && segment < d->segments.size();
}

int ZARNSegmentedControlBase::segmentCount() const
{
    return int(d->segments.size());
}

void ZARNSegmentedControlBase::setSegmentCount(int count)
{
    count = std::max(count, 0);
    if (count == d->segments.size())
        return;
    d->segments.resize(count);
    if (d->selectedSegment >= count)
        setSelectedSegment(-1);
    updateGeometry();
    update();
}

QString ZARNSegmentedControlBase::labelForSegment(int segment) const
{
    return isSegment(segment) ? d->segments.at(segment).label : QString();
}

void ZARNSegmentedControlBase::setLabel(const QString &label, int segment)
{
    if (!isSegment(segment))
        return;
    d->segments[segment].label = label;
    updateGeometry();
    update();
}

QImage ZARNSegmentedControlBase::imageForSegment(int segment) const
{
    return isSegment(segment) ? d->segments.at(segment).image : QImage();
}

void ZARNSegmentedControlBase::setImage(const QImage &image, int segment)
{
    if (!isSegment(segment))
        return;
    d->segments[segment].image = image;
    updateGeometry();
    update();
}

int ZARNSegmentedControlBase::tagForSegment(int segment) const
{
    return isSegment(segment) ? d->segments.at(segment).tag : 0;
}

void ZARNSegmentedControlBase::setTag(int tag, int segment)
{
    if (isSegment(segment))
        d->segments[segment].tag = tag;
}

int ZARNSegmentedControlBase::selectedSegment() const
{
    return d->selectedSegment;
}

void ZARNSegmentedControlBase::setSelectedSegment(int segment)
{
    if ((segment != -1 && !isSegment(segment)) || segment == d->selectedSegment)
        return;
    d->selectedSegment = segment;
    update();
    Q_EMIT selectedSegmentChanged(segment);
}

bool ZARNSegmentedControlBase::selectSegmentWithTag(int tag)
{
    const auto found = std::find_if(d->segments.cbegin(), d->segments.cend(),
                                    [tag](const ZARNSegmentedControlBasePrivate::Segment &segment) { return segment.tag == tag; });
    if (found == d->segments.cend())
        return false;
    setSelectedSegment(int(found - d->segments.cbegin()));
    return true;
}

QRect ZARNSegmentedControlBase::rectForSegment(int segment) const
{
    if (!isSegment(segment))
        return {};
    // Equal shares; the last segment takes the pixels that do not divide evenly.
    const int count = segmentCount();
    const int left = width() * segment / count;
    const int right = width() * (segment + 1) / count;
    return {left, 0, right - left, height()};
}

QSize ZARNSegmentedControlBase::segmentSizeHint(int segment) const
{
    const QStyleOptionButton option = buttonOption(*this, labelForSegment(segment), imageForSegment(segment));
    QSize content = fontMetrics().size(Qt::TextShowMnemonic, option.text);
    if (!option.icon.isNull())
        content = {content.width() + option.iconSize.width() + 4, std::max(content.height(), option.iconSize.height())};
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, content, this);
}

QSize ZARNSegmentedControlBase::sizeHint() const
{
    // Every segment gets the widest segment's share, so the widest one sets the width.
    QSize widest;
    for (int segment = 0; segment < segmentCount(); ++segment)
        widest = widest.expandedTo(segmentSizeHint(segment));
    return {widest.width() * segmentCount(), widest.height()};
}

void ZARNSegmentedControlBase::drawSegment(QPainter &painter, int segment, const QRect &frame)
{
    QStyleOptionButton option = buttonOption(*this, labelForSegment(segment), imageForSegment(segment));
    option.rect = frame;
    option.state |= segment == d->selectedSegment ? QStyle::State_On | QStyle::State_Sunken : QStyle::State_Raised;
    style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
}

void ZARNSegmentedControlBase::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    for (int segment = 0; segment < segmentCount(); ++segment)
        drawSegment(painter, segment, rectForSegment(segment));
}

void ZARNSegmentedControlBase::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    for (int segment = 0; segment < segmentCount(); ++segment) {
        if (rectForSegment(segment).contains(event->position().toPoint())) {
            setSelectedSegment(segment);
            return;
        }
    }
}
