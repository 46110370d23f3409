// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QPushButton>

/**
 * A push button whose shortcut fires when its keys are pressed and never when they are
 * released: a key release that matches the shortcut is consumed without pressing the button.
 * So a button whose shortcut is Space, pressed through it, clicks once when its short pressed
 * look ends, not a second time when the key comes up.
 *
 * \code
 * auto *save = new ZARNButton(tr("Save"), panel);
 * save->setShortcut(QKeySequence::Save);
 * \endcode
 */
class BRIXEL_EXPORT ZARNButton : public QPushButton
{
    Q_OBJECT
public:
    explicit ZARNButton(QWidget *parent = nullptr);
    explicit ZARNButton(const QString &text, QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
};
