// SPDX-License-Identifier: LGPL-2.1-or-later
// Builds against the installed headers only: the umbrella header pulls in every public header,
// so one that includes an internal or uninstalled header fails here.
#include <Brixel/Brixel>
#include <Brixel/ZARNTableView.h>

#include <QApplication>
#include <QLabel>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const ZARNRect rect(1, 2, 3, 4);
    QLabel label(QStringLiteral("Brixel %1").arg(Brixel::ZARNSystemVersion(), 0, 16));
    label.show();
    ZARNTableView table;
    return rect.flipped(10).flipped(10) == rect && Brixel::ZARNSystemVersion() >= 0x1050 ? 0 : 1;
}
