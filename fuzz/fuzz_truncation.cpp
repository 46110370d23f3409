// SPDX-License-Identifier: LGPL-2.1-or-later
// The truncation functions on arbitrary text, attributes and widths: they never fail, never
// hang, and their results follow the shortening rules: unchanged text when it fits, else a
// start of the text followed by "..." that fits, or "..." alone.

#include <Brixel/ZARNAttributedTextLayout.h>
#include <Brixel/ZARNTextTruncation.h>
#include "drawing/TruncationSearch_p.h"

#include <QColor>
#include <QFont>
#include <QGuiApplication>

#include <cstdlib>
#include <cstring>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QVariantMap attributesFrom(quint8 byte)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(6 + byte % 20);
    font.setBold(byte & 0x80);
    return {{ZARNFontAttributeName, font}, {ZARNForegroundColorAttributeName, QColor(byte & 1 ? Qt::red : Qt::black)}};
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The application lives until the process ends: libFuzzer leaves through exit(), and
    // taking Qt's application down from an exit handler crashes.
    static QGuiApplication *const application = new QGuiApplication(*argc, *argv);
    Q_UNUSED(application)
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, size_t size)
{
    if (size < 4)
        return 0;
    qint16 rawWidth;
    std::memcpy(&rawWidth, data, sizeof rawWidth);
    const float width = float(rawWidth) / 8.0f;
    const quint8 styleA = data[2];
    const quint8 styleB = data[3];
    data += 4;
    size -= 4;

    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    ZARNAttributedString string(text, attributesFrom(styleA));
    if (string.length() > 1)
        string.setAttributes(attributesFrom(styleB), {string.length() / 2, string.length() - string.length() / 2});

    const double limit = double(width) - ZARNTruncationMargin;
    try {
        const ZARNAttributedString truncated = Brixel::TruncateAttributedString(string, width);
        if (truncated == string) {
            require(!(double(BrixelPrivate::attributedStringWidth(string)) > limit) || string.string().endsWith(u"..."));
        } else {
            require(truncated.string().endsWith(u"..."));
            const QString kept = truncated.string().chopped(3);
            require(kept.size() < string.length() && string.string().startsWith(kept));
            require(kept.isEmpty() || !(double(BrixelPrivate::attributedStringWidth(truncated)) > limit));
        }
    } catch (const std::out_of_range &) {
        require(string.isEmpty() && width < 4.0f);
    }

    // A table cell's path for text in one font: the same rules, and the layout it hands back
    // for drawing is the shortened text's.
    const QFont font = attributesFrom(styleA).value(ZARNFontAttributeName).value<QFont>();
    const ZARNAttributedTextLayout whole(text, font, Qt::black, Qt::AlignLeft);
    const qreal dotsWidth = ZARNAttributedTextLayout(QStringLiteral("..."), font, Qt::black, Qt::AlignLeft).width();
    const BrixelPrivate::ShortenedText shortened =
        BrixelPrivate::shortenedPlainText(text, font, Qt::black, Qt::AlignLeft, width, whole, dotsWidth);
    if (shortened.text != text) {
        require(shortened.text.endsWith(u"...") && text.startsWith(shortened.text.chopped(3)));
        require(shortened.text.size() - 3 < text.size());
    }
    if (shortened.layout) {
        const ZARNAttributedString shown(shortened.text, {{ZARNFontAttributeName, font}});
        require(float(shortened.layout->width()) == BrixelPrivate::attributedStringWidth(shown));
        require(!(double(float(shortened.layout->width())) > limit));
    }
    return 0;
}
