// SPDX-License-Identifier: LGPL-2.1-or-later
#include "GalleryPages.h"

#include <QLabel>

namespace {

// A page whose widgets have not been built yet says so instead of staying blank.
QWidget *placeholderPage(const QString &name)
{
    auto *label = new QLabel(QObject::tr("The %1 page is not built yet.").arg(name));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

GalleryPage placeholder(const QString &name)
{
    return {name, [name] { return placeholderPage(name); }};
}

} // namespace

QList<GalleryPage> galleryPages()
{
    return {
        {QObject::tr("Values"), createValuesPage},
        {QObject::tr("Drawing"), createDrawingPage},
        {QObject::tr("Tables"), createTablesPage},
        {QObject::tr("Controls"), createControlsPage},
        {QObject::tr("Windows"), createWindowsPage},
        {QObject::tr("Dates"), createDatesPage},
        placeholder(QObject::tr("Speech")),
    };
}
