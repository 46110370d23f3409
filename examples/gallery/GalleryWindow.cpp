// SPDX-License-Identifier: LGPL-2.1-or-later
#include "GalleryWindow.h"

#include "GalleryPages.h"

#include <Brixel/ZARNSystemVersion.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QStackedWidget>
#include <QToolBar>

namespace {

struct VersionChoice
{
    const char *label;
    quint32 code;
};

// One code on each side of every threshold the library compares with.
constexpr VersionChoice versionChoices[] = {
    {QT_TRANSLATE_NOOP("GalleryWindow", "Newest"), ZARNSystemVersionNewest},
    {"10.5", 0x1050},
    {"10.4.11", 0x104B},
    {"10.4", 0x1040},
    {"10.3.9", 0x1039},
    {"10.3", 0x1030},
    {"10.1.5", 0x1015},
};

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_pageList(new QListWidget)
    , m_pages(new QStackedWidget)
{
    setWindowTitle(tr("Brixel Gallery"));

    for (const GalleryPage &page : galleryPages()) {
        m_pageList->addItem(page.name);
        m_pages->addWidget(page.create());
    }
    m_pageList->setFixedWidth(140);
    connect(m_pageList, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);

    auto *central = new QWidget;
    auto *layout = new QHBoxLayout(central);
    layout->addWidget(m_pageList);
    layout->addWidget(m_pages, 1);
    setCentralWidget(central);

    buildVersionChooser();
    showPage(0);
    resize(1100, 760);
}

int GalleryWindow::pageCount() const
{
    return m_pages->count();
}

QString GalleryWindow::pageName(int index) const
{
    return m_pageList->item(index)->text();
}

void GalleryWindow::showPage(int index)
{
    m_pageList->setCurrentRow(index);
}

void GalleryWindow::buildVersionChooser()
{
    m_versionChooser = new QComboBox;
    const quint32 current = Brixel::ZARNSystemVersion();
    for (const VersionChoice &choice : versionChoices) {
        m_versionChooser->addItem(tr("%1 (0x%2)").arg(tr(choice.label)).arg(choice.code, 0, 16), choice.code);
        if (choice.code == current)
            m_versionChooser->setCurrentIndex(m_versionChooser->count() - 1);
    }
    if (m_versionChooser->findData(current) < 0) {
        m_versionChooser->addItem(tr("From the environment (0x%1)").arg(current, 0, 16), current);
        m_versionChooser->setCurrentIndex(m_versionChooser->count() - 1);
    }
    connect(m_versionChooser, &QComboBox::currentIndexChanged, this, &GalleryWindow::applySystemVersion);

    auto *toolBar = addToolBar(tr("Look"));
    toolBar->setMovable(false);
    toolBar->addWidget(new QLabel(tr("System version: ")));
    toolBar->addWidget(m_versionChooser);
}

void GalleryWindow::applySystemVersion(int chooserIndex)
{
    Brixel::ZARNSetSystemVersion(m_versionChooser->itemData(chooserIndex).toUInt());
    // Widgets that cache version-dependent artwork listen to the notifier; a repaint shows it.
    const auto widgets = findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->update();
}
