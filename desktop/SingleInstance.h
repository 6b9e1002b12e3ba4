// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "desktop/InstanceSocket.h"

#include <QObject>

#include <filesystem>

namespace kavenda {

// One running program per data folder: the first start listens on the folder's socket; a later
// start hands its wish over to it and ends.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    explicit SingleInstance(const std::filesystem::path& dataFolder, QObject* parent = nullptr);

    // True when another instance took the wish: to show its window unless in the background.
    bool handOver(bool background);
    // Becomes the running instance; false when the socket cannot be made or another listens.
    bool listen();

signals:
    void showRequested();
    void quitRequested();

private:
    void accept();

    InstanceSocket socket_;
};

}  // namespace kavenda
