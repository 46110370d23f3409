// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QImage>
#include <QList>
#include <QString>

/**
 * \file
 * Loading artwork that belongs to a class, and stacking images into one.
 *
 * A class's artwork lives in Qt resources. An application registers a resource prefix for
 * a class name with ZARNSetResourcePrefixForClass(); imageNamed() then looks there first and
 * in the library's own artwork (":/brixel/images") after, so an application can replace any
 * of the library's images by shipping one of the same name.
 *
 * \code
 * ZARNSetResourcePrefixForClass(QStringLiteral("ZARNOutlineView"), QStringLiteral(":/myapp/art"));
 * const QImage expanded = imageNamed(QStringLiteral("expanded"), QStringLiteral("ZARNOutlineView"));
 * \endcode
 *
 * Picture handles of the old media toolkit have no counterpart in Qt, so there is no
 * conversion to one; QImage is the picture type everywhere.
 */

/// The resource folder where the library keeps its own artwork.
inline constexpr char ZARNLibraryImagesPrefix[] = ":/brixel/images";

namespace Brixel {

/// Makes \a prefix (for example ":/myapp/art") the first place imageNamed() looks for
/// \a className's artwork. An empty prefix removes the registration.
BRIXEL_EXPORT void ZARNSetResourcePrefixForClass(const QString &className, const QString &prefix);

/**
 * The image \a name of \a className's artwork: in the class's registered prefix, then in the
 * library's. In each place the file \a name itself is tried first, then \a name with each
 * image type Qt can read, in the order QImageReader lists them ("expanded" finds
 * "expanded.png"). Null when nothing of that name loads as an image, or \a name is empty.
 */
BRIXEL_EXPORT QImage imageNamed(const QString &name, const QString &className);

/**
 * The image \a name for a screen of \a devicePixelRatio: above 1, "name@2x" is looked up first
 * and, when found, comes back with a device pixel ratio of 2, so it has the size of "name" in
 * device-independent pixels; otherwise imageNamed(name, className).
 */
BRIXEL_EXPORT QImage imageNamed(const QString &name, const QString &className, qreal devicePixelRatio);

/**
 * One image of the first image's size with every image drawn over it in order, the first at
 * the bottom; each is scaled to fit the canvas keeping its proportions (enlarged or reduced),
 * centred, and placed on whole pixels. Null for an empty list or a null first image; null
 * images later in the list are skipped.
 */
BRIXEL_EXPORT QImage imageByCompositingImages(const QList<QImage> &images);

/// Loads the image "blah" for the QImage class and discards it; it exists only as a callable
/// entry point and has no other effect.
BRIXEL_EXPORT void test(const QImage &image);

} // namespace Brixel
