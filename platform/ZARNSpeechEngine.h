// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QString>

#include <memory>

/**
 * One voice of the speech engine: speaks one string at a time.
 */
class BRIXEL_EXPORT ZARNSpeechVoice
{
public:
    virtual ~ZARNSpeechVoice();

    /// Whether the voice is speaking now (a string it was given and has not finished).
    virtual bool isSpeaking() const = 0;
    /// Starts speaking \a text at once, cutting off what the voice was saying.
    virtual void startSpeakingString(const QString &text) = 0;
    /// Stops speaking; does nothing when the voice is silent.
    virtual void stopSpeaking() = 0;
};

/**
 * Where the library's speech comes from: makes voices and says whether any of them speaks.
 *
 * The library never talks to the machine's speech service directly; it asks
 * ZARNSpeechEngine::current(), which is the system's unless an application or a test installs
 * another one:
 *
 * \code
 * class SilentEngine : public ZARNSpeechEngine { ... };
 * ZARNSpeechEngine::setCurrent(std::make_unique<SilentEngine>());
 * \endcode
 *
 * Voices already made keep the engine that made them, so install an engine before the first
 * voice is asked for.
 */
class BRIXEL_EXPORT ZARNSpeechEngine
{
public:
    virtual ~ZARNSpeechEngine();

    /// A new voice with the default settings; never null.
    virtual std::unique_ptr<ZARNSpeechVoice> createVoice() = 0;
    /// Whether any voice of this engine is speaking now.
    virtual bool isAnyVoiceSpeaking() const = 0;

    /// The engine in use: the installed one, else the system's.
    static ZARNSpeechEngine &current();
    /// Installs \a engine; nullptr restores the system's.
    static void setCurrent(std::unique_ptr<ZARNSpeechEngine> engine);
    /**
     * The machine's: QTextToSpeech with its default engine (flite on Debian). Without any
     * speech engine its voices stay silent: they never speak and report that they are not
     * speaking.
     */
    static ZARNSpeechEngine &system();
};
