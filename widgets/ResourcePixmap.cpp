// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ResourcePixmap.h"

#include "widgets/NetpbmImage.h"

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
    const std::string format = file.extension().string().substr(1);
    QImage image;
    if (format == "ppm" || format == "pam") {
        image = readNetpbm(file);
    } else {
        QImageReader reader(path, QByteArray::fromStdString(format));
        reader.setAutoDetectImageFormat(false);
        image = reader.read();
    }
    const QPixmap pixmap = QPixmap::fromImage(image);
    if (!pixmap.isNull())
        kept->insert(path, pixmap);
    return pixmap;
}

}  // namespace kavenda
