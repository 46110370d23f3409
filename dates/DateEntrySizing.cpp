// SPDX-License-Identifier: LGPL-2.1-or-later
#include "DateEntrySizing_p.h"

#include <QLineEdit>
#include <QStyleOptionFrame>

namespace BrixelPrivate {

QSize lineEditSizeFor(const QLineEdit &edit, const QString &sample)
{
    // QLineEdit's own margins: 2 pixels across and 1 down, inside the text margins.
    const QFontMetrics metrics(edit.font());
    const QMargins text = edit.textMargins();
    const QSize contents(metrics.horizontalAdvance(sample) + 2 * 2 + text.left() + text.right(),
                         qMax(metrics.height(), 14) + 2 * 1 + text.top() + text.bottom());
    QStyleOptionFrame option;
    option.initFrom(&edit);
    option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
    return edit.style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, &edit);
}

DateRangeLayout dateRangePanelLayout(ZARNSize fromControl, ZARNSize toControl, ZARNSize okButton, ZARNSize fromLabel,
                                     ZARNSize toLabel, float labelOffset)
{
    DateRangeLayout layout;
    layout.content = {2.0f * fromControl.width + fromLabel.width + toLabel.width + 38.0f,
                      fromControl.height + okButton.height + 32.0f};
    const float top = layout.content.height - 10.0f;
    layout.fromLabel = ZARNRect(12.0f, top - fromLabel.height - labelOffset, fromLabel.width, fromLabel.height);
    layout.fromControl = ZARNRect(layout.fromLabel.maxX() + 1.0f, top - fromControl.height, fromControl.width,
                                  fromControl.height);
    layout.toLabel = ZARNRect(layout.fromControl.maxX() + 12.0f, top - toLabel.height - labelOffset, toLabel.width,
                              toLabel.height);
    layout.toControl = ZARNRect(layout.toLabel.maxX() + 1.0f, top - fromControl.height, toControl.width,
                                toControl.height);
    layout.okButton = ZARNRect(layout.content.width - 12.0f - okButton.width + 5.0f, 10.0f, okButton.width,
                               okButton.height);
    return layout;
}

} // namespace BrixelPrivate
