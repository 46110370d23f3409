// SPDX-License-Identifier: LGPL-2.1-or-later
// Internal to Brixel's platform layer; not installed.
#pragma once

#include <memory>

namespace BrixelPrivate {

/// The back end of kind T that an application or a test installed, null while none is.
template<typename T>
std::unique_ptr<T> &installedBackEnd()
{
    static std::unique_ptr<T> backEnd;
    return backEnd;
}

/// The installed back end of kind T, else the machine's (const when T::system() is).
template<typename T>
decltype(auto) currentBackEnd()
{
    const auto &installed = installedBackEnd<T>();
    return installed ? *installed : T::system();
}

} // namespace BrixelPrivate
