// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QStyledItemDelegate>

/**
 * An item delegate that draws the item as QStyledItemDelegate does, less its rightmost 10
 * pixels, where it centres a small up-and-down knob ("popupknob_small", looked up with
 * Brixel::imageNamed() for the class name "BXComboBoxCell", at 2x on screens that have it).
 * Use it in the library's tables or as a QComboBox's item delegate.
 *
 * \code
 * auto *units = new QComboBox(panel);
 * units->setItemDelegate(new BXComboBoxCell(units));
 * \endcode
 */
class BRIXEL_EXPORT BXComboBoxCell : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Where the knob goes in a cell of \a frame: \a knob's size centred on the rightmost 10
    /// pixels, on whole pixels.
    static QRectF knobRect(const QRectF &frame, QSizeF knob);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
