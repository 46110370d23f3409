// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QImage>
#include <QTabWidget>

#include <memory>

class ZARNTabView;

/**
 * A page of a ZARNTabView. It may show an image before its tab's label, and may carry a
 * ready-made custom view that the tab view installs only once the window has its new size.
 */
class BRIXEL_EXPORT ZARNTabViewItem : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage)
    Q_PROPERTY(bool resizable READ isResizable WRITE setResizable)
public:
    explicit ZARNTabViewItem(QWidget *parent = nullptr);
    ~ZARNTabViewItem() override;

    /// Drawn before the tab's label, as high as the label; null (the default) for none.
    QImage image() const;
    void setImage(const QImage &image);

    /// The page's own content, sized by its own geometry; null (the default) for none. The
    /// item takes it as its child.
    QWidget *customView() const;
    void setCustomView(QWidget *view);

    /// Stored only.
    bool isResizable() const;
    void setResizable(bool resizable);

private:
    std::unique_ptr<class ZARNTabViewItemPrivate> const d;
};

/// What a ZARNTabView tells its delegate. Every message does nothing unless overridden.
class BRIXEL_EXPORT ZARNTabViewDelegate
{
public:
    virtual ~ZARNTabViewDelegate();
    /// \a item was selected, its window has been resized and its custom view installed.
    virtual void tabViewReallyDidSelectTabViewItem(ZARNTabView *tabView, QWidget *item);
};

/**
 * A tab widget that resizes its window whenever a tab is selected (by a click too), so the
 * window fits the selected page, its top edge kept in place.
 *
 * \code
 * auto *tabs = new ZARNTabView(preferences);
 * tabs->addTab(generalPage, tr("General"));      // a page without a layout, its children placed
 * tabs->addTab(advancedItem, tr("Advanced"));    // a ZARNTabViewItem with a custom view
 * \endcode
 *
 * - A plain page (resizeToFitContent()): the tab view takes the height of the page's children
 *   plus 35 and its own tabs and frame, the children move so the highest is 15 from the page's
 *   top, and the window grows or shrinks by the tab view's change, keeping its top edge.
 * - A ZARNTabViewItem with a custom view (resizeToFitTabViewCustomView()): the window changes
 *   by the difference between the custom view's size and the page area, moved as
 *   windowResizeMode() says, rounded outwards to whole pixels; the custom view is installed
 *   afterwards, with the keyboard focus where it was inside it.
 *
 * A tab view that no layout manages changes its own height with the window's. A tab view fits
 * only while it is shown (before that its page area has no size), and fits once when it is
 * shown.
 */
class BRIXEL_EXPORT ZARNTabView : public QTabWidget
{
    Q_OBJECT
    Q_PROPERTY(uint contentResizeMode READ contentResizeMode WRITE setContentResizeMode)
    Q_PROPERTY(uint windowResizeMode READ windowResizeMode WRITE setWindowResizeMode)
public:
    explicit ZARNTabView(QWidget *parent = nullptr);
    ~ZARNTabView() override;

    /// Stored only; 1 at first.
    uint contentResizeMode() const;
    void setContentResizeMode(uint mode);
    /**
     * How the window moves when it fits a custom view, as bits: 1 keeps the top edge, else 2
     * the vertical centre; 32 keeps the right edge, else 16 the horizontal centre; 0 does not
     * resize the window at all. 17 (top edge and horizontal centre) at first.
     */
    uint windowResizeMode() const;
    void setWindowResizeMode(uint mode);

    ZARNTabViewDelegate *delegate() const;
    /// Sets the delegate, which the tab view does not own.
    void setDelegate(ZARNTabViewDelegate *delegate);

    /// Fits the window's height to the selected page (see the class description).
    void resizeToFitContent();
    /// Fits both directions: the children plus 40 across and 34 down, the highest 16 from
    /// the page's top and the leftmost 20 from its left; the window keeps its top edge and its
    /// horizontal centre.
    void resizeToFitContentXY();
    /// Fits the window to the selected item's custom view (see the class description).
    void resizeToFitTabViewCustomView();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void tabSelected(int index);

    std::unique_ptr<class ZARNTabViewPrivate> const d;
};
