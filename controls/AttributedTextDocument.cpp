// SPDX-License-Identifier: LGPL-2.1-or-later
#include "AttributedTextDocument_p.h"

#include "../platform/ZARNAttributedString.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QTextCursor>
#include <QTextImageFormat>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace BrixelPrivate {

namespace {

QTextCharFormat characterFormat(const QVariantMap &attributes, const QFont &font)
{
    QTextCharFormat format;
    format.setFont(attributes.value(ZARNFontAttributeName, font).value<QFont>());
    format.setFontStyleStrategy(QFont::NoAntialias);
    const QVariant color = attributes.value(ZARNForegroundColorAttributeName);
    if (color.isValid())
        format.setForeground(color.value<QColor>());
    return format;
}

// Inserts one inline image per character of an attachment run; each image is a resource of
// the document under a name of its own.
void insertAttachments(QTextCursor &cursor, QTextDocument &document, const QImage &image, qsizetype count,
                       const QTextCharFormat &format)
{
    for (qsizetype i = 0; i < count; ++i) {
        const QUrl name(u"brixel-attachment:%1"_s.arg(cursor.position()));
        document.addResource(QTextDocument::ImageResource, name, image);
        QTextImageFormat imageFormat;
        imageFormat.merge(format);
        imageFormat.setName(name.toString());
        imageFormat.setWidth(image.deviceIndependentSize().width());
        imageFormat.setHeight(image.deviceIndependentSize().height());
        cursor.insertImage(imageFormat);
    }
}

} // namespace

std::unique_ptr<QTextDocument> attributedTextDocument(const ZARNAttributedString &text, const QFont &font,
                                                      Qt::Alignment alignment, bool wraps)
{
    auto document = std::make_unique<QTextDocument>();
    document->setDefaultFont(font);
    document->setDocumentMargin(0);
    QTextOption option(alignment & Qt::AlignHorizontal_Mask);
    option.setWrapMode(wraps ? QTextOption::WordWrap : QTextOption::NoWrap);
    document->setDefaultTextOption(option);

    QTextCursor cursor(document.get());
    for (qsizetype index = 0; index < text.length();) {
        ZARNRange run;
        const QVariantMap attributes = text.attributesAtIndex(index, &run);
        const qsizetype count = run.end() - index;
        const QTextCharFormat format = characterFormat(attributes, font);
        const QImage attachment = attributes.value(ZARNAttachmentAttributeName).value<QImage>();
        if (attachment.isNull())
            cursor.insertText(text.string().mid(index, count), format);
        else
            insertAttachments(cursor, *document, attachment, count, format);
        index += count;
    }
    return document;
}

void drawTextDocument(QPainter &painter, const QTextDocument &document, QPointF topLeft)
{
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.save();
    painter.translate(topLeft);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

} // namespace BrixelPrivate
