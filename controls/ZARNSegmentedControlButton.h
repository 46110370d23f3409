// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNSegmentedControlBase.h"

#include <memory>

/**
 * A segmented control that draws one image, upright and centred, over itself: a single image
 * button with the segmented look.
 *
 * \code
 * auto *share = new ZARNSegmentedControlButton(toolbar);
 * share->setSegmentCount(1);
 * share->setImage(QImage(QStringLiteral(":/icons/share.png")));
 * \endcode
 *
 * The image keeps its size and is placed at x = trunc((width - image width) / 2) from the left
 * and y = trunc((height - image height) / 2) from the bottom (a 20 x 20 image in 45 x 23 sits
 * 12 from the left and 1 from the bottom).
 */
class BRIXEL_EXPORT ZARNSegmentedControlButton : public ZARNSegmentedControlBase
{
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage)
public:
    explicit ZARNSegmentedControlButton(QWidget *parent = nullptr);
    ~ZARNSegmentedControlButton() override;

    /// The image drawn over the control; null (the default) for none.
    QImage image() const;
    void setImage(const QImage &image);

    /// Where an image of \a imageSize goes in \a bounds, with y up from the bottom.
    static QPoint imageOrigin(QSize bounds, QSize imageSize);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::unique_ptr<class ZARNSegmentedControlButtonPrivate> const d;
};
