// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ResourcePixmap.h"

#include "widgets/NetpbmImage.h"

#include <QHash>
#include <QImageReader>

#include <future>
#include <map>

namespace kavenda {

namespace {

QImage readImage(const std::filesystem::path& file)
{
    const std::string format = file.extension().string().substr(1);
    if (format == "ppm" || format == "pam")
        return readNetpbm(file);
    QImageReader reader(QString::fromStdString(file.string()), QByteArray::fromStdString(format));
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

// Images being read on threads of their own; only the window's thread starts and takes them.
std::map<std::filesystem::path, std::future<QImage>>& beingRead()
{
    static auto* const reads = new std::map<std::filesystem::path, std::future<QImage>>;
    return *reads;
}

}  // namespace

void prefetchResourceImage(const std::filesystem::path& file)
{
    beingRead().try_emplace(file, std::async(std::launch::async, readImage, file));
}

QPixmap resourcePixmap(const std::filesystem::path& file)
{
    // A handful of small images, kept for the program's life: QPixmapCache would wake the program
    // half a minute after the first one to see whether it may drop them.
    static auto* const kept = new QHash<QString, QPixmap>;
    const QString path = QString::fromStdString(file.string());
    if (const auto found = kept->constFind(path); found != kept->constEnd())
        return *found;
    QImage image;
    if (const auto read = beingRead().find(file); read != beingRead().end()) {
        image = read->second.get();
        beingRead().erase(read);
    } else {
        image = readImage(file);
    }
    const QPixmap pixmap = QPixmap::fromImage(std::move(image));
    if (!pixmap.isNull())
        kept->insert(path, pixmap);
    return pixmap;
}

}  // namespace kavenda
