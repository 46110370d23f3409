// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNSize.h"
#include "ZARNTextFieldCell.h"
#include <Brixel/brixel_export.h>

#include <QImage>

/**
 * A text cell with an image at its left edge and the text to the right of it.
 *
 * The image drawn for an index is the model's Qt::DecorationRole (a QImage, QPixmap or QIcon)
 * when it has one, otherwise image(); without either the cell lays out and draws exactly as a
 * ZARNTextFieldCell, except that sizeHint() is 4 points wider. The image fills an area of
 * imageSize() width plus 2 points at the cell's left, the full cell height, in one of three
 * ways (imageScaling()):
 *
 * | imageScaling | the image |
 * |---|---|
 * | 1 | stretched over the whole area, each axis on its own |
 * | 2 | unscaled and centred; a larger image overflows the area |
 * | 0, any other | scaled to the area keeping its proportions, and centred |
 *
 * The image's origin is snapped to whole points, its size is not; scaling is smooth. The
 * editor is placed to the right of the image's own width plus 3 points, so it never covers
 * the image (it may sit a little apart from where the text is drawn; this is intended).
 * Rectangles are in the view's coordinates, y growing downward.
 *
 * \code
 * auto *cell = new ZARNImageAndTextCell(table);
 * cell->setImage(QImage(u":/icons/folder.png"_s));
 * cell->setImageSize({16, 16});            // setImage() leaves the layout size alone
 * table->setItemDelegateForColumn(0, cell);
 * \endcode
 */
class BRIXEL_EXPORT ZARNImageAndTextCell : public ZARNTextFieldCell
{
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage)
    Q_PROPERTY(int imageScaling READ imageScaling WRITE setImageScaling)
public:
    /// A cell without an image, scaling 0 and an image size square as high as a line of the
    /// cell's font less 4 points.
    explicit ZARNImageAndTextCell(QObject *parent = nullptr);
    ~ZARNImageAndTextCell() override;

    /// The image drawn where the model gives none; a null image means none. Setting it does
    /// not change imageSize().
    QImage image() const;
    void setImage(const QImage &image);

    /// How the image fills its area: 0 proportionally, 1 stretched, 2 unscaled; other values
    /// act as 0 but are kept as given.
    int imageScaling() const;
    void setImageScaling(int scaling);

    /// The size of the image area used to lay out the image and the title.
    ZARNSize imageSize() const;
    void setImageSize(ZARNSize size);

    /**
     * Where the image goes in \a bounds when the cell has image(): imageSize() at x + 2,
     * centred vertically with the half difference rounded up (ceil((height - image height) *
     * 0.5) below the top). Without an image, the zero rectangle.
     */
    ZARNRect imageRectForBounds(const ZARNRect &bounds) const;

    /**
     * Where the text goes in \a bounds when the cell has image(): right of the image area
     * (x + image width + 5), 2 points in from the top and bottom, reaching to the right edge.
     * Without an image, ZARNTextFieldCell's.
     */
    ZARNRect titleRectForBounds(const ZARNRect &bounds) const override;

    /// ZARNTextFieldCell's size made wider by the image's own width (not imageSize()) + 4, or
    /// by 4 alone without an image.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// Places \a editor on the cell less its left part, the image's own width + 3 points (3
    /// alone without an image).
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    /// A new cell with the same settings, owned by \a parent; it shares the image's data.
    ZARNImageAndTextCell *copy(QObject *parent = nullptr) const override;

private:
    QImage imageForIndex(const QModelIndex &index) const;
    void drawImage(QPainter &painter, const QImage &image, const ZARNRect &destination) const;

    std::unique_ptr<class ZARNImageAndTextCellPrivate> const d;
};
