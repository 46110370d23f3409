// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNImageAndTextCell.h"
#include "ImageAndTextLayout_p.h"

#include "../drawing/ZARNGeometry.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include <cmath>

namespace {

ZARNSize ownSize(const QImage &image)
{
    return ZARNSize::fromQSizeF(image.deviceIndependentSize());
}

QStyleOptionViewItem withRect(const QStyleOptionViewItem &option, const ZARNRect &rect)
{
    QStyleOptionViewItem changed = option;
    changed.rect = rect.toQRectF().toRect();
    return changed;
}

} // namespace

BrixelPrivate::RectDivision BrixelPrivate::divideRectFromLeft(const ZARNRect &rect, float amount)
{
    const float width = rect.width() > 0 ? rect.width() : 0.0f;
    const float sliceWidth = amount > 0 ? std::min(amount, width) : 0.0f;
    return {{rect.x(), rect.y(), sliceWidth, rect.height()},
            {rect.x() + sliceWidth, rect.y(), width - sliceWidth, rect.height()}};
}

ZARNRect BrixelPrivate::imageDestination(ZARNSize imageSize, const ZARNRect &area, int scaling)
{
    const ZARNRect source = Brixel::ZARNMakeRectWithSize(imageSize);
    ZARNRect destination;
    switch (scaling) {
    case 1:
        destination = area;
        break;
    case 2:
        destination = Brixel::ZARNRectCenterOnRect(source, area);
        break;
    default:
        destination = Brixel::ZARNRectCenterOnRect(Brixel::ZARNScaleRectToRect(source, area), area);
        break;
    }
    destination.origin = Brixel::ZARNIntegralPoint(destination.origin);
    return destination;
}

class ZARNImageAndTextCellPrivate
{
public:
    QImage image;
    int imageScaling = 0;
    ZARNSize imageSize;

    // The last image reduced for drawing, so that rows sharing an image reduce it once.
    qint64 reducedSourceKey = 0;
    QImage reduced;
};

ZARNImageAndTextCell::ZARNImageAndTextCell(QObject *parent)
    : ZARNTextFieldCell(parent)
    , d(std::make_unique<ZARNImageAndTextCellPrivate>())
{
    const float side = float(textCellSize(QString(), font()).height() - 4.0);
    d->imageSize = {side, side};
}

ZARNImageAndTextCell::~ZARNImageAndTextCell() = default;

QImage ZARNImageAndTextCell::image() const
{
    return d->image;
}

void ZARNImageAndTextCell::setImage(const QImage &image)
{
    d->image = image;
    Q_EMIT sizeHintChanged(QModelIndex());
}

int ZARNImageAndTextCell::imageScaling() const
{
    return d->imageScaling;
}

void ZARNImageAndTextCell::setImageScaling(int scaling)
{
    if (d->imageScaling == scaling)
        return;
    d->imageScaling = scaling;
    Q_EMIT sizeHintChanged(QModelIndex());
}

ZARNSize ZARNImageAndTextCell::imageSize() const
{
    return d->imageSize;
}

void ZARNImageAndTextCell::setImageSize(ZARNSize size)
{
    if (d->imageSize == size)
        return;
    d->imageSize = size;
    Q_EMIT sizeHintChanged(QModelIndex());
}

ZARNRect ZARNImageAndTextCell::imageRectForBounds(const ZARNRect &bounds) const
{
    if (d->image.isNull())
        return {};
    const double below = std::ceil(double(bounds.height() - d->imageSize.height) * 0.5);
    return {float(double(bounds.x()) + 2.0), float(double(bounds.y()) + below), d->imageSize.width,
            d->imageSize.height};
}

ZARNRect ZARNImageAndTextCell::titleRectForBounds(const ZARNRect &bounds) const
{
    if (d->image.isNull())
        return ZARNTextFieldCell::titleRectForBounds(bounds);
    return {float(double(bounds.x()) + d->imageSize.width + 4.0 + 1.0), float(double(bounds.y()) + 2.0),
            float(double(bounds.width()) - 4.0 - d->imageSize.width - 1.0), float(double(bounds.height()) - 4.0)};
}

QImage ZARNImageAndTextCell::imageForIndex(const QModelIndex &index) const
{
    const QVariant decoration = index.data(Qt::DecorationRole);
    switch (decoration.metaType().id()) {
    case QMetaType::QImage:
        return decoration.value<QImage>();
    case QMetaType::QPixmap:
        return decoration.value<QPixmap>().toImage();
    case QMetaType::QIcon: {
        // An icon has no size of its own: it is asked for the size of the image area.
        const QSize size(int(std::ceil(std::clamp(d->imageSize.width, 0.0f, 4096.0f))),
                         int(std::ceil(std::clamp(d->imageSize.height, 0.0f, 4096.0f))));
        return decoration.value<QIcon>().pixmap(size).toImage();
    }
    default:
        return d->image;
    }
}

QSize ZARNImageAndTextCell::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize text = ZARNTextFieldCell::sizeHint(option, index);
    const QImage image = imageForIndex(index);
    const double extra = (image.isNull() ? 0.0 : double(ownSize(image).width)) + 4.0;
    return {int(std::ceil(text.width() + extra)), text.height()};
}

void ZARNImageAndTextCell::drawImage(QPainter &painter, const QImage &image, const ZARNRect &destination) const
{
    const QRectF target = destination.toQRectF();
    if (!(target.width() > 0 && target.height() > 0))
        return;
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Reducing with the painter's bilinear filter skips source pixels; an image reduced
    // beforehand with area sampling keeps fine lines.
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    const QSizeF pixels = target.size() * ratio;
    if (pixels.width() < image.width() && pixels.height() < image.height()) {
        const QSize reducedSize(int(std::ceil(pixels.width())), int(std::ceil(pixels.height())));
        if (d->reducedSourceKey != image.cacheKey() || d->reduced.size() != reducedSize) {
            d->reduced = image.scaled(reducedSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            d->reducedSourceKey = image.cacheKey();
        }
        painter.drawImage(target, d->reduced, d->reduced.rect());
    } else {
        painter.drawImage(target, image, image.rect());
    }
    painter.restore();
}

void ZARNImageAndTextCell::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QImage image = imageForIndex(index);
    if (image.isNull()) {
        ZARNTextFieldCell::paint(painter, option, index);
        return;
    }
    // The image area is the image rectangle's width (imageSize()'s) + 2, the full height.
    const ZARNRect frame = ZARNRect::fromQRectF(option.rect);
    const BrixelPrivate::RectDivision parts = BrixelPrivate::divideRectFromLeft(frame, float(double(d->imageSize.width) + 2.0));
    if (drawsBackground()) {
        painter->fillRect(parts.slice.toQRectF(), backgroundColor().isValid() ? QBrush(backgroundColor())
                                                                                : option.palette.base());
    }
    // Qt draws images upright in its top-down widgets, so no flipping transform is needed.
    drawImage(*painter, image, BrixelPrivate::imageDestination(ownSize(image), parts.slice, d->imageScaling));
    ZARNTextFieldCell::paint(painter, withRect(option, parts.remainder), index);
}

void ZARNImageAndTextCell::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                                const QModelIndex &index) const
{
    const QImage image = imageForIndex(index);
    const double amount = (image.isNull() ? 0.0 : double(ownSize(image).width)) + 3.0;
    const BrixelPrivate::RectDivision parts = BrixelPrivate::divideRectFromLeft(ZARNRect::fromQRectF(option.rect), float(amount));
    ZARNTextFieldCell::updateEditorGeometry(editor, withRect(option, parts.remainder), index);
}

ZARNImageAndTextCell *ZARNImageAndTextCell::copy(QObject *parent) const
{
    auto *cell = new ZARNImageAndTextCell(parent);
    copyTextSettingsTo(*cell);
    cell->d->image = d->image;
    cell->d->imageScaling = d->imageScaling;
    cell->setImageSize(d->imageSize);
    return cell;
}
