// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNButton.h"

#include <QKeyEvent>

ZARNButton::ZARNButton(QWidget *parent)
    : QPushButton(parent)
{
}

ZARNButton::ZARNButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
}

bool ZARNButton::event(QEvent *event)
{
    if (event->type() == QEvent::KeyRelease && !shortcut().isEmpty()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (QKeySequence(key->keyCombination()) == shortcut()) {
            event->accept();
            return true;
        }
    }
    return QPushButton::event(event);
}
