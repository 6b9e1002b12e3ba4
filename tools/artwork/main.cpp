// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// make_artwork <folder>: draws the images of the program into the folder.
// make_artwork --icon <size> <file>: draws the application icon at one size, for the icon theme.
// Runs without a display (QT_QPA_PLATFORM=offscreen).

#include "tools/artwork/Artwork.h"
#include "widgets/NetpbmImage.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdlib>
#include <iostream>
#include <string_view>

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    if (argc == 4 && std::string_view(argv[1]) == "--icon") {
        const int size = std::atoi(argv[2]);
        if (size > 0 && kavenda::artwork::appIcon(size).save(QString::fromLocal8Bit(argv[3])))
            return 0;
        std::cerr << "make_artwork: cannot write " << argv[3] << '\n';
        return 1;
    }
    if (argc != 2) {
        std::cerr << "usage: make_artwork <folder> | make_artwork --icon <size> <file>\n";
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    // clang-format off
    const std::pair<const char*, QImage> images[] = {
        // Read before the first frame, raw: no decoding and no image plugins.
        {"MainView.ppm", kavenda::artwork::mainView()},
        {"calendarBtn.pam", kavenda::artwork::calendarButton()},
        {"infoBtn.pam", kavenda::artwork::informationMark()},
        {"kavenda.png", kavenda::artwork::appIcon(256)},
        {"calendarBG.png", kavenda::artwork::calendarBackground()},
        {"hasEvent.png", kavenda::artwork::dayHasEvent()},
        {"selectedWithEvent.png", kavenda::artwork::daySelected(true)},
        {"selected.png", kavenda::artwork::daySelected(false)},
        {"today.png", kavenda::artwork::dayToday()},
        {"pickerRound.png", kavenda::artwork::pickerRound()},
    };
    // clang-format on
    for (const auto& [name, image] : images) {
        const QString file = folder.filePath(QString::fromLatin1(name));
        const bool raw = file.endsWith(QStringLiteral(".ppm")) || file.endsWith(QStringLiteral(".pam"));
        if (!(raw ? kavenda::writeNetpbm(image, file.toStdString()) : image.save(file))) {
            std::cerr << "make_artwork: cannot write " << name << '\n';
            return 1;
        }
    }
    return 0;
}
