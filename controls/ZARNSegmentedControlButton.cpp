// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSegmentedControlButton.h"

#include "../platform/ZARNRect.h"

#include <QPainter>

#include <cmath>

class ZARNSegmentedControlButtonPrivate
{
public:
    QImage image;
};

ZARNSegmentedControlButton::ZARNSegmentedControlButton(QWidget *parent)
    : ZARNSegmentedControlBase(parent)
    , d(std::make_unique<ZARNSegmentedControlButtonPrivate>())
{
}

ZARNSegmentedControlButton::~ZARNSegmentedControlButton() = default;

QImage ZARNSegmentedControlButton::image() const
{
    return d->image;
}

void ZARNSegmentedControlButton::setImage(const QImage &image)
{
    d->image = image;
    update();
}

QPoint ZARNSegmentedControlButton::imageOrigin(QSize bounds, QSize imageSize)
{
    // Halved in double and truncated toward zero.
    return {int(std::trunc((bounds.width() - imageSize.width()) * 0.5)),
            int(std::trunc((bounds.height() - imageSize.height()) * 0.5))};
}

void ZARNSegmentedControlButton::paintEvent(QPaintEvent *event)
{
    ZARNSegmentedControlBase::paintEvent(event);
    if (d->image.isNull())
        return;
    const QSize imageSize = d->image.deviceIndependentSize().toSize();
    const QPoint origin = imageOrigin(size(), imageSize);
    const ZARNRect target(float(origin.x()), float(origin.y()), float(imageSize.width()), float(imageSize.height()));
    QPainter painter(this);
    painter.drawImage(target.flipped(float(height())).toQRectF(), d->image);
}
