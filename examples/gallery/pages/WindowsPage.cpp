// SPDX-License-Identifier: LGPL-2.1-or-later
// The Windows page: buttons that open an alert modally and as a sheet, a progress window with
// a running bar, and a self-sizing tab view in its own window; below them, pictures of each
// and of the classic window backgrounds at three heights.
#include "../GalleryPages.h"

#include <Brixel/BXAlert.h>
#include <Brixel/ZARNProgressWindow.h>
#include <Brixel/ZARNSystemVersion.h>
#include <Brixel/ZARNTabView.h>
#include <Brixel/ZARNWindow.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

namespace {

std::unique_ptr<BXAlert> sampleAlert()
{
    return BXAlert::alertWithTitle(QObject::tr("Delete"), QObject::tr("Delete the selected notes?"),
                                   QObject::tr("The three notes are removed from every device. You cannot "
                                               "undo this."),
                                   QImage(), QObject::tr("Delete"), QObject::tr("Cancel"), QString());
}

// A window with a tab view whose pages have different heights.
ZARNWindow *tabViewWindow()
{
    auto *window = new ZARNWindow;
    window->setWindowTitle(QObject::tr("Preferences"));
    window->setGeometry(100, 100, 420, 220);
    auto *tabs = new ZARNTabView(window);
    tabs->setGeometry(0, 0, 420, 220);
    const QList<int> fields{2, 5};
    for (int page = 0; page < fields.size(); ++page) {
        auto *item = new ZARNTabViewItem;
        for (int row = 0; row < fields.at(page); ++row) {
            (new QLabel(QObject::tr("Setting %1").arg(row + 1), item))->setGeometry(20, 20 + 34 * row, 100, 24);
            (new QLineEdit(item))->setGeometry(130, 20 + 34 * row, 240, 24);
        }
        tabs->addTab(item, page == 0 ? QObject::tr("General") : QObject::tr("Advanced"));
    }
    return window;
}

QLabel *picture(const QPixmap &pixmap, const QString &caption)
{
    auto *label = new QLabel;
    label->setPixmap(pixmap);
    label->setToolTip(caption);
    return label;
}

QGroupBox *openers(QWidget *page)
{
    auto *box = new QGroupBox(QObject::tr("Open"));
    auto *layout = new QHBoxLayout(box);
    auto *modal = new QPushButton(QObject::tr("Alert…"));
    QObject::connect(modal, &QPushButton::clicked, page, [] {
        if (const auto alert = sampleAlert())
            alert->runModal();
    });
    auto *sheet = new QPushButton(QObject::tr("Alert as a sheet…"));
    QObject::connect(sheet, &QPushButton::clicked, page, [page] {
        if (const auto alert = sampleAlert())
            alert->runAsSheetForWindow(page->window());
    });
    auto *progress = new QPushButton(QObject::tr("Progress window…"));
    auto *cancel = new QCheckBox(QObject::tr("with Cancel"));
    cancel->setChecked(true);
    QObject::connect(progress, &QPushButton::clicked, page, [cancel] {
        ZARNProgressWindow *window = ZARNProgressWindow::progressWindow();
        if (!window)
            return;
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->titleField()->setText(QObject::tr("Copying files"));
        window->setCancelHidden(!cancel->isChecked());
        auto *timer = new QTimer(window);
        QObject::connect(timer, &QTimer::timeout, window, [window] {
            QProgressBar *bar = window->progressIndicator();
            bar->setValue((bar->value() + 1) % (bar->maximum() + 1));
            window->stepField()->setText(QObject::tr("File %1 of 100").arg(bar->value()));
        });
        timer->start(50);
        window->show();
    });
    auto *tabs = new QPushButton(QObject::tr("Tab view window…"));
    QObject::connect(tabs, &QPushButton::clicked, page, [] {
        ZARNWindow *window = tabViewWindow();
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
    });
    for (QWidget *widget : std::initializer_list<QWidget *>{modal, sheet, progress, cancel, tabs})
        layout->addWidget(widget);
    layout->addStretch();
    return box;
}

QGroupBox *pictures()
{
    auto *box = new QGroupBox(QObject::tr("The alert, the progress window and the tab view after a switch"));
    auto *layout = new QHBoxLayout(box);
    if (const auto alert = sampleAlert())
        layout->addWidget(picture(alert->window()->grab(), QObject::tr("Alert")));
    if (const std::unique_ptr<ZARNProgressWindow> progress{ZARNProgressWindow::progressWindow()}) {
        progress->titleField()->setText(QObject::tr("Copying files"));
        progress->stepField()->setText(QObject::tr("File 40 of 100"));
        progress->progressIndicator()->setValue(40);
        layout->addWidget(picture(progress->grab(), QObject::tr("Progress window")));
    }
    // Laid out as if shown, so the tab view can fit the window, without appearing.
    const std::unique_ptr<ZARNWindow> tabs{tabViewWindow()};
    tabs->setAttribute(Qt::WA_DontShowOnScreen);
    tabs->show();
    tabs->findChild<ZARNTabView *>()->setCurrentIndex(1);
    layout->addWidget(picture(tabs->grab(), QObject::tr("Tab view")));
    layout->addStretch();
    return box;
}

QGroupBox *classicBackgrounds()
{
    auto *box = new QGroupBox(QObject::tr("Classic window backgrounds (0x1039): modes 1 and 2 at three heights"));
    auto *layout = new QHBoxLayout(box);
    const quint32 version = Brixel::ZARNSystemVersion();
    Brixel::ZARNSetSystemVersion(0x1039);
    for (const auto mode : {ZARNWindow::BackgroundMode::ThreePart, ZARNWindow::BackgroundMode::UpperHalf}) {
        for (const int height : {60, 150, 260}) {
            ZARNWindow window;
            window.setShowsResizeIndicator(false);
            window.setBackgroundMode(mode);
            window.setFrame(QRect(0, 0, 60, height), true);
            layout->addWidget(picture(window.grab(), QObject::tr("mode %1, %2 high").arg(int(mode)).arg(height)),
                              0, Qt::AlignBottom);
        }
        layout->addSpacing(20);
    }
    Brixel::ZARNSetSystemVersion(version);
    layout->addStretch();
    return box;
}

} // namespace

QWidget *createWindowsPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(openers(page));
    layout->addWidget(pictures());
    layout->addWidget(classicBackgrounds());
    layout->addStretch();
    return page;
}
