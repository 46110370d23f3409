// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QPushButton>

#include <memory>

class QMenu;
class ZARNPopUpButton;

/// What a ZARNPopUpButton tells its delegate. Every message does nothing unless overridden.
class BRIXEL_EXPORT ZARNPopUpButtonDelegate
{
public:
    virtual ~ZARNPopUpButtonDelegate();
    /// \a button is about to pop up \a menu: the last moment to change its items.
    virtual void popUpButtonWillDisplayMenu(ZARNPopUpButton *button, QMenu *menu);
};

/**
 * A push button that owns a menu and pops it up itself, below its bottom-left corner, when
 * pressed with the left mouse button. It keeps its own selected index; the selected item is
 * checked and its text is the button's title.
 *
 * \code
 * auto *sort = new ZARNPopUpButton(toolbar);
 * sort->addItemWithTitle(tr("Name"))->setData(1);
 * sort->addItemWithTitle(tr("Date"))->setData(2);
 * sort->selectItemWithTag(2);                       // shows "Date"
 * connect(sort->menu(), &QMenu::triggered, this, &Browser::sortBy);
 * \endcode
 *
 * Items are the menu's QActions; an item's tag is its data() as an int. Choosing an item in
 * the menu only triggers its action: the selection and the title stay until the application
 * selects an item (typically from the menu's triggered() signal). The menu is titled "Untitled"; QActions are never enabled or disabled
 * by the menu itself, so items stay as the application sets them. Right clicks are ignored,
 * and a disabled button neither asks its delegate nor opens the menu.
 *
 * QPushButton::menu() and setMenu() are not used: the menu is menu(), and the button pops it
 * up itself.
 */
class BRIXEL_EXPORT ZARNPopUpButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(int selectedItemIndex READ selectedItemIndex)
    // A form's "text" reaches setTitle(), which a subclass may override to lay itself out.
    Q_PROPERTY(QString text READ title WRITE setTitle)
public:
    explicit ZARNPopUpButton(QWidget *parent = nullptr);
    ~ZARNPopUpButton() override;

    /// The menu the button pops up; it belongs to the button.
    QMenu *menu() const;

    ZARNPopUpButtonDelegate *delegate() const;
    /// Sets the delegate, which the button does not own; null for none.
    void setDelegate(ZARNPopUpButtonDelegate *delegate);

    /**
     * Selects the item at \a index: unchecks every item, checks that one, makes its text the
     * title and remembers the index. An index past the last item changes nothing at all.
     * \throws std::out_of_range for a negative index.
     */
    void selectItemAtIndex(int index);
    /// Selects the item whose tag is \a tag, as selectItemAtIndex() would at its index.
    /// \throws std::out_of_range when no item has that tag.
    void selectItemWithTag(int tag);
    /// The item at selectedItemIndex().
    /// \throws std::out_of_range when the menu has no item there (after removeAllItems()).
    QAction *selectedItem() const;
    /// The index selected last, 0 before any selection; removeAllItems() keeps it.
    int selectedItemIndex() const;

    /// Removes every item from the menu and deletes the items the menu owns.
    void removeAllItems();
    /// Adds \a item at the end; null adds nothing.
    void addItem(QAction *item);
    /// Adds an item titled \a title (empty for a null string) with no shortcut, and returns it.
    QAction *addItemWithTitle(const QString &title);
    /// The last item, null for an empty menu.
    QAction *lastItem() const;

    /// The button's title.
    virtual QString title() const;
    /// Shows \a title on the button.
    virtual void setTitle(const QString &title);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    std::unique_ptr<class ZARNPopUpButtonPrivate> const d;
};
