// SPDX-License-Identifier: LGPL-2.1-or-later
// Prints the system version code a fresh process starts with, for tst_systemversion.
#include <Brixel/ZARNSystemVersion.h>

#include <cstdio>

int main()
{
    std::printf("%x\n", Brixel::ZARNSystemVersion());
    return 0;
}
