// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QList>
#include <QString>

QT_BEGIN_NAMESPACE
class QIODevice;
class QObject;
QT_END_NAMESPACE

/**
 * \file
 * Loading Qt Designer forms (.ui files) for an owner, and keeping a form's top-level objects
 * alive for as long as the owner wants them.
 *
 * The library keeps one process-wide table from an owner (by its address) to the top-level
 * objects remembered for it. A remembered object belongs to the table: it lives until its
 * owner's entry is forgotten or replaced, and is then deleted (unless something else has
 * deleted it first). The table itself is never freed, so objects that are never forgotten
 * live until the process ends.
 *
 * \code
 * // In a controller: load the progress window and keep it until the controller is done.
 * if (!instantiateNibWithOwner(u":/forms/ProgressWindow.ui"_s, this, true))
 *     return;
 * ...
 * forgetTopLevelObjectsForOwner(this);   // deletes the window
 * \endcode
 *
 * Loading uses QUiLoader, so it needs a QApplication and runs in the GUI thread. A form file
 * has one top-level object, the form's widget.
 */

namespace Brixel {

/// Makes the table own \a objects for \a owner, replacing (and deleting) the objects
/// remembered for it before, except those that are remembered again. A null owner is a key
/// like any other.
BRIXEL_EXPORT void rememberTopLevelObjects(const QList<QObject *> &objects, const QObject *owner);

/// Removes \a owner's entry and deletes its objects that still exist. An owner that has
/// remembered nothing is left alone.
BRIXEL_EXPORT void forgetTopLevelObjectsForOwner(const QObject *owner);

/// The objects remembered for \a owner that still exist, in the order they were given.
BRIXEL_EXPORT QList<QObject *> rememberedTopLevelObjectsForOwner(const QObject *owner);

/**
 * Creates the form read from \a nib for \a owner. Returns whether it could be loaded; a null,
 * unreadable or malformed form, or a missing QApplication, gives false, creates nothing and
 * remembers nothing.
 *
 * With \a remember and a \a topLevelObjects list to fill, the form's objects are remembered
 * for \a owner (see rememberTopLevelObjects()). Otherwise they are not remembered and belong
 * to \a owner: a widget owner becomes their parent, and they stay windows of their own; another
 * QObject owner deletes them when it is destroyed. With no owner they belong to the caller
 * through \a topLevelObjects, or, with no list either, are deleted at once. On success
 * \a topLevelObjects (when given) receives the objects; on failure it is left as it was.
 */
BRIXEL_EXPORT bool instantiateNibWithOwner(QIODevice *nib, QObject *owner, QList<QObject *> *topLevelObjects,
                                           bool remember);

/// Creates the form read from \a nib for \a owner; with \a remember its top-level objects are
/// remembered for \a owner, without it they belong to \a owner as described above.
BRIXEL_EXPORT bool instantiateNibWithOwner(QIODevice *nib, QObject *owner, bool remember);

/// As above, with the form read from the file or resource at \a path; images the form names
/// by relative path are looked up beside it. A missing file gives false.
BRIXEL_EXPORT bool instantiateNibWithOwner(const QString &path, QObject *owner, QList<QObject *> *topLevelObjects,
                                           bool remember);
BRIXEL_EXPORT bool instantiateNibWithOwner(const QString &path, QObject *owner, bool remember);

} // namespace Brixel
