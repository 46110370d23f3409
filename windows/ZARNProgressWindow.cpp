// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNProgressWindow.h"

#include "ZARNNSNibAdditions.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

ZARNProgressWindowDelegate::~ZARNProgressWindowDelegate() = default;

void ZARNProgressWindowDelegate::progressWindowCanceled(ZARNProgressWindow *)
{
}

class ZARNProgressWindowPrivate
{
public:
    std::shared_ptr<ZARNProgressWindowDelegate> delegate;
    bool cancelHidden = false;
};

ZARNProgressWindow::ZARNProgressWindow(QWidget *parent)
    : ZARNWindow(parent)
    , d(std::make_unique<ZARNProgressWindowPrivate>())
{
}

ZARNProgressWindow::~ZARNProgressWindow() = default;

QString ZARNProgressWindow::defaultFormPath()
{
    return u":/brixel/forms/ProgressWindow.ui"_s;
}

ZARNProgressWindow *ZARNProgressWindow::progressWindow(const QString &formPath)
{
    ZARNProgressWindowNIBLoader loader;
    if (!loader.load(formPath))
        return nullptr;
    ZARNProgressWindow *window = loader.takeProgressWindow();
    window->d->cancelHidden = false;
    if (QLabel *icon = window->iconView())
        icon->setPixmap(QApplication::windowIcon().pixmap(icon->size()));
    window->connectOutlets();
    return window;
}

void ZARNProgressWindow::connectOutlets()
{
    if (QPushButton *cancel = cancelButton()) {
        connect(cancel, &QPushButton::clicked, this, [this] {
            if (const auto delegate = d->delegate)
                delegate->progressWindowCanceled(this);
        });
    }
}

QWidget *ZARNProgressWindow::progressView() const
{
    return findChild<QWidget *>(u"progressView"_s);
}

QLabel *ZARNProgressWindow::iconView() const
{
    return findChild<QLabel *>(u"iconView"_s);
}

QProgressBar *ZARNProgressWindow::progressIndicator() const
{
    return findChild<QProgressBar *>(u"progressIndicator"_s);
}

QLabel *ZARNProgressWindow::titleField() const
{
    return findChild<QLabel *>(u"titleField"_s);
}

QLabel *ZARNProgressWindow::stepField() const
{
    return findChild<QLabel *>(u"stepField"_s);
}

QPushButton *ZARNProgressWindow::cancelButton() const
{
    return findChild<QPushButton *>(u"cancelButton"_s);
}

std::shared_ptr<ZARNProgressWindowDelegate> ZARNProgressWindow::delegate() const
{
    return d->delegate;
}

void ZARNProgressWindow::setDelegate(std::shared_ptr<ZARNProgressWindowDelegate> delegate)
{
    d->delegate = std::move(delegate);
}

bool ZARNProgressWindow::isCancelHidden() const
{
    return d->cancelHidden;
}

void ZARNProgressWindow::setCancelHidden(bool hidden)
{
    QPushButton *cancel = cancelButton();
    if (!cancel || hidden == d->cancelHidden)
        return;
    cancel->setEnabled(!hidden);
    cancel->setHidden(hidden);
    const int change = hidden ? -cancel->width() : cancel->width();
    setFrame(QRect(geometry().topLeft(), QSize(width() + change, height())), true);
    d->cancelHidden = hidden;
}

class ZARNProgressWindowNIBLoaderPrivate
{
public:
    QPointer<ZARNProgressWindow> progressWindow;
};

ZARNProgressWindowNIBLoader::ZARNProgressWindowNIBLoader(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<ZARNProgressWindowNIBLoaderPrivate>())
{
}

ZARNProgressWindowNIBLoader::~ZARNProgressWindowNIBLoader()
{
    delete d->progressWindow.data();
}

bool ZARNProgressWindowNIBLoader::load(const QString &formPath)
{
    QList<QObject *> objects;
    if (!Brixel::instantiateNibWithOwner(formPath, nullptr, &objects, false))
        return false;
    auto *window = qobject_cast<ZARNProgressWindow *>(objects.value(0));
    if (!window) {
        qDeleteAll(objects);
        return false;
    }
    delete d->progressWindow.data();
    d->progressWindow = window;
    return true;
}

ZARNProgressWindow *ZARNProgressWindowNIBLoader::takeProgressWindow()
{
    ZARNProgressWindow *window = d->progressWindow;
    d->progressWindow = nullptr;
    return window;
}
