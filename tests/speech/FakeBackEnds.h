// SPDX-License-Identifier: LGPL-2.1-or-later
// Test doubles for the machine's clock and speech engine: time moves only when a test moves
// it, and a voice speaks each string for a fixed time from the moment it starts.
#pragma once

#include "platform/ZARNClock.h"
#include "platform/ZARNSpeechEngine.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <memory>

class VirtualClock final : public ZARNClock
{
public:
    double now() const override { return time; }
    double time = 1.7e9;

    /// Installs a virtual clock at \a start and returns it.
    static VirtualClock *install(double start = 1.7e9)
    {
        auto clock = std::make_unique<VirtualClock>();
        clock->time = start;
        VirtualClock *raw = clock.get();
        ZARNClock::setCurrent(std::move(clock));
        return raw;
    }
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
    /// How long each string takes to say.
    double speakingTime = 0.55;
    /// Every string started, by every voice, in order.
    QList<Utterance> spoken;

    std::unique_ptr<ZARNSpeechVoice> createVoice() override { return std::make_unique<Voice>(*this); }
    bool isAnyVoiceSpeaking() const override { return std::any_of(m_voiceEnds.begin(), m_voiceEnds.end(), isFuture); }

    /// Installs a fake engine and returns it.
    static FakeSpeechEngine *install()
    {
        auto engine = std::make_unique<FakeSpeechEngine>();
        FakeSpeechEngine *raw = engine.get();
        ZARNSpeechEngine::setCurrent(std::move(engine));
        return raw;
    }

private:
    static double now() { return ZARNClock::current().now(); }
    static bool isFuture(const double *end) { return now() < *end; }

    class Voice final : public ZARNSpeechVoice
    {
    public:
        explicit Voice(FakeSpeechEngine &engine) : m_engine(engine) { m_engine.m_voiceEnds.append(&m_end); }
        ~Voice() override { m_engine.m_voiceEnds.removeOne(&m_end); }
        bool isSpeaking() const override { return isFuture(&m_end); }
        void startSpeakingString(const QString &text) override
        {
            m_end = now() + m_engine.speakingTime;
            m_engine.spoken.append({text, now(), m_end});
        }
        void stopSpeaking() override { m_end = std::min(m_end, now()); }

    private:
        FakeSpeechEngine &m_engine;
        double m_end = 0;
    };

    QList<const double *> m_voiceEnds;
};
