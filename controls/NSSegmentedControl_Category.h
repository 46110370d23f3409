// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

class ZARNSegmentedControlBase;

/**
 * \file
 * Segmented controls addressed by segment tag rather than position. A null control has no
 * segments: it has no selected tag (-1), no segment with any tag (-1), and selecting on it
 * returns false.
 */

namespace Brixel {

/// The tag of the selected segment of \a control, -1 when no segment is selected.
BRIXEL_EXPORT int selectedSegmentTag(const ZARNSegmentedControlBase *control);

/**
 * Selects the first segment of \a control, from 0 upwards, whose tag is \a tag and returns
 * true; returns false, keeping the selection, when no segment has it.
 *
 * With a system version code (ZARNSystemVersion()) above 0x103F the control does this itself
 * through ZARNSegmentedControlBase::selectSegmentWithTag(), so a subclass's own rule applies;
 * on older codes the segments are walked here and the first match passed to
 * setSelectedSegment().
 */
BRIXEL_EXPORT bool selectSegmentWithTag(ZARNSegmentedControlBase *control, int tag);

/// The first segment of \a control, from 0 upwards, whose tag is \a tag; -1 when there is none.
BRIXEL_EXPORT int segmentWithTag(const ZARNSegmentedControlBase *control, int tag);

} // namespace Brixel
