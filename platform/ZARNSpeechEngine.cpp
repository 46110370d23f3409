// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSpeechEngine.h"

#include "InstalledBackEnd_p.h"

// system() is defined in speech/, which links the Qt modules the machine's back end needs.

ZARNSpeechVoice::~ZARNSpeechVoice() = default;
ZARNSpeechEngine::~ZARNSpeechEngine() = default;

ZARNSpeechEngine &ZARNSpeechEngine::current()
{
    return BrixelPrivate::currentBackEnd<ZARNSpeechEngine>();
}

void ZARNSpeechEngine::setCurrent(std::unique_ptr<ZARNSpeechEngine> speechEngine)
{
    BrixelPrivate::installedBackEnd<ZARNSpeechEngine>() = std::move(speechEngine);
}
