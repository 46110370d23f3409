// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNNSTableViewSelectionColorAdditions.h"
#include "SelectionColorRules_p.h"

#include <QAbstractItemView>
#include <QApplication>

namespace {

constexpr float backgroundGrey = 0.7f;

// The view has the keyboard focus itself, or an editor inside it has.
bool isFocused(const QAbstractItemView &view)
{
    const QWidget *focus = QApplication::focusWidget();
    return view.hasFocus() || (focus && view.isAncestorOf(focus));
}

bool isFocusedInActiveWindow(const QAbstractItemView &view)
{
    return isFocused(view) && view.window()->isActiveWindow();
}

QColor systemHighlight(const QAbstractItemView &view)
{
    return view.palette().color(QPalette::Active, QPalette::Highlight);
}

QColor opaqueBlackIfInvalid(const QColor &colour)
{
    return colour.isValid() ? colour : QColor(Qt::black);
}

} // namespace

namespace BrixelPrivate {

QColor selectionColor(const QColor &systemHighlight, bool focusedInActiveWindow, bool enabled)
{
    const QColor colour = focusedInActiveWindow
        ? opaqueBlackIfInvalid(systemHighlight).toRgb()
        : QColor::fromRgbF(backgroundGrey, backgroundGrey, backgroundGrey, 1.0f);
    if (enabled)
        return colour;
    const QColor desaturated = QColor::fromHsvF(colour.hsvHueF(), colour.hsvSaturationF() * 0.3f,
                                                colour.valueF(), colour.alphaF()).toRgb();
    const float grey = 0.299f * desaturated.redF() + 0.587f * desaturated.greenF() + 0.114f * desaturated.blueF();
    return QColor::fromRgbF(grey, grey, grey, desaturated.alphaF());
}

QColor selectionOutlineColor(const QColor &selectionColor)
{
    const QColor colour = opaqueBlackIfInvalid(selectionColor).toHsv();
    return QColor::fromHsvF(colour.hsvHueF(), colour.hsvSaturationF(), colour.valueF() * 0.8f, 1.0f).toRgb();
}

} // namespace BrixelPrivate

QColor Brixel::selectionColor(const QAbstractItemView *view)
{
    if (!view)
        return BrixelPrivate::selectionColor(QColor(), false, true);
    return BrixelPrivate::selectionColor(systemHighlight(*view), isFocusedInActiveWindow(*view), view->isEnabled());
}

QColor Brixel::selectionOutlineColor(const QAbstractItemView *view)
{
    return BrixelPrivate::selectionOutlineColor(selectionColor(view));
}

bool Brixel::selectionShouldDrawGradient(const QAbstractItemView *view)
{
    return view && isFocusedInActiveWindow(*view) && view->isEnabled();
}
