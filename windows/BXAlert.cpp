// SPDX-License-Identifier: LGPL-2.1-or-later
#include "BXAlert.h"

#include "ZARNNSNibAdditions.h"
#include "ZARNWindow.h"

#include "../controls/ZARNChiseledTextField.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

// The height a word-wrapping label needs for its text at its current width.
int fittedHeight(const QLabel &field)
{
    const int height = field.heightForWidth(field.width());
    return height >= 0 ? height : field.sizeHint().height();
}

// Moves every child of \a window that lies below \a bottom down by \a change, so it keeps its
// distance from the window's bottom when the window grows by \a change at its top.
void moveChildrenBelow(QWidget &window, int bottom, int change, const QWidget *except)
{
    for (QWidget *child : window.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child != except && child->geometry().top() >= bottom)
            child->move(child->x(), child->y() + change);
    }
}

// Grows \a window by \a change at its top: its bottom-left corner stays on the screen.
void growAtTop(ZARNWindow &window, int change)
{
    const QRect frame = window.geometry();
    window.setFrame(QRect(frame.x(), frame.y() - change, frame.width(), frame.height() + change), true);
}

} // namespace

class BXAlertPrivate
{
public:
    QPointer<ZARNWindow> window;
    QPointer<QLabel> iconView;
    QPointer<ZARNChiseledTextField> statementField;
    QPointer<ZARNChiseledTextField> messageField;
    std::array<QPointer<QPushButton>, 3> buttons;
    QEventLoop *loop = nullptr;
    int result = 0;
};

BXAlert::BXAlert()
    : d(std::make_unique<BXAlertPrivate>())
{
}

BXAlert::~BXAlert()
{
    // The form belongs to the alert.
    if (d->window) {
        d->window->removeEventFilter(this);
        delete d->window.data();
    }
}

QString BXAlert::defaultFormPath()
{
    return u":/brixel/forms/Alert.ui"_s;
}

std::unique_ptr<BXAlert> BXAlert::alertWithTitle(const QString &title, const QString &statement,
                                                 const QString &message, const QImage &icon,
                                                 const QString &button1Title, const QString &button2Title,
                                                 const QString &button3Title, const QString &formPath)
{
    std::unique_ptr<BXAlert> alert(new BXAlert);
    QList<QObject *> objects;
    if (!Brixel::instantiateNibWithOwner(formPath, nullptr, &objects, false))
        return nullptr;
    BXAlertPrivate &d = *alert->d;
    d.window = qobject_cast<ZARNWindow *>(objects.value(0));
    if (!d.window) {
        qDeleteAll(objects);
        return nullptr;
    }
    d.iconView = d.window->findChild<QLabel *>(u"iconView"_s);
    d.statementField = d.window->findChild<ZARNChiseledTextField *>(u"statementField"_s);
    d.messageField = d.window->findChild<ZARNChiseledTextField *>(u"messageField"_s);
    for (int number = 1; number <= 3; ++number)
        d.buttons[number - 1] = d.window->findChild<QPushButton *>(u"button%1"_s.arg(number));
    if (!d.iconView || !d.statementField || !d.messageField
        || std::any_of(d.buttons.cbegin(), d.buttons.cend(), [](const auto &button) { return !button; }))
        return nullptr;

    for (const QPointer<QPushButton> &button : d.buttons) {
        connect(button, &QPushButton::clicked, alert.get(), [&d, tag = button->property("tag").toInt()] {
            d.result = tag;
            if (d.loop)
                d.loop->quit();
        });
    }
    d.window->installEventFilter(alert.get());
    d.window->setBackgroundMode(ZARNWindow::BackgroundMode::UpperHalf);
    alert->setTitle(title);
    alert->setStatement(statement);
    alert->setMessage(message);
    alert->setIcon(icon);
    alert->setButton1Title(button1Title);
    alert->setButton2Title(button2Title);
    alert->setButton3Title(button3Title);
    return alert;
}

QString BXAlert::title() const
{
    return d->window->windowTitle();
}

void BXAlert::setTitle(const QString &title)
{
    d->window->setWindowTitle(title.isNull() ? u""_s : title);
}

QImage BXAlert::icon() const
{
    return d->iconView->pixmap().toImage();
}

void BXAlert::setIcon(const QImage &icon)
{
    d->iconView->setPixmap(QPixmap::fromImage(icon));
}

QString BXAlert::statement() const
{
    return d->statementField->text();
}

void BXAlert::setStatement(const QString &statement)
{
    fitField(d->statementField, statement);
}

QString BXAlert::message() const
{
    return d->messageField->text();
}

void BXAlert::setMessage(const QString &message)
{
    fitField(d->messageField, message);
}

void BXAlert::fitField(ZARNChiseledTextField *field, const QString &text)
{
    const QRect before = field->geometry();
    field->setText(text);
    const int height = fittedHeight(*field);
    field->resize(before.width(), height);
    // The field grows downwards and whatever lies below it moves down with the window's bottom.
    const int change = height - before.height();
    moveChildrenBelow(*d->window, before.bottom() + 1, change, field);
    growAtTop(*d->window, change);
}

QString BXAlert::button1Title() const
{
    return d->buttons[0]->text();
}

void BXAlert::setButton1Title(const QString &title)
{
    fitButton(1, title);
}

QString BXAlert::button2Title() const
{
    return d->buttons[1]->text();
}

void BXAlert::setButton2Title(const QString &title)
{
    fitButton(2, title);
}

QString BXAlert::button3Title() const
{
    return d->buttons[2]->text();
}

void BXAlert::setButton3Title(const QString &title)
{
    fitButton(3, title);
}

void BXAlert::fitButton(int number, const QString &title)
{
    QPushButton &button = *d->buttons[number - 1];
    const bool shown = !title.isEmpty();
    button.setEnabled(shown);
    button.setHidden(!shown);
    const QRect before = button.geometry();
    button.setText(title);
    const QSize fitted = button.sizeHint();
    // Sized from its bottom-left corner, so the bottom edge stays when the height changes.
    const QSize size(fitted.width() + 14, fitted.height());
    button.setGeometry(QRect(QPoint(before.x(), before.bottom() + 1 - size.height()), size));
    // The right edge stays; the buttons to the left move over by the same amount.
    const int growth = button.width() - before.width();
    for (int left = number; left <= 3; ++left) {
        QPushButton &moved = *d->buttons[left - 1];
        moved.move(moved.x() - growth, moved.y());
    }
}

ZARNWindow *BXAlert::window() const
{
    return d->window;
}

ZARNChiseledTextField *BXAlert::statementField() const
{
    return d->statementField;
}

ZARNChiseledTextField *BXAlert::messageField() const
{
    return d->messageField;
}

QPushButton *BXAlert::button1() const
{
    return d->buttons[0];
}

QPushButton *BXAlert::button2() const
{
    return d->buttons[1];
}

QPushButton *BXAlert::button3() const
{
    return d->buttons[2];
}

int BXAlert::runModal()
{
    ZARNWindow &window = *d->window;
    if (const QScreen *screen = window.screen())
        window.move(screen->availableGeometry().center() - window.rect().center());
    QApplication::beep();
    window.setWindowModality(Qt::ApplicationModal);
    return run();
}

int BXAlert::runAsSheetForWindow(QWidget *parent)
{
    QApplication::beep();
    // Five pixels taller on every run; the contents keep their distance from the bottom.
    ZARNWindow &window = *d->window;
    moveChildrenBelow(window, 0, 5, nullptr);
    growAtTop(window, 5);
    if (!parent) {
        window.setWindowModality(Qt::ApplicationModal);
        return run();
    }
    const Qt::WindowFlags flags = window.windowFlags();
    window.setParent(parent->window(), Qt::Sheet);
    window.setWindowModality(Qt::WindowModal);
    const int result = run();
    // The window belongs to the alert again, so the parent's end does not take it along.
    if (d->window)
        d->window->setParent(nullptr, flags);
    return result;
}

bool BXAlert::eventFilter(QObject *watched, QEvent *event)
{
    // Compared as objects only for a close during a run: a window being destroyed is no longer
    // a ZARNWindow.
    if (event->type() == QEvent::Close && d->loop && watched == static_cast<QObject *>(d->window.data())) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

int BXAlert::run()
{
    QEventLoop loop;
    d->loop = &loop;
    d->result = 0;
    // A sheet's window goes with its parent; the run ends then, with no button pressed.
    connect(d->window, &QObject::destroyed, &loop, &QEventLoop::quit);
    d->window->show();
    loop.exec();
    d->loop = nullptr;
    if (d->window)
        d->window->hide();
    return d->result;
}
