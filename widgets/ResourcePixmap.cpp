// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ResourcePixmap.h"

#include <QHash>
#include <QImageReader>

namespace kavenda {

QPixmap resourcePixmap(const std::filesystem::path& file)
{
    // A handful of small images, kept for the program's life: QPixmapCache would wake the program
    // half a minute after the first one to see whether it may drop them.
    static auto* const kept = new QHash<QString, QPixmap>;
    const QString path = QString::fromStdString(file.string());
    if (const auto found = kept->constFind(path); found != kept->constEnd())
        return *found;
    QImageReader reader(path, QByteArray::fromStdString(file.extension().string().substr(1)));
    reader.setAutoDetectImageFormat(false);
    const QPixmap pixmap = QPixmap::fromImage(reader.read());
    if (!pixmap.isNull())
        kept->insert(path, pixmap);
    return pixmap;
}

}  // namespace kavenda
