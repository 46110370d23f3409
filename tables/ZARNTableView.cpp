// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTableView.h"

namespace {

ZARNShadow blackShadowWithAlpha(float alpha)
{
    return ZARNShadow{{0.0f, -1.0f}, 1.0f, QColor::fromRgbF(0.0f, 0.0f, 0.0f, alpha)};
}

} // namespace

ZARNTableView::ZARNTableView(QWidget *parent)
    : QTableView(parent)
{
}

ZARNTableView::~ZARNTableView() = default;

const ZARNShadow &ZARNTableView::standardShadow()
{
    static const ZARNShadow shadow = blackShadowWithAlpha(0.8f);
    return shadow;
}

const ZARNShadow &ZARNTableView::deactivatedShadow()
{
    static const ZARNShadow shadow = blackShadowWithAlpha(0.3f);
    return shadow;
}
