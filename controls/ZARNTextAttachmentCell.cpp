// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTextAttachmentCell.h"

#include <QAbstractTextDocumentLayout>
#include <QAtomicInt>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>

namespace {

// Every cell is a text object type of its own, above the ones Qt reserves.
int nextObjectType()
{
    static QAtomicInt lastType(QTextFormat::UserObject + 0x100);
    return lastType.fetchAndAddRelaxed(1) + 1;
}

} // namespace

class ZARNTextAttachmentCellPrivate
{
public:
    QImage image;
    QPointF baselineOffset;
    bool centerBaselineOffset = false;
    int objectType = nextObjectType();
};

ZARNTextAttachmentCell::ZARNTextAttachmentCell(QObject *parent)
    : ZARNTextAttachmentCell(QImage(), parent)
{
}

ZARNTextAttachmentCell::ZARNTextAttachmentCell(const QImage &image, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<ZARNTextAttachmentCellPrivate>())
{
    d->image = image;
}

ZARNTextAttachmentCell::~ZARNTextAttachmentCell() = default;

QImage ZARNTextAttachmentCell::image() const
{
    return d->image;
}

void ZARNTextAttachmentCell::setImage(const QImage &image)
{
    d->image = image;
}

QPointF ZARNTextAttachmentCell::cellBaselineOffset() const
{
    return d->centerBaselineOffset ? QPointF() : d->baselineOffset;
}

void ZARNTextAttachmentCell::zarnSetCellBaselineOffset(QPointF offset)
{
    d->baselineOffset = offset;
}

void ZARNTextAttachmentCell::zarnSetCenterCellBaselineOffset(bool flag)
{
    d->centerBaselineOffset = flag;
}

int ZARNTextAttachmentCell::objectType() const
{
    return d->objectType;
}

void ZARNTextAttachmentCell::insertInto(QTextCursor &cursor)
{
    QTextDocument *document = cursor.document();
    if (!document)
        return;
    document->documentLayout()->registerHandler(d->objectType, this);
    QTextCharFormat format;
    format.setObjectType(d->objectType);
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
}

QSizeF ZARNTextAttachmentCell::intrinsicSize(QTextDocument *, int, const QTextFormat &)
{
    return d->image.deviceIndependentSize();
}

void ZARNTextAttachmentCell::drawObject(QPainter *painter, const QRectF &rect, QTextDocument *, int,
                                        const QTextFormat &)
{
    if (!painter || d->image.isNull())
        return;
    // The offset counts y upward; Qt's y grows downward.
    const QPointF offset = cellBaselineOffset();
    painter->drawImage(rect.translated(offset.x(), -offset.y()), d->image);
}
