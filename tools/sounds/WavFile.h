// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <vector>

namespace kavenda::sounds {

// The highest partial of any recording (a bell's, near 5.9 kHz) lies below half of this rate, so
// nothing is lost, and the package is a quarter smaller than at 22,050.
constexpr int sampleRate = 16000;

// Writes mono samples in -1..1 as a 16-bit PCM WAV file; false when the file cannot be written.
bool writeWav(const std::filesystem::path& file, const std::vector<double>& samples);

}  // namespace kavenda::sounds
