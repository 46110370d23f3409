// SPDX-License-Identifier: LGPL-2.1-or-later
// fileExtension and stringByDeletingFileExtension on arbitrary paths: an extension is short and
// alphanumeric, and the path without it plus "." plus the extension is the path again.

#include <Brixel/ZARNNSStringAdditions.h>

#include <QString>

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString extension = Brixel::fileExtension(path);
    const QString withoutExtension = Brixel::stringByDeletingFileExtension(path);

    if (extension.isEmpty()) {
        if (withoutExtension != path)
            std::abort();
        return 0;
    }
    if (extension.size() < 3 || extension.size() > 4
        || !std::all_of(extension.begin(), extension.end(), [](QChar c) { return c.isLetterOrNumber(); }))
        std::abort();
    QString trimmed = path;
    while (trimmed.endsWith(u'/'))
        trimmed.chop(1);
    if (withoutExtension + u'.' + extension != trimmed)
        std::abort();
    // The extension belongs to the last component, and a hidden file's leading dot is no extension.
    if (withoutExtension.isEmpty() || withoutExtension.endsWith(u'/'))
        std::abort();
    return 0;
}
