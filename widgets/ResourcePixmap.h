// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPixmap>

#include <filesystem>

namespace kavenda {

// An image of the program's own, read once and kept. Its format is the one its file name says:
// left to guess, Qt loads every image plugin installed to ask each of them. Netpbm files are read
// without the plugins at all.
QPixmap resourcePixmap(const std::filesystem::path& file);

// Starts reading an image on a thread of its own, for the resourcePixmap() of the same file that
// follows on the window's thread.
void prefetchResourceImage(const std::filesystem::path& file);

}  // namespace kavenda
