// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The floor for the program's start: a plain Qt Widgets window of the same size with one
// label, started and captured the way the program's --screenshot does it.
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <cstring>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget window;
    window.setFixedSize(320, 440);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel(QStringLiteral("کاوندا"), &window));
    window.show();

    if (argc == 3 && std::strcmp(argv[1], "--screenshot") == 0) {
        const QString file = QString::fromLocal8Bit(argv[2]);
        QTimer::singleShot(600, &window,
                           [&window, file] { QCoreApplication::exit(window.grab().save(file, "PNG") ? 0 : 1); });
    }
    return app.exec();
}
