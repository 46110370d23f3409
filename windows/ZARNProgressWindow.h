// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "ZARNWindow.h"

#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;
class ZARNProgressWindow;

/// What a ZARNProgressWindow tells its delegate. Every message does nothing unless overridden.
class BRIXEL_EXPORT ZARNProgressWindowDelegate
{
public:
    virtual ~ZARNProgressWindowDelegate();
    /// The user pressed Cancel. The window stays open until the delegate closes it.
    virtual void progressWindowCanceled(ZARNProgressWindow *window);
};

/**
 * A ready-made progress window: the application's icon, a title line, a step line, a progress
 * bar and a Cancel button, loaded from the "ProgressWindow" form. Fill the fields, show the
 * window, and learn of a cancel through the delegate.
 *
 * \code
 * std::unique_ptr<ZARNProgressWindow> progress(ZARNProgressWindow::progressWindow());
 * if (!progress)
 *     return;
 * progress->titleField()->setText(tr("Copying 12 files"));
 * progress->progressIndicator()->setRange(0, 12);
 * progress->setDelegate(std::make_shared<StopCopying>(copier));
 * progress->show();
 * \endcode
 *
 * The form is the library's ":/brixel/forms/ProgressWindow.ui" unless another is named; its
 * widgets are found by object name: progressView, iconView (a QLabel), progressIndicator (a
 * QProgressBar), titleField and stepField (QLabels) and cancelButton (a QPushButton). Its
 * top-level widget must be a ZARNProgressWindow.
 */
class BRIXEL_EXPORT ZARNProgressWindow : public ZARNWindow
{
    Q_OBJECT
    Q_PROPERTY(bool cancelHidden READ isCancelHidden WRITE setCancelHidden)
public:
    explicit ZARNProgressWindow(QWidget *parent = nullptr);
    ~ZARNProgressWindow() override;

    /// The library's progress window form.
    static QString defaultFormPath();
    /// A new window loaded from the form at \a formPath, which the caller owns; null when the
    /// form is missing or is not a progress window form.
    static ZARNProgressWindow *progressWindow(const QString &formPath = defaultFormPath());

    QWidget *progressView() const;
    QLabel *iconView() const;
    QProgressBar *progressIndicator() const;
    QLabel *titleField() const;
    QLabel *stepField() const;
    QPushButton *cancelButton() const;

    /// The delegate, which the window shares in owning; null for none.
    std::shared_ptr<ZARNProgressWindowDelegate> delegate() const;
    void setDelegate(std::shared_ptr<ZARNProgressWindowDelegate> delegate);

    bool isCancelHidden() const;
    /// Hides the Cancel button and narrows the window by its width, or shows it and widens
    /// the window again; the left edge stays. Asking for the state the button is in changes
    /// nothing, so the width changes once.
    void setCancelHidden(bool hidden);

private:
    friend class ZARNProgressWindowNIBLoader;
    void connectOutlets();

    std::unique_ptr<class ZARNProgressWindowPrivate> const d;
};

/**
 * Loads a progress window form as the form's owner and hands the loaded window over.
 */
class BRIXEL_EXPORT ZARNProgressWindowNIBLoader : public QObject
{
    Q_OBJECT
public:
    explicit ZARNProgressWindowNIBLoader(QObject *parent = nullptr);
    ~ZARNProgressWindowNIBLoader() override;

    /// Loads the form at \a formPath; returns whether it gave a progress window.
    bool load(const QString &formPath);
    /// The loaded window, handed over to the caller (null before a successful load, and after
    /// it was taken).
    ZARNProgressWindow *takeProgressWindow();

private:
    std::unique_ptr<class ZARNProgressWindowNIBLoaderPrivate> const d;
};
