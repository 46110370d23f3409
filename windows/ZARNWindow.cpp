// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNWindow.h"

#include "WindowBackground_p.h"

#include "../drawing/ZARNNSImageAdditions.h"
#include "../platform/ZARNSystemVersion.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QResizeEvent>
#include <QScreen>
#include <QWindow>

using namespace Qt::StringLiterals;

QImage ZARNWindow_BackgroundImage;

namespace {

// The classic look's backgrounds; the newer looks keep the palette's.
bool drawsBackgrounds()
{
    return Brixel::ZARNSystemVersion() <= 0x104F;
}

bool isResizable(const QWidget &window)
{
    return window.minimumSize() != window.maximumSize();
}

// A left press with the Control key (Qt::MetaModifier: the physical Control key on every
// platform, as for the table views' Control-click), which the window turns into a right press.
bool isControlClick(const QEvent &event)
{
    if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::MouseButtonDblClick)
        return false;
    const auto &mouse = static_cast<const QMouseEvent &>(event);
    return mouse.button() == Qt::LeftButton && mouse.modifiers().testFlag(Qt::MetaModifier);
}

} // namespace

class ZARNWindowPrivate
{
public:
    ZARNWindow::BackgroundMode backgroundMode = ZARNWindow::BackgroundMode::ThreePart;
    QRect lastWindowFrame;
    bool worksWhenModal = false;
    bool showsResizeIndicator = true;
    bool settingFrame = false;
    QLabel *resizeIndicatorView = nullptr;
    // While worksWhenModal lets the window through a modal dialog: the dialog, and the
    // window's own transient parent before it.
    QPointer<QWidget> modalDialog;
    QPointer<QWindow> ownTransientParent;
};

ZARNWindow::ZARNWindow(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags | Qt::Window)
    , d(std::make_unique<ZARNWindowPrivate>())
{
    updateBackgroundColorForSize(size());
    const QImage indicator = Brixel::imageNamed(u"resizeindicator"_s, u"ZARNWindow"_s);
    d->resizeIndicatorView = new QLabel(this);
    d->resizeIndicatorView->setObjectName(u"resizeIndicatorView"_s);
    d->resizeIndicatorView->setAttribute(Qt::WA_TransparentForMouseEvents);
    d->resizeIndicatorView->setPixmap(QPixmap::fromImage(indicator));
    d->resizeIndicatorView->resize(indicator.size());
    d->resizeIndicatorView->hide();
    connect(ZARNSystemVersionNotifier::instance(), &ZARNSystemVersionNotifier::systemVersionChanged, this,
            &ZARNWindow::followSystemVersion);
}

ZARNWindow::~ZARNWindow()
{
    setWorksWhenModal(false);
}

QImage ZARNWindow::backgroundImage()
{
    if (ZARNWindow_BackgroundImage.isNull())
        ZARNWindow_BackgroundImage = Brixel::imageNamed(u"windowbackground"_s, u"ZARNWindow"_s);
    return ZARNWindow_BackgroundImage;
}

ZARNWindow::BackgroundMode ZARNWindow::backgroundMode() const
{
    return d->backgroundMode;
}

void ZARNWindow::setBackgroundMode(BackgroundMode mode)
{
    d->backgroundMode = mode;
    updateBackgroundColorForSize(size());
    update();
}

void ZARNWindow::updateBackgroundColorForSize(QSize size)
{
    if (!drawsBackgrounds())
        return;
    if (d->backgroundMode == BackgroundMode::None) {
        setBackgroundPattern(QImage());
        return;
    }
    setBackgroundPattern(BrixelPrivate::windowBackgroundPattern(backgroundImage(), int(d->backgroundMode),
                                                                float(size.height())));
}

void ZARNWindow::followSystemVersion()
{
    // A look without backgrounds drops the classic one; the classic look builds it for the size.
    if (drawsBackgrounds())
        updateBackgroundColorForSize(size());
    else
        setBackgroundPattern(QImage());
}

void ZARNWindow::updateBackgroundColor()
{
    if (drawsBackgrounds())
        setBackgroundPattern(BrixelPrivate::stretchedArtwork(backgroundImage(), frameGeometry().size()));
}

void ZARNWindow::updateBackgroundColorForSize2(QSize size)
{
    if (drawsBackgrounds())
        setBackgroundPattern(BrixelPrivate::stretchedArtwork(backgroundImage(), {size.width(), backgroundImage().height()}));
}

void ZARNWindow::setBackgroundPattern(const QImage &pattern)
{
    QPalette palette = this->palette();
    if (pattern.isNull())
        palette.setBrush(QPalette::Window, QApplication::palette(this).window());
    else
        palette.setBrush(QPalette::Window, QBrush(pattern));
    setPalette(palette);
}

bool ZARNWindow::showsResizeIndicator() const
{
    return d->showsResizeIndicator;
}

void ZARNWindow::setShowsResizeIndicator(bool flag)
{
    d->showsResizeIndicator = flag;
    if (!flag)
        d->resizeIndicatorView->hide();
    refreshResizeIndicator();
}

QWidget *ZARNWindow::resizeIndicatorView() const
{
    return d->resizeIndicatorView;
}

void ZARNWindow::refreshResizeIndicator()
{
    // The indicator's own creation adds a child before it exists.
    if (!d->resizeIndicatorView || !isResizable(*this) || !d->showsResizeIndicator)
        return;
    QLabel &indicator = *d->resizeIndicatorView;
    // 5 from the right and 6 from the bottom.
    indicator.move(width() - (5 + indicator.width()), height() - 6 - indicator.height());
    indicator.show();
    indicator.raise();
}

bool ZARNWindow::worksWhenModal() const
{
    return d->worksWhenModal;
}

void ZARNWindow::setWorksWhenModal(bool flag)
{
    if (flag == d->worksWhenModal)
        return;
    d->worksWhenModal = flag;
    if (!qApp)
        return;
    if (flag)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

void ZARNWindow::setFrame(const QRect &frame, bool display)
{
    updateBackgroundColorForSize(frame.size());
    d->settingFrame = true;
    setGeometry(frame);
    d->settingFrame = false;
    if (display)
        update();
}

void ZARNWindow::setFrame(const QRect &frame, bool display, bool)
{
    d->settingFrame = true;
    setGeometry(frame);
    d->settingFrame = false;
    updateBackgroundColorForSize(frame.size());
    if (display)
        update();
}

QRect ZARNWindow::constrainFrameRect(const QRect &frame, const QScreen *screen) const
{
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return frame;
    const QRect available = screen->availableGeometry();
    if (frame.height() <= available.height())
        return frame;
    return frame.translated(0, available.top() - frame.top());
}

void ZARNWindow::windowWillResize(QSize oldSize, QSize proposedSize)
{
    // The old height is compared with the one recorded at the last rebuild, not the new one.
    if (oldSize.height() != d->lastWindowFrame.height()) {
        updateBackgroundColorForSize(proposedSize);
        d->lastWindowFrame = QRect(pos(), oldSize);
    }
}

void ZARNWindow::resizeEvent(QResizeEvent *event)
{
    // Only the window system's resizes are the user's live resize; any other resize (resize(),
    // setGeometry(), a layout) is a frame change, which always rebuilds.
    if (event->spontaneous())
        windowWillResize(event->oldSize(), event->size());
    else if (!d->settingFrame)
        updateBackgroundColorForSize(event->size());
    QWidget::resizeEvent(event);
    refreshResizeIndicator();
}

bool ZARNWindow::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (QWindow *window = windowHandle())
            window->installEventFilter(this);
        if (isWindow()) {
            const QRect constrained = constrainFrameRect(frameGeometry(), screen());
            if (constrained.topLeft() != frameGeometry().topLeft())
                move(constrained.topLeft());
        }
        refreshResizeIndicator();
        break;
    case QEvent::ChildAdded:
    case QEvent::LayoutRequest:
        refreshResizeIndicator();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

bool ZARNWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == windowHandle() && isControlClick(*event)) {
        // Delivered as a right press with the same click count, so a context menu opens.
        const auto &mouse = static_cast<const QMouseEvent &>(*event);
        QMouseEvent rightPress(event->type(), mouse.position(), mouse.scenePosition(), mouse.globalPosition(),
                               Qt::RightButton, (mouse.buttons() & ~Qt::LeftButton) | Qt::RightButton,
                               mouse.modifiers(), mouse.pointingDevice());
        QCoreApplication::sendEvent(watched, &rightPress);
        return true;
    }
    if (d->worksWhenModal && watched->isWidgetType()) {
        auto *widget = static_cast<QWidget *>(watched);
        if (event->type() == QEvent::Show && widget != this && widget->isWindow()
            && widget->windowModality() == Qt::ApplicationModal && windowHandle() && widget->windowHandle()) {
            // Qt lets a window through an application-modal one when the modal window is among
            // its transient parents: become the dialog's transient child while it shows.
            d->modalDialog = widget;
            d->ownTransientParent = windowHandle()->transientParent();
            windowHandle()->setTransientParent(widget->windowHandle());
        } else if (event->type() == QEvent::Hide && widget == d->modalDialog && windowHandle()) {
            windowHandle()->setTransientParent(d->ownTransientParent);
            d->modalDialog = nullptr;
        }
    }
    return QWidget::eventFilter(watched, event);
}
