// SPDX-License-Identifier: LGPL-2.1-or-later
// The Brixel gallery: every subsystem of the library on a page of live widgets.
//
//   brixel-gallery                    opens the window
//   brixel-gallery --screenshot DIR   renders every page into DIR/NN-name.png and quits
#include "GalleryWindow.h"

#include <Brixel/ZARNLocalizedString.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTextStream>

namespace {

int writeScreenshots(GalleryWindow &window, const QString &folder)
{
    if (!QDir().mkpath(folder)) {
        QTextStream(stderr) << "brixel-gallery: cannot create " << folder << '\n';
        return 1;
    }
    window.show();
    for (int index = 0; index < window.pageCount(); ++index) {
        window.showPage(index);
        QApplication::processEvents();
        const QString name = window.pageName(index).toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
        const QString path = QDir(folder).filePath(QStringLiteral("%1-%2.png").arg(index + 1, 2, 10, QLatin1Char('0')).arg(name));
        if (!window.grab().save(path)) {
            QTextStream(stderr) << "brixel-gallery: cannot write " << path << '\n';
            return 1;
        }
        QTextStream(stdout) << path << '\n';
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Brixel"));
    QApplication::setApplicationName(QStringLiteral("Gallery"));
    Brixel::ZARNLoadTranslations();

    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::translate("main", "Shows Brixel's widgets and helpers."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QApplication::translate("main", "Write every page as a PNG into <folder> and quit."),
                                        QApplication::translate("main", "folder"));
    parser.addOption(screenshot);
    parser.process(application);

    GalleryWindow window;
    if (parser.isSet(screenshot))
        return writeScreenshots(window, parser.value(screenshot));
    window.show();
    return application.exec();
}
