// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNMediaFacts.h"

#include "InstalledBackEnd_p.h"

// system() is defined in speech/, which links the Qt modules the machine's back end needs.

ZARNMediaFacts::~ZARNMediaFacts() = default;

const ZARNMediaFacts &ZARNMediaFacts::current()
{
    return BrixelPrivate::currentBackEnd<ZARNMediaFacts>();
}

void ZARNMediaFacts::setCurrent(std::unique_ptr<ZARNMediaFacts> mediaFacts)
{
    BrixelPrivate::installedBackEnd<ZARNMediaFacts>() = std::move(mediaFacts);
}
