// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSpeakingTextField.h"

#include "SpokenEdit_p.h"

#include "../platform/ZARNLocalizedString.h"
#include "../platform/ZARNSpeechEngine.h"

#include <QTimer>

class ZARNSpeakingTextFieldPrivate
{
public:
    QString speakableCharacters = QStringLiteral("");
    QStringList itemsToSpeak;
    bool speaks = false;
    /// The text before the edit being reported, to find what the edit replaced.
    QString previousText;
};

namespace {

// How long typed texts wait while anything speaks, in milliseconds.
constexpr int RetryDelay = 100;

// What is said for a typed text: "." and "," are read as words.
QString utteranceForReplacement(const QString &replacement)
{
    if (replacement == QLatin1String("."))
        return Brixel::ZARNLocalizedString("point");
    if (replacement == QLatin1String(","))
        return Brixel::ZARNLocalizedString("comma");
    return replacement;
}

} // namespace

ZARNSpeakingTextField::ZARNSpeakingTextField(QWidget *parent)
    : QLineEdit(parent)
    , d(std::make_unique<ZARNSpeakingTextFieldPrivate>())
{
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) { d->previousText = text; });
    connect(this, &QLineEdit::textEdited, this, [this](const QString &text) {
        const auto edit = BrixelPrivate::editBetween(d->previousText, text, cursorPosition());
        textReplaced(edit.range, edit.replacement);
    });
}

ZARNSpeakingTextField::~ZARNSpeakingTextField() = default;

ZARNSpeechVoice &ZARNSpeakingTextField::speechSynthesizer()
{
    static ZARNSpeechVoice *const voice = ZARNSpeechEngine::current().createVoice().release();
    return *voice;
}

bool ZARNSpeakingTextField::speaks() const
{
    return d->speaks;
}

void ZARNSpeakingTextField::setSpeaks(bool speaks)
{
    d->speaks = speaks;
}

QString ZARNSpeakingTextField::speakableCharacters() const
{
    return d->speakableCharacters;
}

void ZARNSpeakingTextField::setSpeakableCharacters(const QString &characters)
{
    d->speakableCharacters = characters.isNull() ? QStringLiteral("") : characters;
}

QStringList ZARNSpeakingTextField::itemsToSpeak() const
{
    return d->itemsToSpeak;
}

void ZARNSpeakingTextField::addItemToSpeak(const QString &text)
{
    if (!text.isNull())
        d->itemsToSpeak.append(text);
}

void ZARNSpeakingTextField::speakNextItem()
{
    if (d->itemsToSpeak.isEmpty())
        return;
    if (!ZARNSpeechEngine::current().isAnyVoiceSpeaking()) {
        speechSynthesizer().startSpeakingString(d->itemsToSpeak.takeFirst());
        if (d->itemsToSpeak.isEmpty())
            return;
    }
    QTimer::singleShot(RetryDelay, this, &ZARNSpeakingTextField::speakNextItem);
}

void ZARNSpeakingTextField::textReplaced(ZARNRange, const QString &replacement)
{
    if (!d->speaks || replacement.isEmpty() || !d->speakableCharacters.contains(replacement))
        return;
    addItemToSpeak(utteranceForReplacement(replacement));
    speakNextItem();
}
