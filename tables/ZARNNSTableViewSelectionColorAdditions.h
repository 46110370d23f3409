// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QColor>

class QAbstractItemView;

/**
 * \file
 * The colours a view draws its selected rows with, chosen from the palette's highlight colour
 * and the view's state, so that any item view can use them.
 *
 * The highlight colour is the view's active Highlight colour. A view counts as focused when
 * it has the keyboard focus or the application's focus widget is inside it (an open editor);
 * its window counts as key while it is the active window.
 *
 * \code
 * const QColor fill = selectionColor(view);          // grey when the view is in the background
 * const QColor outline = selectionOutlineColor(view); // a darker shade of it, opaque
 * if (selectionShouldDrawGradient(view))
 *     ...;                                            // the gradient instead of the flat fill
 * \endcode
 */

namespace Brixel {

/**
 * The fill colour of a selected row. A focused view in the active window uses the highlight
 * colour; otherwise grey 0.7. A disabled view desaturates that colour to a grey (see
 * BrixelPrivate::selectionColor()). A null view gives grey 0.7, as an enabled view in the
 * background does.
 */
BRIXEL_EXPORT QColor selectionColor(const QAbstractItemView *view);

/// selectionColor() with its brightness (HSV value) times 0.8 and alpha 1: the outline drawn
/// around a selected row. A null view gives the outline of grey 0.7, grey 0.56.
BRIXEL_EXPORT QColor selectionOutlineColor(const QAbstractItemView *view);

/// True only when the view is focused, its window is active and it is enabled: then selected
/// rows are filled with the gradient rather than with selectionColor(). False for null.
BRIXEL_EXPORT bool selectionShouldDrawGradient(const QAbstractItemView *view);

} // namespace Brixel
