// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ResourcePixmap.h"

#include <QImageReader>
#include <QPixmapCache>

namespace kavenda {

QPixmap resourcePixmap(const std::filesystem::path& file)
{
    const QString path = QString::fromStdString(file.string());
    QPixmap pixmap;
    if (QPixmapCache::find(path, &pixmap))
        return pixmap;
    QImageReader reader(path, QByteArray::fromStdString(file.extension().string().substr(1)));
    reader.setAutoDetectImageFormat(false);
    pixmap = QPixmap::fromImage(reader.read());
    if (!pixmap.isNull())
        QPixmapCache::insert(path, pixmap);
    return pixmap;
}

}  // namespace kavenda
