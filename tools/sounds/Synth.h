// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

namespace kavenda::sounds {

// One note of a sung line: the pitch in semitones above the tonic (halves are the quarter
// tones of the Persian and Arabic modes) and its length in beats.
struct Note {
    double step;
    double beats;
};

// A melodic phrase in one mode, sung by a soft reed-like voice over a quiet drone.
struct Phrase {
    double tonicHz;
    double secondsPerBeat;
    double brightness;  // 0..1: how strong the upper harmonics are
    std::vector<Note> notes;
};

std::vector<double> sing(const Phrase& phrase);

// A struck bell: partials in the given ratios to the fundamental, each decaying on its own.
struct Strike {
    double atSeconds;
    double hz;
};
std::vector<double> bells(const std::vector<Strike>& strikes, const std::vector<double>& ratios, double decaySeconds,
                          double totalSeconds);

// Plain tones switched on and off: beeps and alarms.
struct Tone {
    double atSeconds;
    double seconds;
    double hz;
};
std::vector<double> tones(const std::vector<Tone>& parts, double totalSeconds);

// A little room around a dry sound, then the level brought to a comfortable peak.
void finish(std::vector<double>& samples, double reverbMix);

}  // namespace kavenda::sounds
