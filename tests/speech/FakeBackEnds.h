// SPDX-License-Identifier: LGPL-2.1-or-later
// Doubles for the machine's clock and speech engine: time moves only when a test moves it, and
// a voice speaks each string for a fixed time from the moment it starts.
#pragma once

#include "platform/ZARNClock.h"
#include "platform/ZARNSpeechEngine.h"

#include <QStringList>

#include <algorithm>

class VirtualClock final : public ZARNClock
{
public:
    double now() const override { return time; }
    double time = 1.7e9;
};

struct Utterance
{
    QString text;
    double start = 0;
    double end = 0;
};

class FakeSpeechEngine final : public ZARNSpeechEngine
{
public:
    double speakingTime = 0.55;
    QList<Utterance> spoken;   // by every voice, in order

    std::unique_ptr<ZARNSpeechVoice> createVoice() override { return std::make_unique<Voice>(*this); }
    bool isAnyVoiceSpeaking() const override
    {
        return std::any_of(m_ends.begin(), m_ends.end(), [](const double *end) { return now() < *end; });
    }
    QStringList texts() const
    {
        QStringList result;
        for (const Utterance &utterance : spoken)
            result.append(utterance.text);
        return result;
    }

private:
    static double now() { return ZARNClock::current().now(); }

    struct Voice final : ZARNSpeechVoice
    {
        explicit Voice(FakeSpeechEngine &engine) : engine(engine) { engine.m_ends.append(&end); }
        ~Voice() override { engine.m_ends.removeOne(&end); }
        bool isSpeaking() const override { return now() < end; }
        void startSpeakingString(const QString &text) override
        {
            end = now() + engine.speakingTime;
            engine.spoken.append({text, now(), end});
        }
        void stopSpeaking() override { end = std::min(end, now()); }

        FakeSpeechEngine &engine;
        double end = 0;
    };
    QList<const double *> m_ends;
};

/// Installs a double of kind T as the current one of its seam Base, and returns it.
template<typename T, typename Base = ZARNSpeechEngine>
T *install()
{
    auto backEnd = std::make_unique<T>();
    T *raw = backEnd.get();
    Base::setCurrent(std::move(backEnd));
    return raw;
}
