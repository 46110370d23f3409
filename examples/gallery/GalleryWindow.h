// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMainWindow>

class QComboBox;
class QListWidget;
class QStackedWidget;

/**
 * The gallery's main window: a list of pages on the left, the chosen page on the right, and a
 * tool bar choosing the system version code, so the newer and classic looks can be compared
 * live.
 */
class GalleryWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    int pageCount() const;
    QString pageName(int index) const;
    void showPage(int index);

private:
    void buildVersionChooser();
    void applySystemVersion(int chooserIndex);

    QListWidget *m_pageList = nullptr;
    QStackedWidget *m_pages = nullptr;
    QComboBox *m_versionChooser = nullptr;
};
