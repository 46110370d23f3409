// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNTabView.h"

#include "TabViewFitting_p.h"

#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QStyleOptionTab>
#include <QStylePainter>
#include <QTabBar>

#include <cmath>

namespace {

QList<QWidget *> childWidgets(const QWidget &page)
{
    return page.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

// The rectangle the children of \a page cover; null when it has none.
QRect childrenExtent(const QWidget &page)
{
    QRect extent;
    for (const QWidget *child : childWidgets(page))
        extent |= child->geometry();
    return extent;
}

// Tabs whose page is a ZARNTabViewItem with an image show it before the label, in a square as
// high as the image, the label moved right by that height + 2 and the tab widened to match.
// The style draws such a tab without its text; the bar draws the image at the start of the
// label's rectangle and the text after it.
class ImageTabBar : public QTabBar
{
public:
    using QTabBar::QTabBar;

protected:
    QSize tabSizeHint(int index) const override
    {
        QSize hint = QTabBar::tabSizeHint(index);
        if (hasImage(index))
            hint.rwidth() += fontMetrics().height() + 2;
        return hint;
    }

    void initStyleOption(QStyleOptionTab *option, int index) const override
    {
        QTabBar::initStyleOption(option, index);
        if (hasImage(index))
            option->text.clear();
    }

    void paintEvent(QPaintEvent *event) override
    {
        QTabBar::paintEvent(event);
        QPainter painter(this);
        for (int index = 0; index < count(); ++index) {
            if (!hasImage(index))
                continue;
            QStyleOptionTab option;
            QTabBar::initStyleOption(&option, index);
            const QRect label = style()->subElementRect(QStyle::SE_TabBarTabText, &option, this);
            const QImage image = item(index)->image();
            const int side = qRound(image.deviceIndependentSize().height());
            QPoint origin(label.x(), label.y() + 1);
            if (label.height() > side)
                origin = QPoint(int(std::trunc(label.x() + (label.height() - side) * 0.5)),
                                int(std::trunc((label.height() - side) * 0.5 + label.y())) + 1);
            painter.drawImage(QRect(origin, QSize(side, side)), image);
            style()->drawItemText(&painter, label.translated(side + 2, 0), Qt::AlignLeft | Qt::AlignVCenter
                                  | Qt::TextShowMnemonic, option.palette, option.state & QStyle::State_Enabled,
                                  option.text, QPalette::WindowText);
        }
    }

private:
    const ZARNTabViewItem *item(int index) const
    {
        const auto *tabs = qobject_cast<const QTabWidget *>(parentWidget());
        return tabs ? qobject_cast<const ZARNTabViewItem *>(tabs->widget(index)) : nullptr;
    }
    bool hasImage(int index) const
    {
        const ZARNTabViewItem *page = item(index);
        return page && !page->image().isNull();
    }
};

} // namespace

class ZARNTabViewItemPrivate
{
public:
    QImage image;
    QPointer<QWidget> customView;
    bool resizable = false;
};

ZARNTabViewItem::ZARNTabViewItem(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<ZARNTabViewItemPrivate>())
{
}

ZARNTabViewItem::~ZARNTabViewItem() = default;

QImage ZARNTabViewItem::image() const
{
    return d->image;
}

void ZARNTabViewItem::setImage(const QImage &image)
{
    d->image = image;
    // The page sits in the tab widget's stack. Setting a tab's text again is how a QTabBar is
    // told to lay its tabs out anew, here for the image's room.
    auto *tabs = qobject_cast<QTabWidget *>(parentWidget() ? parentWidget()->parentWidget() : nullptr);
    if (const int index = tabs ? tabs->indexOf(this) : -1; index >= 0)
        tabs->setTabText(index, tabs->tabText(index));
}

QWidget *ZARNTabViewItem::customView() const
{
    return d->customView;
}

void ZARNTabViewItem::setCustomView(QWidget *view)
{
    d->customView = view;
    if (view)
        view->setParent(this);
}

bool ZARNTabViewItem::isResizable() const
{
    return d->resizable;
}

void ZARNTabViewItem::setResizable(bool resizable)
{
    d->resizable = resizable;
}

ZARNTabViewDelegate::~ZARNTabViewDelegate() = default;

void ZARNTabViewDelegate::tabViewReallyDidSelectTabViewItem(ZARNTabView *, QWidget *)
{
}

class ZARNTabViewPrivate
{
public:
    uint contentResizeMode = 1;
    uint windowResizeMode = 17;
    ZARNTabViewDelegate *delegate = nullptr;
};

ZARNTabView::ZARNTabView(QWidget *parent)
    : QTabWidget(parent)
    , d(std::make_unique<ZARNTabViewPrivate>())
{
    setTabBar(new ImageTabBar(this));
    connect(this, &QTabWidget::currentChanged, this, &ZARNTabView::tabSelected);
}

ZARNTabView::~ZARNTabView() = default;

uint ZARNTabView::contentResizeMode() const
{
    return d->contentResizeMode;
}

void ZARNTabView::setContentResizeMode(uint mode)
{
    d->contentResizeMode = mode;
}

uint ZARNTabView::windowResizeMode() const
{
    return d->windowResizeMode;
}

void ZARNTabView::setWindowResizeMode(uint mode)
{
    d->windowResizeMode = mode;
}

ZARNTabViewDelegate *ZARNTabView::delegate() const
{
    return d->delegate;
}

void ZARNTabView::setDelegate(ZARNTabViewDelegate *delegate)
{
    d->delegate = delegate;
}

void ZARNTabView::tabSelected(int index)
{
    auto *item = qobject_cast<ZARNTabViewItem *>(widget(index));
    QPointer<QWidget> customView = item ? item->customView() : nullptr;
    QPointer<QWidget> focus;
    if (customView) {
        // The page stays empty while the window changes size.
        if (QWidget *focused = customView->focusWidget(); focused && customView->isAncestorOf(focused))
            focus = focused;
        customView->hide();
    }
    resizeToFitContent();
    if (customView) {
        customView->move(0, 0);
        customView->show();
        if (focus)
            focus->setFocus(Qt::OtherFocusReason);
    }
    if (d->delegate && index >= 0)
        d->delegate->tabViewReallyDidSelectTabViewItem(this, widget(index));
}

void ZARNTabView::showEvent(QShowEvent *event)
{
    QTabWidget::showEvent(event);
    resizeToFitContent();
}

void ZARNTabView::resizeToFitContent()
{
    // The page area has its size only once the tab view is laid out for showing.
    if (!isVisible())
        return;
    auto *item = qobject_cast<ZARNTabViewItem *>(currentWidget());
    if (item && item->customView()) {
        resizeToFitTabViewCustomView();
        return;
    }
    QWidget *page = currentWidget();
    const QRect extent = page ? childrenExtent(*page) : QRect();
    if (extent.isNull())
        return;
    const int height = int(BrixelPrivate::fittedTabViewHeight(float(this->height()), float(page->height()),
                                                              float(extent.height())));
    // The highest child 15 from the page's top, which puts the lowest 20 from its new bottom.
    for (QWidget *child : childWidgets(*page))
        child->move(child->x(), child->y() + 15 - extent.top());
    const int change = height - this->height();
    if (QWidget *window = this->window(); window != this)
        window->resize(window->width(), window->height() + change);
    if (parentWidget() && !parentWidget()->layout())
        resize(width(), height);
}

void ZARNTabView::resizeToFitContentXY()
{
    if (!isVisible())
        return;
    QWidget *page = currentWidget();
    const QRect extent = page ? childrenExtent(*page) : QRect();
    if (extent.isNull())
        return;
    const ZARNSize size = BrixelPrivate::fittedTabViewSize(ZARNSize::fromQSizeF(this->size()),
                                                           ZARNSize::fromQSizeF(page->size()),
                                                           ZARNSize::fromQSizeF(extent.size()));
    for (QWidget *child : childWidgets(*page))
        child->move(child->x() + 20 - extent.left(), child->y() + 16 - extent.top());
    const int dw = int(size.width) - width();
    const int dh = int(size.height) - height();
    if (QWidget *window = this->window(); window != this)
        window->setGeometry(int(window->x() - dw * 0.5), window->y(), window->width() + dw, window->height() + dh);
    if (parentWidget() && !parentWidget()->layout())
        resize(int(size.width), int(size.height));
}

void ZARNTabView::resizeToFitTabViewCustomView()
{
    auto *item = qobject_cast<ZARNTabViewItem *>(currentWidget());
    const QWidget *view = item ? item->customView() : nullptr;
    QWidget *window = this->window();
    if (!view || window == this || !isVisible())
        return;
    // Window frames are worked out y-up on the screen and converted once each way.
    const float screenHeight = window->screen() ? float(window->screen()->geometry().height()) : 0.0f;
    const ZARNRect before = ZARNRect::fromQRectF(window->geometry()).flipped(screenHeight);
    const ZARNRect after = BrixelPrivate::windowFrameForCustomView(
        before, ZARNSize::fromQSizeF(view->size()), ZARNSize::fromQSizeF(item->size()), d->windowResizeMode);
    if (d->windowResizeMode == 0)
        return;
    const int dh = int(after.height() - before.height());
    window->setGeometry(after.flipped(screenHeight).toQRectF().toRect());
    if (parentWidget() && !parentWidget()->layout())
        resize(width() + int(after.width() - before.width()), height() + dh);
}
