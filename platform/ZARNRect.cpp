// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNRect.h"

#include <QDebug>

QDebug operator<<(QDebug debug, ZARNPoint point)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZARNPoint(" << point.x << ", " << point.y << ')';
    return debug;
}

QDebug operator<<(QDebug debug, ZARNSize size)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZARNSize(" << size.width << " x " << size.height << ')';
    return debug;
}

QDebug operator<<(QDebug debug, const ZARNRect &rect)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZARNRect(" << rect.x() << ", " << rect.y() << ", " << rect.width() << " x "
                    << rect.height() << ')';
    return debug;
}
