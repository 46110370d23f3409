// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;

/// One page of the gallery: a subsystem of the library shown with live widgets.
struct GalleryPage
{
    QString name;
    std::function<QWidget *()> create;
};

/// The pages built so far; each shows one layer of the library.
QWidget *createValuesPage();
QWidget *createDrawingPage();
QWidget *createTablesPage();
QWidget *createControlsPage();
QWidget *createWindowsPage();
QWidget *createDatesPage();
QWidget *createSpeechPage();

/// Every page, in the order the gallery lists them.
QList<GalleryPage> galleryPages();
