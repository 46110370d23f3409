// SPDX-License-Identifier: LGPL-2.1-or-later
// Internal to Brixel's speech layer; not installed.
#pragma once

#include "ZARNSpeechSynthesizer.h"

#include <QTimer>

#include <optional>

class ZARNSpeechVoice;

/// The queue's state; tests reach it to run a list in virtual time.
class BRIXEL_AUTOTEST_EXPORT ZARNSpeechSynthesizerPrivate
{
public:
    explicit ZARNSpeechSynthesizerPrivate(ZARNSpeechSynthesizer *q);
    ~ZARNSpeechSynthesizerPrivate();

    static ZARNSpeechSynthesizerPrivate *get(ZARNSpeechSynthesizer *synthesizer);

    /// Sets the timer to fire at \a date (seconds since 1970), \a now being the current time.
    void setNextFireDate(double date, double now);

    std::unique_ptr<ZARNSpeechVoice> voice;
    /// The running list; empty while idle.
    std::optional<QStringList> strings;
    int index = 0;
    double interval = ZARNSpeechSynthesizer::DefaultInterval;
    /// When the previous string was seen finished; -1 while one is spoken, 0 before the first.
    double lastSpeakingStringsTime = 0.0;
    /// When the timer fires next, seconds since 1970; meaningful while a list runs.
    double nextFireDate = 0.0;
    QTimer timer;
};
