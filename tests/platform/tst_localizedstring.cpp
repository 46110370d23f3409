// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNLocalizedString.h>

#include <QTest>

namespace {
} // namespace

class TestLocalizedString : public QObject
{
    Q_OBJECT
private Q_SLOTS:
};

QTEST_GUILESS_MAIN(TestLocalizedString)
#include "tst_localizedstring.moc"
