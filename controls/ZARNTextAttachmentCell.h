// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QImage>
#include <QObject>
#include <QPointF>
#include <QTextObjectInterface>

#include <memory>

class QTextCursor;

/**
 * An image in rich text (a QTextDocument, as in QLabel, QTextEdit or QTextBrowser) that can
 * be moved off the baseline.
 *
 * \code
 * auto *badge = new ZARNTextAttachmentCell(QImage(QStringLiteral(":/icons/star.png")), document);
 * badge->zarnSetCellBaselineOffset(QPointF(0, -3));   // three pixels below the baseline
 * QTextCursor cursor(document);
 * cursor.insertText(tr("Favourites "));
 * badge->insertInto(cursor);
 * \endcode
 *
 * Each cell is its own kind of text object: insertInto() registers the cell with the cursor's
 * document and inserts the object character. The image takes its own size in the line, with
 * its bottom on the baseline; the cell baseline offset then moves the drawn image, counted
 * with y up (so (0, -3) lowers it by three pixels), without changing the room it takes.
 *
 * The centre flag only switches the offset off: while it is set, cellBaselineOffset() is
 * (0, 0) and the image sits on the baseline; it does not centre anything itself. Neither the
 * offset nor the flag is saved with the document.
 */
class BRIXEL_EXPORT ZARNTextAttachmentCell : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)
public:
    explicit ZARNTextAttachmentCell(QObject *parent = nullptr);
    explicit ZARNTextAttachmentCell(const QImage &image, QObject *parent = nullptr);
    ~ZARNTextAttachmentCell() override;

    QImage image() const;
    void setImage(const QImage &image);

    /// The offset stored by zarnSetCellBaselineOffset(), or (0, 0) while the centre flag is set.
    QPointF cellBaselineOffset() const;
    void zarnSetCellBaselineOffset(QPointF offset);
    void zarnSetCenterCellBaselineOffset(bool flag);

    /// The text object type of this cell's attachments.
    int objectType() const;
    /// Registers the cell with \a cursor's document and inserts one attachment there.
    void insertInto(QTextCursor &cursor);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    std::unique_ptr<class ZARNTextAttachmentCellPrivate> const d;
};
