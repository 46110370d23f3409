// SPDX-License-Identifier: LGPL-2.1-or-later
#include "GalleryPages.h"

#include <QObject>

QList<GalleryPage> galleryPages()
{
    return {
        {QObject::tr("Values"), createValuesPage},
        {QObject::tr("Drawing"), createDrawingPage},
        {QObject::tr("Tables"), createTablesPage},
        {QObject::tr("Controls"), createControlsPage},
        {QObject::tr("Windows"), createWindowsPage},
        {QObject::tr("Dates"), createDatesPage},
        {QObject::tr("Speech"), createSpeechPage},
    };
}
