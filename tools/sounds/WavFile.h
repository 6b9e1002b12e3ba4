#pragma once

#include <filesystem>
#include <vector>

namespace kavenda::sounds {

constexpr int sampleRate = 22050;

// Writes mono samples in -1..1 as a 16-bit PCM WAV file; false when the file cannot be written.
bool writeWav(const std::filesystem::path& file, const std::vector<double>& samples);

}  // namespace kavenda::sounds
