// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/sounds/WavFile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <string_view>

namespace kavenda::sounds {

namespace {

void tag(std::ofstream& out, std::string_view name)
{
    out.write(name.data(), static_cast<std::streamsize>(name.size()));
}

// WAV numbers are little-endian whatever the machine.
template <typename Int> void put(std::ofstream& out, Int value)
{
    for (std::size_t i = 0; i < sizeof(Int); ++i)
        out.put(static_cast<char>((static_cast<std::uint32_t>(value) >> (8 * i)) & 0xff));
}

}  // namespace

bool writeWav(const std::filesystem::path& file, const std::vector<double>& samples)
{
    std::ofstream out(file, std::ios::binary);
    if (!out)
        return false;
    constexpr std::uint16_t channels = 1;
    constexpr std::uint16_t bits = 16;
    constexpr std::uint16_t blockAlign = channels * bits / 8;
    const auto dataBytes = static_cast<std::uint32_t>(samples.size() * blockAlign);
    tag(out, "RIFF");
    put(out, static_cast<std::uint32_t>(36 + dataBytes));
    tag(out, "WAVE");
    tag(out, "fmt ");
    put(out, std::uint32_t{16});
    put(out, std::uint16_t{1});
    put(out, channels);
    put(out, static_cast<std::uint32_t>(sampleRate));
    put(out, static_cast<std::uint32_t>(sampleRate * blockAlign));
    put(out, blockAlign);
    put(out, bits);
    tag(out, "data");
    put(out, dataBytes);
    for (double sample : samples)
        put(out,
            static_cast<std::uint16_t>(
                static_cast<std::int16_t>(std::lround(std::clamp(sample, -1.0, 1.0) * 32767.0))));
    return static_cast<bool>(out);
}

}  // namespace kavenda::sounds
