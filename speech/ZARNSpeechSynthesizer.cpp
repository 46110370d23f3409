// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSpeechSynthesizer.h"
#include "ZARNSpeechSynthesizer_p.h"

#include "../platform/ZARNClock.h"
#include "../platform/ZARNSpeechEngine.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// How often a list looks whether its voice has finished, in seconds.
constexpr double PollingStep = 0.1;

} // namespace

ZARNSpeechSynthesizerPrivate::ZARNSpeechSynthesizerPrivate(ZARNSpeechSynthesizer *q)
{
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, q, &ZARNSpeechSynthesizer::speakingStringsTimer);
}

ZARNSpeechSynthesizerPrivate::~ZARNSpeechSynthesizerPrivate() = default;

ZARNSpeechSynthesizerPrivate *ZARNSpeechSynthesizerPrivate::get(ZARNSpeechSynthesizer *synthesizer)
{
    return synthesizer->d.get();
}

void ZARNSpeechSynthesizerPrivate::setNextFireDate(double date, double now)
{
    nextFireDate = date;
    // Rounded up, so the timer never fires before the date and finds the pause not yet over;
    // an endless pause waits as long as a timer can.
    const double milliseconds = std::ceil((date - now) * 1000.0);
    timer.start(int(std::clamp(milliseconds, 0.0, double(std::numeric_limits<int>::max()))));
}

ZARNSpeechSynthesizer::ZARNSpeechSynthesizer(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<ZARNSpeechSynthesizerPrivate>(this))
{
}

ZARNSpeechSynthesizer::~ZARNSpeechSynthesizer() = default;

ZARNSpeechSynthesizer *ZARNSpeechSynthesizer::sharedSpeechSynthesizer()
{
    static auto *const shared = new ZARNSpeechSynthesizer;
    return shared;
}

ZARNSpeechVoice &ZARNSpeechSynthesizer::speechSynthesizer()
{
    return sharedSpeechSynthesizer()->voice();
}

bool ZARNSpeechSynthesizer::isSpeaking()
{
    return sharedSpeechSynthesizer()->voiceIsSpeaking();
}

void ZARNSpeechSynthesizer::speakString(const QString &text)
{
    sharedSpeechSynthesizer()->speak(text);
}

void ZARNSpeechSynthesizer::speakStrings(const QStringList &strings)
{
    sharedSpeechSynthesizer()->speakList(strings);
}

void ZARNSpeechSynthesizer::speakStrings(const QStringList &strings, double interval)
{
    sharedSpeechSynthesizer()->speakList(strings, interval);
}

void ZARNSpeechSynthesizer::stopSpeaking()
{
    sharedSpeechSynthesizer()->stop();
}

ZARNSpeechVoice &ZARNSpeechSynthesizer::voice()
{
    if (!d->voice)
        d->voice = ZARNSpeechEngine::current().createVoice();
    return *d->voice;
}

bool ZARNSpeechSynthesizer::voiceIsSpeaking()
{
    return voice().isSpeaking();
}

void ZARNSpeechSynthesizer::speak(const QString &text)
{
    voice().startSpeakingString(text);
}

void ZARNSpeechSynthesizer::speakList(const QStringList &strings, double interval)
{
    if (strings.isEmpty())
        return;
    stop();
    d->strings = strings;
    d->index = 0;
    d->lastSpeakingStringsTime = 0.0;
    d->interval = interval >= 0.0 ? interval : DefaultInterval;
    const double now = ZARNClock::current().now();
    d->setNextFireDate(now, now);
}

void ZARNSpeechSynthesizer::stop()
{
    voice().stopSpeaking();
    d->strings.reset();
    d->timer.stop();
}

bool ZARNSpeechSynthesizer::isSpeakingList() const
{
    return d->strings.has_value();
}

void ZARNSpeechSynthesizer::speakingStringsTimer()
{
    if (!d->strings)
        return;
    const double now = ZARNClock::current().now();
    if (voiceIsSpeaking()) {
        d->setNextFireDate(now + PollingStep, now);
        return;
    }
    if (d->lastSpeakingStringsTime < 0.0)
        d->lastSpeakingStringsTime = now;
    if (d->index == d->strings->size()) {
        stop();
        return;
    }
    const double elapsed = now - d->lastSpeakingStringsTime;
    // Seconds since 1970 in a double step by about 0.24 microseconds today, so a rest of the
    // pause below half a step gives a fire date equal to now. Such a pause is over: waiting
    // for that date again would fire at the same instant forever.
    const double pauseEnd = now + (d->interval - elapsed);
    if (d->interval > elapsed && pauseEnd > now) {
        d->setNextFireDate(pauseEnd, now);
        return;
    }
    speak(d->strings->at(d->index));
    ++d->index;
    d->lastSpeakingStringsTime = -1.0;
    d->setNextFireDate(now + PollingStep, now);
}
