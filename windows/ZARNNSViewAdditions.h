// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

class QMetaObject;
class QObject;
class QWidget;

namespace Brixel {

/**
 * The nearest object up \a object's parent chain (\a object itself excluded) whose class is
 * exactly \a type; when there is none, the nearest that inherits \a type; null when neither
 * is found or \a object is null. So an exact match further up wins over a nearer subclass.
 *
 * \code
 * auto *tabs = qobject_cast<ZARNTabView *>(Brixel::nextResponderOfClass(button, ZARNTabView::staticMetaObject));
 * \endcode
 */
BRIXEL_EXPORT QObject *nextResponderOfClass(const QObject *object, const QMetaObject &type);

/// Makes \a view just large enough to hold all its child widgets, from its own origin; a view
/// without children, or null, is left alone.
BRIXEL_EXPORT void sizeToFit(QWidget *view);

} // namespace Brixel
