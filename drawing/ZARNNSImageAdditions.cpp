// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSImageAdditions.h"

#include "ZARNGeometry.h"

#include <QDir>
#include <QHash>
#include <QImageReader>
#include <QPainter>

namespace {

QHash<QString, QString> &registeredPrefixes()
{
    static QHash<QString, QString> prefixes;
    return prefixes;
}

QImage loadFromFolder(const QString &folder, const QString &name)
{
    const QDir directory(folder);
    QImage image(directory.filePath(name));
    if (!image.isNull())
        return image;
    const QList<QByteArray> types = QImageReader::supportedImageFormats();
    for (const QByteArray &type : types) {
        image = QImage(directory.filePath(name + QLatin1Char('.') + QString::fromLatin1(type)));
        if (!image.isNull())
            return image;
    }
    return {};
}

ZARNRect sizeRect(const QImage &image)
{
    return Brixel::ZARNMakeRectWithSize({float(image.width()), float(image.height())});
}

} // namespace

void Brixel::ZARNSetResourcePrefixForClass(const QString &className, const QString &prefix)
{
    if (prefix.isEmpty())
        registeredPrefixes().remove(className);
    else
        registeredPrefixes().insert(className, prefix);
}

QImage Brixel::imageNamed(const QString &name, const QString &className)
{
    if (name.isEmpty())
        return {};
    const QString prefix = registeredPrefixes().value(className);
    if (!prefix.isEmpty()) {
        const QImage image = loadFromFolder(prefix, name);
        if (!image.isNull())
            return image;
    }
    return loadFromFolder(QString::fromLatin1(ZARNLibraryImagesPrefix), name);
}

QImage Brixel::imageNamed(const QString &name, const QString &className, qreal devicePixelRatio)
{
    if (devicePixelRatio > 1.0) {
        QImage doubled = imageNamed(name + QStringLiteral("@2x"), className);
        if (!doubled.isNull()) {
            doubled.setDevicePixelRatio(2.0);
            return doubled;
        }
    }
    return imageNamed(name, className);
}

QImage Brixel::imageByCompositingImages(const QList<QImage> &images)
{
    if (images.isEmpty() || images.constFirst().isNull())
        return {};
    const ZARNRect canvas = sizeRect(images.constFirst());
    QImage result(images.constFirst().size(), QImage::Format_ARGB32_Premultiplied);
    if (result.isNull())
        return result;
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const QImage &image : images) {
        if (image.isNull())
            continue;
        const ZARNRect source = sizeRect(image);
        const ZARNRect placed = Brixel::ZARNNormalizedRect(Brixel::ZARNRectCenterOnRect(Brixel::ZARNScaleRectToRect(source, canvas), canvas));
        painter.drawImage(placed.flipped(canvas.height()).toQRectF(), image, source.toQRectF());
    }
    return result;
}

void Brixel::test(const QImage &)
{
    Brixel::imageNamed(QStringLiteral("blah"), QStringLiteral("QImage"));
}
