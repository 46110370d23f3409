// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include <QObject>
#include <QStringList>

#include <memory>

class ZARNSpeechVoice;

/**
 * The application's speech queue: speaks one string, or a list of strings one after another
 * with a pause between them, and can be stopped at any time.
 *
 * Each class method forwards to the shared instance:
 *
 * \code
 * ZARNSpeechSynthesizer::speakStrings({tr("Ready"), tr("Set"), tr("Go")}, 1.0);
 * ...
 * ZARNSpeechSynthesizer::stopSpeaking();
 * \endcode
 *
 * A list is driven by a timer on the thread that started it. The first string is spoken at
 * once; each later one starts one interval after the previous one was seen to finish, seen by
 * looking every 0.1 seconds; the list ends one look after its last string finished. "Now" is
 * ZARNClock::current(), so a test can run a list in virtual time.
 *
 * The voice comes from ZARNSpeechEngine::current() (QTextToSpeech on the machine). The older
 * speech-channel interface this queue could also speak through does not exist on this
 * platform, so whatever the system version code, it always speaks through the engine's voice.
 * Without a speech engine nothing is heard and the queue still runs its lists to the end.
 */
class BRIXEL_EXPORT ZARNSpeechSynthesizer : public QObject
{
    Q_OBJECT
public:
    /// The pause, in seconds, that a negative interval selects.
    static constexpr double DefaultInterval = 1.8;

    /// An idle queue; its voice is made when first needed.
    explicit ZARNSpeechSynthesizer(QObject *parent = nullptr);
    ~ZARNSpeechSynthesizer() override;

    /// The process-wide queue, made on first use and never destroyed.
    static ZARNSpeechSynthesizer *sharedSpeechSynthesizer();

    /// The shared queue's voice (see voice()).
    static ZARNSpeechVoice &speechSynthesizer();
    /// Whether the shared queue's voice is speaking.
    static bool isSpeaking();
    /// Speaks \a text at once with the shared queue's voice, leaving its list alone.
    static void speakString(const QString &text);
    /// Starts a list on the shared queue with the default pause.
    static void speakStrings(const QStringList &strings);
    /// Starts a list on the shared queue with a pause of \a interval seconds.
    static void speakStrings(const QStringList &strings, double interval);
    /// Stops the shared queue's voice and list.
    static void stopSpeaking();

    /// This queue's voice, made with the engine's default settings on first call.
    ZARNSpeechVoice &voice();
    /// Whether this queue's voice is speaking now.
    bool voiceIsSpeaking();
    /// Speaks \a text at once, cutting off the current string. A running list is not touched:
    /// it waits until \a text is finished, because it starts a string only when the voice is
    /// silent.
    void speak(const QString &text);
    /**
     * Stops any running list and speaks \a strings in order, \a interval seconds apart,
     * counted from the moment the previous string was seen to finish. An interval of 0 speaks
     * them back to back; a negative one (or NaN) selects DefaultInterval. An empty list does
     * nothing, and a running list goes on.
     */
    void speakList(const QStringList &strings, double interval = -1.0);
    /// Stops the voice and the running list, if any.
    void stop();
    /// Whether a list is running.
    bool isSpeakingList() const;

    /**
     * The list's timer callback, called each time the timer fires: while the voice speaks it
     * looks again in 0.1 seconds; otherwise it ends the list after its last string, waits
     * out the rest of the pause, or speaks the next string. Does nothing while no list runs.
     */
    void speakingStringsTimer();

private:
    friend class ZARNSpeechSynthesizerPrivate;
    std::unique_ptr<class ZARNSpeechSynthesizerPrivate> const d;
};
