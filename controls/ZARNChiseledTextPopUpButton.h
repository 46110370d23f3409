// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNPopUpButton.h"

#include <QImage>

class ZARNChiseledTextField;

/**
 * A borderless pop-up button that shows its title as chiseled text followed by a small down
 * arrow, with nothing behind them while idle, and a capsule behind white text while the mouse
 * is over it or presses it. It sizes itself to its title: by default it grows and shrinks to
 * the left, keeping its right edge.
 *
 * \code
 * auto *scope = new ZARNChiseledTextPopUpButton(header);
 * scope->addItemWithTitle(tr("All Files"));
 * scope->addItemWithTitle(tr("Documents"));
 * scope->selectItemAtIndex(0);            // lays the button out for "All Files"
 * \endcode
 *
 * Its three appearances are built as images whenever the title, the activity of its window
 * (followed as ZARNChiseledTextField follows it) or the state changes, and the button shows one
 * of them: the idle one, the mouse-over one while the mouse is over an enabled button in the
 * active window, and the mouse-down one while pressed. The capsule and arrow artwork is looked
 * up with Brixel::imageNamed() for the class name "ZARNChiseledTextPopUpButton" (the names
 * "chiseledPopUp_LeftCap_MouseOver", "chiseledPopUp_Middle_MouseDown", "chiseledPopUp_DownArrow"
 * and so on), so an application can replace it; on screens with a device pixel ratio above 1,
 * "name@2x" is used when it exists. The button never takes the keyboard focus.
 *
 * The three down-arrow images of setDownArrow_Idle_Image() and its siblings are kept but never
 * drawn: the arrow drawn is always "chiseledPopUp_DownArrow", recoloured to the title's colours.
 */
class BRIXEL_EXPORT ZARNChiseledTextPopUpButton : public ZARNPopUpButton
{
    Q_OBJECT
public:
    explicit ZARNChiseledTextPopUpButton(QWidget *parent = nullptr);
    /// A button laid out for \a title before its appearances are first built.
    explicit ZARNChiseledTextPopUpButton(const QString &title, QWidget *parent = nullptr);
    ~ZARNChiseledTextPopUpButton() override;

    /// White: the text colour of the mouse-over and mouse-down appearances.
    static QColor highlightColor();
    /// Grey 0.1: the colour of the text's copy one pixel lower in those appearances.
    static QColor shadow_HighlightColor();

    QString title() const override;
    /**
     * Lays the button out for \a title: the title field is sized to it, the button's height
     * becomes trunc(title height + 4) if SetSizeHeightToFit() is on (else it keeps its height)
     * and its width trunc(title width + both cap widths) + arrow width - 4. Bit 1 of the anchor
     * mask keeps the right edge in place. The three appearances are rebuilt.
     */
    void setTitle(const QString &title) override;
    /// Gives \a font to the title; the layout follows at the next setTitle().
    void setFont(const QFont &font);

    /// Whether the height follows the title at the next setTitle(); off at first.
    void SetSizeHeightToFit(bool flag);
    /// Bit 1 (value 1): keep the right edge when the title resizes the button. 1 at first.
    void SetFrameAnchorMask(int mask);

    /// \name Kept, never drawn
    /// Each stores its image (the default image for a null one) and rebuilds the matching
    /// appearance without showing it.
    /// @{
    void setDownArrow_Idle_Image(const QImage &image);
    void setDownArrow_MouseOver_Image(const QImage &image);
    void setDownArrow_MouseDown_Image(const QImage &image);
    QImage downArrow_Idle_Image() const;
    /// @}

    /// Stores \a image and shows it as the button's image.
    void SetIdleImage(const QImage &image);
    /// Stores \a image; it is shown when the mouse enters.
    void SetMouseOverImage(const QImage &image);
    /// Stores \a image and shows it while the button is pressed.
    void SetMouseDownImage(const QImage &image);
    /// The image shown now while not pressed, and the one shown while pressed.
    QImage image() const;
    QImage alternateImage() const;

    /// \name Appearances, built anew from the title, the activity and the artwork
    /// @{
    QImage ConstructIdleImage() const;
    QImage ConstructMouseOverImage() const;
    QImage ConstructMouseDownImage() const;
    /// @}

    /// True while the window or application is active.
    bool isActive() const;
    QSize sizeHint() const override;

public Q_SLOTS:
    void activate();
    void deactivate();

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void init(const QString &title);
    QImage appearance(const QImage &leftCap, const QImage &middle, const QImage &rightCap, const QColor &text,
                      const QColor &shadowText) const;

    std::unique_ptr<class ZARNChiseledTextPopUpButtonPrivate> const d;
};
