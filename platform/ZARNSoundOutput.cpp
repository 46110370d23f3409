// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNSoundOutput.h"

#include "InstalledBackEnd_p.h"

// system() is defined in speech/, which links the Qt modules the machine's back end needs.

ZARNSound::ZARNSound() = default;
ZARNSound::~ZARNSound() = default;
ZARNSoundOutput::~ZARNSoundOutput() = default;

ZARNSoundOutput &ZARNSoundOutput::current()
{
    return BrixelPrivate::currentBackEnd<ZARNSoundOutput>();
}

void ZARNSoundOutput::setCurrent(std::unique_ptr<ZARNSoundOutput> soundOutput)
{
    BrixelPrivate::installedBackEnd<ZARNSoundOutput>() = std::move(soundOutput);
}
