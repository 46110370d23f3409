// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXComboBoxCell.h"

#include "../drawing/ZARNGeometry.h"
#include "../drawing/ZARNNSImageAdditions.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal KnobSliceWidth = 10.0;

} // namespace

QRectF BXComboBoxCell::knobRect(const QRectF &frame, QSizeF knob)
{
    const ZARNRect slice = ZARNRect::fromQRectF(
        QRectF(frame.right() - KnobSliceWidth, frame.y(), qMin(KnobSliceWidth, frame.width()), frame.height()));
    const ZARNRect centred = Brixel::ZARNRectCenterOnRect(Brixel::ZARNMakeRectWithSize(ZARNSize::fromQSizeF(knob)), slice);
    return Brixel::ZARNNormalizedRect(centred).toQRectF();
}

void BXComboBoxCell::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (!painter)
        return;
    QStyleOptionViewItem remainder = option;
    remainder.rect.setWidth(qMax(0, option.rect.width() - int(KnobSliceWidth)));
    QStyledItemDelegate::paint(painter, remainder, index);

    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    const QImage knob = Brixel::imageNamed(u"popupknob_small"_s, u"BXComboBoxCell"_s, ratio);
    if (!knob.isNull())
        painter->drawImage(knobRect(option.rect, knob.deviceIndependentSize()), knob);
}
