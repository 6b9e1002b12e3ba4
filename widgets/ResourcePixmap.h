// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPixmap>

#include <filesystem>

namespace kavenda {

// An image of the program's own, read once and kept in the pixmap cache. Its format is the one
// its file name says: left to guess, Qt loads every image plugin installed to ask it, which cost
// more than the first frame's whole drawing.
QPixmap resourcePixmap(const std::filesystem::path& file);

}  // namespace kavenda
