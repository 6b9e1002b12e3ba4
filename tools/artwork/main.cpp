// make_artwork <folder>: draws the images of the program into the folder. Runs without a
// display (QT_QPA_PLATFORM=offscreen).

#include "tools/artwork/Artwork.h"

#include <QDir>
#include <QGuiApplication>

#include <iostream>

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: make_artwork <folder>\n";
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const std::pair<const char*, QImage> images[] = {
        {"MainView.png", kavenda::artwork::mainView()},
        {"calendarBtn.png", kavenda::artwork::calendarButton()},
        {"kavenda.png", kavenda::artwork::appIcon(256)},
        {"pickerRound.png", kavenda::artwork::pickerRound()},
    };
    for (const auto& [name, image] : images) {
        if (!image.save(folder.filePath(QString::fromLatin1(name)))) {
            std::cerr << "make_artwork: cannot write " << name << '\n';
            return 1;
        }
    }
    return 0;
}
