// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include "../platform/ZARNRect.h"

#include <Brixel/brixel_export.h>

#include <QSize>

class QLineEdit;
class QString;

namespace BrixelPrivate {

/// The size \a edit needs to show \a sample, by the rule QLineEdit::sizeHint() uses for its
/// own sample text.
BRIXEL_AUTOTEST_EXPORT QSize lineEditSizeFor(const QLineEdit &edit, const QString &sample);

/// Where everything of a date range panel goes, y up from the content's bottom.
struct DateRangeLayout
{
    ZARNSize content;
    ZARNRect fromLabel;
    ZARNRect fromControl;
    ZARNRect toLabel;
    ZARNRect toControl;
    ZARNRect okButton;
};

/**
 * The date range panel's layout from its parts' sizes: content width 2 x from control width +
 * both label widths + 38 and height from control height + OK button height + 32; the labels
 * \a labelOffset below the row's top (10 below the content's top), each control one pixel
 * right of its label, 12 between the from control and the To label, and the OK button 10 above
 * the bottom with its right edge 7 from the right. The to control is placed with the from
 * control's height.
 */
BRIXEL_AUTOTEST_EXPORT DateRangeLayout dateRangePanelLayout(ZARNSize fromControl, ZARNSize toControl, ZARNSize okButton,
                                                            ZARNSize fromLabel, ZARNSize toLabel, float labelOffset);

} // namespace BrixelPrivate
