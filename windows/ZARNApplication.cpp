// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNApplication.h"

#include "../platform/ZARNClock.h"

#include <QMouseEvent>
#include <QWidget>

namespace {

enum class Input { None, UserInput, MouseDown };

Input inputKind(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return static_cast<const QMouseEvent &>(event).button() == Qt::LeftButton ? Input::MouseDown
                                                                                  : Input::UserInput;
    case QEvent::MouseButtonRelease:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
        return Input::UserInput;
    case QEvent::MouseMove:
        return static_cast<const QMouseEvent &>(event).buttons() != Qt::NoButton ? Input::UserInput : Input::None;
    default:
        return Input::None;
    }
}

} // namespace

class ZARNApplicationPrivate
{
public:
    double lastEventTimestamp = 0.0;
    bool shortCircuitRequestUserAttention = false;
};

ZARNApplication::ZARNApplication(int &argc, char **argv)
    : QApplication(argc, argv)
    , d(std::make_unique<ZARNApplicationPrivate>())
{
}

ZARNApplication::~ZARNApplication() = default;

double ZARNApplication::lastEventTimestamp() const
{
    return d->lastEventTimestamp;
}

bool ZARNApplication::shortCircuitRequestUserAttention() const
{
    return d->shortCircuitRequestUserAttention;
}

void ZARNApplication::setShortCircuitRequestUserAttention(bool flag)
{
    d->shortCircuitRequestUserAttention = flag;
}

int ZARNApplication::requestUserAttention(ZARNUserAttention::RequestType type)
{
    ZARNUserAttention &attention = ZARNUserAttention::current();
    if (!d->shortCircuitRequestUserAttention)
        return attention.request(type);
    if (type == ZARNUserAttention::RequestType::Critical)
        return 0;
    const int identifier = attention.request(type);
    attention.cancel(identifier);
    return identifier;
}

bool ZARNApplication::notify(QObject *receiver, QEvent *event)
{
    // An event from the window system reaches its window first, and the window hands it on
    // to a widget with a second notify(); only the first counts. A key press that a shortcut
    // takes never reaches a window: it arrives as the shortcut's Shortcut event.
    if (receiver && event
        && ((event->spontaneous() && receiver->isWindowType()) || event->type() == QEvent::Shortcut)) {
        const Input input = inputKind(*event);
        if (input == Input::MouseDown)
            Q_EMIT mouseDown();
        if (input != Input::None)
            Q_EMIT userInput();
        d->lastEventTimestamp = ZARNClock::current().now();
    }
    return QApplication::notify(receiver, event);
}

void ZARNApplication::terminate()
{
    if (QWidget *window = activeWindow())
        window->setFocus(Qt::OtherFocusReason);
    quit();
}
