// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brixel/brixel_export.h>

#include "../platform/ZARNRange.h"

#include <QLineEdit>

#include <memory>

class ZARNSpeechVoice;

/**
 * A line edit that, when switched on, speaks each typed or pasted text that occurs whole in
 * its speakable characters, reading "." and "," as the localized words "point" and "comma".
 *
 * \code
 * auto *field = new ZARNSpeakingTextField(parent);
 * field->setSpeakableCharacters(QStringLiteral("0123456789.,"));
 * field->setSpeaks(true);
 * \endcode
 *
 * Typing "5" says "five", "." says "point", "a" says nothing; a paste of "12" is spoken only
 * when "12" occurs as written in the speakable characters. Deleting says nothing. Texts typed
 * while anything speaks wait their turn, first in first out, and are tried again every 0.1
 * seconds. All fields share one voice (speechSynthesizer()), separate from the speech queue's.
 */
class BRIXEL_EXPORT ZARNSpeakingTextField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool speaks READ speaks WRITE setSpeaks)
    Q_PROPERTY(QString speakableCharacters READ speakableCharacters WRITE setSpeakableCharacters)
public:
    /// A silent field with no speakable characters.
    explicit ZARNSpeakingTextField(QWidget *parent = nullptr);
    ~ZARNSpeakingTextField() override;

    /// The voice every speaking field speaks with, made on first use and never destroyed.
    static ZARNSpeechVoice &speechSynthesizer();

    /// Whether typing is spoken; off at first.
    bool speaks() const;
    /// Switches speaking typed text on or off.
    void setSpeaks(bool speaks);

    /// The characters that are spoken; empty at first.
    QString speakableCharacters() const;
    /// Sets the characters that are spoken; a null string stores the empty string.
    void setSpeakableCharacters(const QString &characters);

    /// The texts waiting to be spoken, first in first out.
    QStringList itemsToSpeak() const;
    /// Appends \a text to the texts waiting to be spoken; a null string is ignored.
    void addItemToSpeak(const QString &text);
    /**
     * Speaks the first waiting text when no voice of the speech engine is speaking, and, while
     * texts are left or the engine is busy, tries again in 0.1 seconds. Does nothing when no
     * text waits.
     */
    void speakNextItem();

protected:
    /**
     * Called for each edit the user makes (typing, pasting, deleting) once the validator and
     * the maximum length have let it through, with the replaced \a range of the old text and
     * its \a replacement. Speaks the replacement when the field speaks and the replacement
     * occurs whole in the speakable characters (a deletion's empty replacement never does).
     */
    virtual void textReplaced(ZARNRange range, const QString &replacement);

private:
    std::unique_ptr<class ZARNSpeakingTextFieldPrivate> const d;
};
