// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include <Brixel/brixel_export.h>

#include <QColor>

namespace BrixelPrivate {

/**
 * The selection colour rule apart from any view. \a systemHighlight is used when
 * \a focusedInActiveWindow, grey 0.7 (alpha 1) otherwise. When \a enabled is false the colour
 * is desaturated: the same hue, saturation times 0.3, the same value and alpha, then reduced
 * to its luminance (0.299 red + 0.587 green + 0.114 blue) as an RGB grey with that alpha.
 * An invalid \a systemHighlight counts as opaque black.
 */
BRIXEL_AUTOTEST_EXPORT QColor selectionColor(const QColor &systemHighlight, bool focusedInActiveWindow, bool enabled);

/// The outline of a selection filled with \a selectionColor: same hue and saturation,
/// value times 0.8, alpha 1. An invalid colour counts as opaque black.
BRIXEL_AUTOTEST_EXPORT QColor selectionOutlineColor(const QColor &selectionColor);

} // namespace BrixelPrivate
