// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include "../platform/ZARNRect.h"

#include <Brixel/brixel_export.h>

#include <QtGlobal>

namespace BrixelPrivate {

/**
 * The tab view's new height when its page's children span \a contentExtent vertically
 * (their lowest and highest edges): the tab view's chrome (\a frameHeight less
 * \a contentHeight, the page area), the extent, and 35 (20 below the lowest child, 15 above the
 * highest).
 */
BRIXEL_AUTOTEST_EXPORT float fittedTabViewHeight(float frameHeight, float contentHeight, float extentHeight);

/// As fittedTabViewHeight() in both directions: the chrome, the extent, and 40 across (20 on
/// each side) and 34 down (18 below the lowest child, 16 above the highest).
BRIXEL_AUTOTEST_EXPORT ZARNSize fittedTabViewSize(ZARNSize frame, ZARNSize content, ZARNSize extent);

/**
 * The window frame (y-up, on the screen) that fits a custom page of \a customView's size into
 * a page area of \a content's size, moved by the bits of \a windowResizeMode: 1 keeps the top
 * edge, else 2 the vertical centre (else the bottom edge stays); 32 keeps the right edge, else
 * 16 the horizontal centre (else the left edge stays). Rounded outwards to whole numbers. A
 * mode of 0 leaves \a window as it is.
 */
BRIXEL_AUTOTEST_EXPORT ZARNRect windowFrameForCustomView(const ZARNRect &window, ZARNSize customView,
                                                         ZARNSize content, quint32 windowResizeMode);

} // namespace BrixelPrivate
