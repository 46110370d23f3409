// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QImage>
#include <QObject>

#include <memory>

class QLabel;
class QPushButton;
class ZARNChiseledTextField;
class ZARNWindow;

/**
 * The library's alert: a window with an icon, a short statement, a longer message and up to
 * three buttons, loaded from the "Alert" form and fitted to its texts. It runs modally for the
 * whole application or as a sheet on one window, and returns the tag of the button pressed.
 *
 * \code
 * const std::unique_ptr<BXAlert> alert = BXAlert::alertWithTitle(tr("Delete"), tr("Delete “Notes”?"),
 *     tr("You cannot undo this."), QImage(), tr("Delete"), tr("Cancel"), QString());
 * if (alert && alert->runAsSheetForWindow(mainWindow) == 1)
 *     deleteNotes();
 * \endcode
 *
 * The statement and the message keep their width and take the height their text needs; the
 * window grows or shrinks by the same amount at its top, and what lies below the field moves
 * with the window's bottom. Each button takes its title's width plus 14, keeping its right
 * edge, and moves the buttons to its left by the same amount; a button with an empty title is
 * hidden and disabled but still fitted. Button 1 is rightmost.
 *
 * The form is the library's ":/brixel/forms/Alert.ui" unless another is named. Its widgets are
 * found by object name: window (a ZARNWindow, the top-level widget), iconView (a QLabel),
 * statementField and messageField (ZARNChiseledTextFields with word wrap) and button1 to
 * button3 (QPushButtons), whose integer "tag" properties are the results. The library's form
 * gives button 1 the tag 1, button 2 the tag 0 and button 3 the tag -1.
 */
class BRIXEL_EXPORT BXAlert : public QObject
{
    Q_OBJECT
public:
    ~BXAlert() override;

    /// The library's alert form.
    static QString defaultFormPath();

    /// An alert with these texts, in this order of fitting: title, statement, message, icon,
    /// buttons 1 to 3; null when the form at \a formPath is missing or is not an alert form.
    static std::unique_ptr<BXAlert> alertWithTitle(const QString &title, const QString &statement,
                                                   const QString &message, const QImage &icon,
                                                   const QString &button1Title, const QString &button2Title,
                                                   const QString &button3Title,
                                                   const QString &formPath = defaultFormPath());

    QString title() const;
    void setTitle(const QString &title);
    QImage icon() const;
    void setIcon(const QImage &icon);
    QString statement() const;
    void setStatement(const QString &statement);
    QString message() const;
    void setMessage(const QString &message);
    QString button1Title() const;
    void setButton1Title(const QString &title);
    QString button2Title() const;
    void setButton2Title(const QString &title);
    QString button3Title() const;
    void setButton3Title(const QString &title);

    ZARNWindow *window() const;
    ZARNChiseledTextField *statementField() const;
    ZARNChiseledTextField *messageField() const;
    QPushButton *button1() const;
    QPushButton *button2() const;
    QPushButton *button3() const;

    /// Centres the window, beeps, shows it modal for the whole application until a button is
    /// pressed, hides it and returns that button's tag. While it runs the window cannot be
    /// closed: an alert is answered with one of its buttons.
    int runModal();
    /// Beeps, makes the window 5 pixels taller (its contents keep their distance from its
    /// bottom, every run), shows it modal for \a parent's window until a button is pressed,
    /// hides it and returns that button's tag. A null \a parent runs it as runModal() does,
    /// without centring. The window is a child of \a parent's window only during the run; if
    /// that window is destroyed meanwhile, the run ends and returns 0.
    int runAsSheetForWindow(QWidget *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    BXAlert();
    int run();
    void fitField(ZARNChiseledTextField *field, const QString &text);
    void fitButton(int number, const QString &title);

    std::unique_ptr<class BXAlertPrivate> const d;
};
