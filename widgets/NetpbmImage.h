// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>

#include <filesystem>

namespace kavenda {

// The raw images of the first frame, read without Qt's image plugins (whose first use scans the
// plugin folder): P6 for colour (.ppm) and P7 with the tuple type RGB_ALPHA for colour with
// transparency (.pam), eight bits a channel. The image comes in the form a pixmap keeps (RGB32,
// or premultiplied ARGB32 with transparency). Null for any other file.
QImage readNetpbm(const std::filesystem::path& file);

// Writes the image in the form its file name says; false when it cannot.
bool writeNetpbm(const QImage& image, const std::filesystem::path& file);

}  // namespace kavenda
