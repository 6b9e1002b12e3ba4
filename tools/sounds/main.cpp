// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// make_sounds <folder>: writes the program's sounds: nine sung calls in different modes
// (0.wav .. 8.wav), a beep (10.wav), an alarm, two chimes (11.wav, 12.wav) and the
// announcement of the day's occasions (times.wav).

#include "tools/sounds/Synth.h"
#include "tools/sounds/WavFile.h"

#include <iostream>
#include <string>
#include <utility>
#include <vector>

using namespace kavenda::sounds;

namespace {

// Nine phrases, each in its own mode and register, all coming home to the tonic.
std::vector<Phrase> calls()
{
    // clang-format off
    return {
        // Bayati: the neutral second of the quarter-tone modes.
        {220.0, 0.42, 0.55, {{0, 1}, {1.5, 0.5}, {3, 0.5}, {5, 1.5}, {3, 0.5}, {5, 0.5}, {7, 1}, {5, 0.5}, {3, 0.5}, {1.5, 1}, {0, 2.5}}},
        // Hijaz: the augmented second that gives the call its longing.
        {233.1, 0.40, 0.6, {{7, 1.5}, {5, 0.5}, {4, 0.5}, {1, 1}, {4, 0.5}, {5, 0.5}, {4, 1}, {1, 0.5}, {0, 2.5}}},
        // Rast: bright and settled.
        {196.0, 0.38, 0.5, {{0, 0.5}, {2, 0.5}, {3.5, 1}, {5, 0.5}, {7, 1.5}, {5, 0.5}, {3.5, 0.5}, {2, 1}, {3.5, 0.5}, {2, 0.5}, {0, 2.5}}},
        // Segah: the phrase leans on its middle tone.
        {246.9, 0.45, 0.5, {{3.5, 1.5}, {5, 0.5}, {7, 1}, {5, 0.5}, {3.5, 1}, {1.5, 0.5}, {3.5, 1}, {1.5, 0.5}, {0, 2.5}}},
        // Nahawand: a minor line with a raised seventh before the close.
        {207.7, 0.36, 0.55, {{0, 0.5}, {3, 0.5}, {5, 0.5}, {7, 1.5}, {8, 0.5}, {7, 0.5}, {5, 1}, {3, 0.5}, {2, 0.5}, {-1, 0.5}, {0, 2.5}}},
        // Kurd: low and grave.
        {174.6, 0.44, 0.45, {{5, 1}, {3, 0.5}, {1, 0.5}, {3, 1.5}, {5, 0.5}, {7, 1}, {5, 0.5}, {3, 0.5}, {1, 1}, {0, 2.5}}},
        // Saba: the diminished fourth that sounds like a sigh.
        {261.6, 0.40, 0.5, {{0, 1}, {1.5, 0.5}, {3, 0.5}, {4, 1.5}, {3, 0.5}, {1.5, 0.5}, {3, 1}, {1.5, 0.5}, {0, 2.5}}},
        // Ajam: the major mode, festive.
        {196.0, 0.34, 0.6, {{0, 0.5}, {4, 0.5}, {7, 1}, {9, 0.5}, {7, 1}, {5, 0.5}, {4, 0.5}, {2, 1}, {4, 0.5}, {2, 0.5}, {0, 2.5}}},
        // Shur: the mother mode of Persian song, turning around its fourth.
        {185.0, 0.43, 0.55, {{5, 1}, {3, 0.5}, {1.5, 0.5}, {3, 1}, {5, 0.5}, {7, 1.5}, {5, 0.5}, {3, 0.5}, {1.5, 1}, {0, 2.5}}},
    };
    // clang-format on
}

std::vector<std::pair<std::string, std::vector<double>>> allSounds()
{
    std::vector<std::pair<std::string, std::vector<double>>> sounds;
    int number = 0;
    for (const Phrase& phrase : calls()) {
        std::vector<double> samples = sing(phrase);
        finish(samples, 0.35);
        sounds.emplace_back(std::to_string(number++) + ".wav", std::move(samples));
    }
    const auto add = [&sounds](std::string name, std::vector<double> samples, double reverb) {
        finish(samples, reverb);
        sounds.emplace_back(std::move(name), std::move(samples));
    };
    add("10.wav", tones({{0.0, 0.12, 988.0}, {0.18, 0.12, 988.0}}, 0.5), 0.1);
    std::vector<Tone> siren;
    for (int i = 0; i < 8; ++i)
        siren.push_back({0.3 * i, 0.25, i % 2 == 0 ? 880.0 : 660.0});
    add("alarm.wav", tones(siren, 2.6), 0.15);
    // Tubular-bell partials for the chimes, a glassier set for the occasions.
    const std::vector<double> tubular{1.0, 2.76, 5.40, 8.93};
    add("11.wav", bells({{0.0, 659.3}, {0.45, 523.3}, {0.9, 392.0}}, tubular, 0.9, 3.5), 0.3);
    add("12.wav", bells({{0.0, 196.0}}, {1.0, 2.0, 2.4, 3.0, 4.5}, 1.6, 4.5), 0.4);
    add("times.wav", bells({{0.0, 523.3}, {0.22, 659.3}, {0.44, 784.0}, {0.66, 1046.5}}, {1.0, 3.0, 4.2}, 0.5, 2.5),
        0.25);
    return sounds;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: make_sounds <folder>\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    for (const auto& [name, samples] : allSounds()) {
        if (!writeWav(folder / name, samples)) {
            std::cerr << "make_sounds: cannot write " << (folder / name).string() << '\n';
            return 1;
        }
    }
    return 0;
}
