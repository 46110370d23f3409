// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXSplitView.h"

#include <QEvent>

#include <cmath>

class BXSplitViewPrivate
{
public:
    float thickness = 7.0f;
};

BXSplitView::BXSplitView(QWidget *parent)
    : BXSplitView(Qt::Horizontal, parent)
{
}

BXSplitView::BXSplitView(Qt::Orientation orientation, QWidget *parent)
    : QSplitter(orientation, parent)
    , d(std::make_unique<BXSplitViewPrivate>())
{
    setHandleWidth(7);
}

BXSplitView::~BXSplitView() = default;

float BXSplitView::dividerThickness() const
{
    return d->thickness;
}

void BXSplitView::setDividerThickness(float thickness)
{
    d->thickness = std::isnan(thickness) || thickness < 0.0f ? 0.0f : thickness;
    setHandleWidth(int(std::lround(std::min(d->thickness, 1.0e6f))));
}

bool BXSplitView::event(QEvent *event)
{
    // Polishing comes after a form has set its properties and before the first show.
    if (event->type() == QEvent::Polish)
        setDividerThickness(d->thickness);
    return QSplitter::event(event);
}
