// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QImage>
#include <QWidget>

#include <memory>

class QScreen;

/// The "windowbackground" artwork shared by every ZARNWindow: a null image until
/// ZARNWindow::backgroundImage() first loads it. An application may set it before that.
extern BRIXEL_EXPORT QImage ZARNWindow_BackgroundImage;

/**
 * The library's window: a top-level widget with a background built from one artwork image,
 * its own resize indicator in the lower-right corner, Control-click arriving as a right click,
 * tall windows kept from being pushed below the top of the screen, and an opt-in to keep
 * taking input while another window is application-modal.
 *
 * \code
 * auto *window = new ZARNWindow;
 * window->setBackgroundMode(ZARNWindow::BackgroundMode::UpperHalf);
 * window->resize(480, 320);
 * window->show();
 * \endcode
 *
 * The backgrounds belong to the classic look: with a system version code above 0x104F the
 * window keeps its palette's background, and a change of the code drops or rebuilds it. In the classic look the background is a one-column
 * pattern as high as the window, set as the palette's Window brush and rebuilt whenever the
 * program changes the window's size (through setFrame(), resize() or a layout); while the user
 * resizes the window, it is rebuilt only when the height before the resize differs from the
 * one recorded at the last such rebuild:
 *
 * - ThreePart: the artwork's top, its middle stretched and its bottom, the top
 *   half only for windows shorter than the artwork (see BrixelPrivate::windowBackgroundPattern());
 * - UpperHalf: the artwork's upper half stretched to the window's height;
 * - None: the palette's own background.
 *
 * The artwork is "windowbackground" and the indicator "resizeindicator", looked up with
 * Brixel::imageNamed() for the class name "ZARNWindow"; the library ships both. The indicator
 * shows only while the window can be resized (its minimum and maximum sizes differ) and
 * showsResizeIndicator() is on, 5 pixels from the right and 6 from the bottom, above every
 * other child.
 */
class BRIXEL_EXPORT ZARNWindow : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(BackgroundMode backgroundMode READ backgroundMode WRITE setBackgroundMode)
    Q_PROPERTY(bool showsResizeIndicator READ showsResizeIndicator WRITE setShowsResizeIndicator)
    Q_PROPERTY(bool worksWhenModal READ worksWhenModal WRITE setWorksWhenModal)
public:
    enum class BackgroundMode {
        None = 0,
        /// Top, stretched middle and bottom of the artwork.
        ThreePart = 1,
        /// The artwork's upper half, stretched.
        UpperHalf = 2,
    };
    Q_ENUM(BackgroundMode)

    /// A window in the ThreePart mode, with its own resize indicator.
    explicit ZARNWindow(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::Window);
    ~ZARNWindow() override;

    /// The shared artwork, ZARNWindow_BackgroundImage, loaded on first use.
    static QImage backgroundImage();

    BackgroundMode backgroundMode() const;
    /// Stores \a mode and rebuilds the background for the current size.
    void setBackgroundMode(BackgroundMode mode);

    /// Rebuilds the background for a window of \a size in the current mode.
    void updateBackgroundColorForSize(QSize size);
    /// Sets the whole artwork, stretched to the window's size, as the background, whatever the
    /// mode.
    void updateBackgroundColor();
    /// Sets the whole artwork, stretched to \a size's width and the artwork's height, as the
    /// background: a pattern that repeats down the window.
    void updateBackgroundColorForSize2(QSize size);

    bool showsResizeIndicator() const;
    /// Shows or hides the window's own resize indicator.
    void setShowsResizeIndicator(bool flag);
    /// The indicator's widget, a child of the window (hidden while it does not show).
    QWidget *resizeIndicatorView() const;
    /// Puts the indicator in the lower-right corner above every other child, when the window
    /// is resizable and showsResizeIndicator() is on.
    void refreshResizeIndicator();

    bool worksWhenModal() const;
    /// Lets the window keep taking input while another window is application-modal.
    void setWorksWhenModal(bool flag);

    /// Moves the window to \a frame, the background rebuilt for its size first.
    void setFrame(const QRect &frame, bool display);
    /// Moves the window to \a frame, then rebuilds the background for its size. Qt does not
    /// animate window frames, so \a animate changes nothing else.
    void setFrame(const QRect &frame, bool display, bool animate);

    /**
     * \a frame (a frame geometry) as the window would take it on \a screen (the primary
     * screen when null): a frame taller than the screen's available geometry is moved, not
     * resized, so its top lies on the available geometry's top; any other frame is kept.
     */
    QRect constrainFrameRect(const QRect &frame, const QScreen *screen) const;

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void windowWillResize(QSize oldSize, QSize proposedSize);
    void followSystemVersion();
    void setBackgroundPattern(const QImage &pattern);

    std::unique_ptr<class ZARNWindowPrivate> const d;
};
