// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

// Internal to Brixel: not installed, and may change without notice.

#include "../platform/ZARNRect.h"

#include <cmath>

namespace BrixelPrivate {

/// The widths of the chiseled pop-up button's artwork that its layout uses.
struct ChiseledPopUpArtworkWidths
{
    float leftCap = 0.0f;
    float rightCap = 0.0f;
    float arrow = 0.0f;
};

/**
 * The frame of a chiseled pop-up button, in its parent's y-up coordinates, after its title
 * was laid out to \a title: the height trunc(title height + 4) when \a sizeHeightToFit, else
 * the old height truncated; the width trunc(title width + both cap widths) + arrow width - 4.
 * The origin stays, or, when bit 1 (value 1) of \a anchorMask is set, moves so that the right
 * edge stays.
 */
inline ZARNRect chiseledPopUpFrame(const ZARNRect &frame, ZARNSize title, ChiseledPopUpArtworkWidths artwork,
                                      bool sizeHeightToFit, int anchorMask)
{
    const float height = sizeHeightToFit ? std::trunc(title.height + 4.0f) : std::trunc(frame.height());
    const float width = std::trunc(title.width + artwork.leftCap + artwork.rightCap) + artwork.arrow - 4.0f;
    const float x = (anchorMask & 1) ? frame.x() + frame.width() - width : frame.x();
    return {x, frame.y(), width, height};
}

/// Where the title's frame starts in an appearance of \a button's size (y up): four points
/// inside the left cap, and vertically centred one point high.
inline ZARNPoint chiseledTitleOrigin(ZARNSize button, ZARNSize title, float leftCapWidth)
{
    return {leftCapWidth - 4.0f, float((double(button.height) - title.height) * 0.5 + 1.0)};
}

/// Where the arrow goes (y up): just right of the title, centred on the title's height
/// measured from the image's bottom.
inline ZARNPoint chiseledArrowOrigin(ZARNPoint titleOrigin, ZARNSize title, ZARNSize arrow)
{
    return {titleOrigin.x + title.width, (title.height - arrow.height) * 0.5f};
}

} // namespace BrixelPrivate
