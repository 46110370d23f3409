// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "../platform/ZARNAttributedString.h"
#include "../platform/ZARNRect.h"
#include <Brixel/brixel_export.h>

#include <QColor>
#include <QFont>
#include <QStyledItemDelegate>

#include <memory>
#include <optional>

/**
 * A plain text cell for table and outline views: the model's text on one line, centred
 * vertically with 2 points of padding at either side, shortened with a trailing "..." when it
 * is too wide, over an optional background fill.
 *
 * The text is the model's Qt::DisplayRole (shown as QStyledItemDelegate::displayText() shows
 * it). Qt::FontRole, Qt::ForegroundRole and Qt::TextAlignmentRole are honoured where the model
 * gives them; where it does not, the cell's own font() and textColor() apply when they are
 * set, and the view's font and text colour otherwise. The horizontal alignment defaults to
 * left; the text is centred vertically unless the model asks for top or bottom.
 *
 * Text that measures more than the cell's width minus 4 points is shortened with
 * TruncateAttributedString(); a cell too narrow even for "..." draws no text. The cell keeps
 * the shortened texts of its recent paints, by text, font and width, so that repainting a
 * table does not shorten them again; it keeps a bounded number and forgets them all when its
 * font or the application's fonts change.
 *
 * QStyle::State_Selected in the option means "draw the contents highlighted": the text is
 * restyled with ZARNTableView::highlightCellContents() (white, with the table's standard shadow, bold
 * on newer systems). The cell never paints a selection background; the view draws the
 * selection shape under its cells.
 *
 * \code
 * auto *cell = new ZARNTextFieldCell(table);
 * cell->setDrawsBackground(true);
 * cell->setBackgroundColor(Qt::yellow);
 * table->setItemDelegateForColumn(2, cell);
 * \endcode
 *
 * Editing uses QStyledItemDelegate's editors (a QLineEdit for text).
 */
class BRIXEL_EXPORT ZARNTextFieldCell : public QStyledItemDelegate
{
    Q_OBJECT
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    Q_PROPERTY(bool drawsBackground READ drawsBackground WRITE setDrawsBackground)
    Q_PROPERTY(QFont font READ font WRITE setFont)
public:
    /// The space kept free at either side of the text, in points.
    static constexpr qreal horizontalPadding = 2.0;

    explicit ZARNTextFieldCell(QObject *parent = nullptr);
    ~ZARNTextFieldCell() override;

    // Each setter that changes the look emits sizeHintChanged(), on which the views that use
    // the cell lay out and repaint their rows.

    /// The colour of text the model gives no colour for; invalid (the default) means the view
    /// palette's text colour.
    QColor textColor() const;
    void setTextColor(const QColor &color);

    /// The colour drawsBackground() fills the cell with; invalid (the default) means the view
    /// palette's base colour.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);

    /// Whether the cell fills its rectangle with backgroundColor() before drawing; false by
    /// default, letting the view's background and selection show through.
    bool drawsBackground() const;
    void setDrawsBackground(bool draws);

    /// The font of text the model gives no font for. Until setFont() is called, the view's
    /// font is used and font() answers the application's default font.
    QFont font() const;
    void setFont(const QFont &font);

    /**
     * The text this cell shows for \a index, with the font, foreground colour and horizontal
     * paragraph alignment it is drawn in on every character (before any restyling for a
     * selected row or shortening).
     */
    ZARNAttributedString attributedStringValue(const QStyleOptionViewItem &option, const QModelIndex &index) const;

    /// The part of \a bounds that holds the text: all of it, as the padding is applied when the
    /// text is drawn. Subclasses that draw more than text give less.
    virtual ZARNRect titleRectForBounds(const ZARNRect &bounds) const;

    /// The size \a text needs in \a font: its width plus the padding at both sides, and its
    /// height. Empty text is as high as one line of the font.
    static QSizeF textCellSize(const QString &text, const QFont &font);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// The model's Qt::SizeHintRole when it gives one, otherwise textCellSize() of the cell's
    /// text in its font, rounded up to whole pixels.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// A new cell with the same colours, background setting and font, owned by \a parent.
    virtual ZARNTextFieldCell *copy(QObject *parent = nullptr) const;

protected:
    /// QStyledItemDelegate's option without the decoration, which a text cell does not draw,
    /// so that the editor does not leave room for it.
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

    /// Gives \a cell this cell's colours, background setting and font.
    void copyTextSettingsTo(ZARNTextFieldCell &cell) const;

private:
    friend class ZARNTextFieldCellPrivate;

    struct TextStyle
    {
        QString text;
        QFont font;
        QColor color;
        Qt::Alignment alignment;
    };

    TextStyle textStyle(const QStyleOptionViewItem &option, const QModelIndex &index) const;
    ZARNAttributedString attributedString(const TextStyle &style) const;
    void drawAttributedText(QPainter &painter, const ZARNAttributedString &text, const QRectF &bounds,
                            Qt::Alignment alignment) const;
    qreal dotsWidth(const QFont &font) const;

    std::unique_ptr<class ZARNTextFieldCellPrivate> const d;
};
