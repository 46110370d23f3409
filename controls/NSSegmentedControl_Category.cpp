// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NSSegmentedControl_Category.h"

#include "ZARNSegmentedControlBase.h"
#include "../platform/ZARNSystemVersion.h"

int Brixel::selectedSegmentTag(const ZARNSegmentedControlBase *control)
{
    if (!control || control->selectedSegment() == -1)
        return -1;
    return control->tagForSegment(control->selectedSegment());
}

bool Brixel::selectSegmentWithTag(ZARNSegmentedControlBase *control, int tag)
{
    if (!control)
        return false;
    if (Brixel::ZARNSystemVersion() > 0x103F)
        return control->selectSegmentWithTag(tag);
    const int segment = Brixel::segmentWithTag(control, tag);
    if (segment == -1)
        return false;
    control->setSelectedSegment(segment);
    return true;
}

int Brixel::segmentWithTag(const ZARNSegmentedControlBase *control, int tag)
{
    const int count = control ? control->segmentCount() : 0;
    for (int segment = 0; segment < count; ++segment) {
        if (control->tagForSegment(segment) == tag)
            return segment;
    }
    return -1;
}
