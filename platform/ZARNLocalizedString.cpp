// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ZARNLocalizedString.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

QString Brixel::ZARNLocalizedString(const char *key)
{
    if (!key)
        return {};
    return QCoreApplication::translate(ZARNLocalizedStringContext, key);
}

bool Brixel::ZARNLoadTranslations(const QLocale &locale)
{
    auto *application = QCoreApplication::instance();
    if (!application)
        return false;

    // One library translator per application; a later call swaps it.
    static QPointer<QTranslator> installed;
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(locale, QStringLiteral("brixel"), QStringLiteral("_"), QStringLiteral(":/brixel/translations")))
        return false;
    if (installed) {
        QCoreApplication::removeTranslator(installed);
        delete installed.data();
    }
    translator->setParent(application);
    installed = translator.get();
    QCoreApplication::installTranslator(translator.release());
    return true;
}
