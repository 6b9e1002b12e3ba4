// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

// Reads the system's font configuration (fontconfig's files, a few milliseconds), which Qt would
// read when it first needs a font. It needs no Qt, so it can run on another core while Qt starts.
void readFontConfiguration();

// Makes a font that writes Persian well the application's font: Nazli, else DejaVu Sans.
void usePersianFont();

}  // namespace kavenda
