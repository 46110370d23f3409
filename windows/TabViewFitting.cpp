// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TabViewFitting_p.h"

#include <cmath>

namespace BrixelPrivate {

float fittedTabViewHeight(float frameHeight, float contentHeight, float extentHeight)
{
    return (frameHeight - contentHeight) + extentHeight + 35.0f;
}

ZARNSize fittedTabViewSize(ZARNSize frame, ZARNSize content, ZARNSize extent)
{
    return {(frame.width - content.width) + extent.width + 40.0f,
            (frame.height - content.height) + extent.height + 34.0f};
}

ZARNRect windowFrameForCustomView(const ZARNRect &window, ZARNSize customView, ZARNSize content,
                                  quint32 windowResizeMode)
{
    if (windowResizeMode == 0)
        return window;
    const float dw = customView.width - content.width;
    const float dh = customView.height - content.height;
    float x = window.x();
    float y = window.y();
    if (windowResizeMode & 1)
        y -= dh;
    else if (windowResizeMode & 2)
        y -= dh * 0.5f;
    if (windowResizeMode & 32)
        x -= dw;
    else if (windowResizeMode & 16)
        x -= dw * 0.5f;
    // Outwards to whole numbers.
    const float left = std::floor(x);
    const float bottom = std::floor(y);
    const float right = std::ceil(x + window.width() + dw);
    const float top = std::ceil(y + window.height() + dh);
    return {left, bottom, right - left, top - bottom};
}

} // namespace BrixelPrivate
