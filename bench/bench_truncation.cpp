// SPDX-License-Identifier: LGPL-2.1-or-later
// Shortening a 10,000-character string to 200 points, beside Qt's own eliding of the same
// text to the same width.
#include "BenchHarness.h"

#include <Brixel/ZARNTextTruncation.h>
#include <Brixel/ZARNLabelTruncation.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QLabel>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(12);

    QString text;
    while (text.size() < 10000)
        text += QStringLiteral("The quick brown fox jumps over the lazy dog. ");
    text.truncate(10000);
    const float width = 200;
    const QVariantMap attributes{{ZARNFontAttributeName, font}};
    const ZARNAttributedString attributed(text, attributes);
    const QFontMetricsF metrics(font);

    const double qt = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(metrics.elidedText(text, Qt::ElideRight, width)); });
    const double ours = brixelbench::nanosecondsPerCall([&] { brixelbench::keep(Brixel::TruncateAttributedString(attributed, width)); });
    brixelbench::report("TruncateAttributedString 10k chars to 200 pt", ours, "QFontMetricsF::elidedText", qt);

    QLabel label;
    label.setFont(font);
    const double cell = brixelbench::nanosecondsPerCall([&] {
        label.setText(text);
        Brixel::TruncateStringInCell(&label, width);
    });
    const double setTextOnly = brixelbench::nanosecondsPerCall([&] { label.setText(text); });
    brixelbench::report("TruncateStringInCell (QLabel), 10k chars", cell - setTextOnly, "QFontMetricsF::elidedText", qt);
    return 0;
}
