// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/sounds/Synth.h"

#include "tools/sounds/WavFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace kavenda::sounds {

namespace {

constexpr double twoPi = 2.0 * std::numbers::pi;
constexpr double rate = sampleRate;

std::size_t sampleAt(double seconds)
{
    return static_cast<std::size_t>(std::max(0.0, seconds) * rate);
}

double smoothstep(double x)
{
    x = std::clamp(x, 0.0, 1.0);
    return x * x * (3.0 - 2.0 * x);
}

// A feedback comb with a damped loop, the body of a small Schroeder room.
class Comb {
public:
    explicit Comb(std::size_t delay) : buffer_(delay, 0.0) {}
    double process(double in)
    {
        const double out = buffer_[index_];
        stored_ = out * 0.8 + stored_ * 0.2;
        buffer_[index_] = in + stored_ * 0.74;
        index_ = (index_ + 1) % buffer_.size();
        return out;
    }

private:
    std::vector<double> buffer_;
    std::size_t index_ = 0;
    double stored_ = 0.0;
};

class AllPass {
public:
    explicit AllPass(std::size_t delay) : buffer_(delay, 0.0) {}
    double process(double in)
    {
        const double delayed = buffer_[index_];
        const double out = delayed - 0.5 * in;
        buffer_[index_] = in + 0.5 * delayed;
        index_ = (index_ + 1) % buffer_.size();
        return out;
    }

private:
    std::vector<double> buffer_;
    std::size_t index_ = 0;
};

}  // namespace

std::vector<double> sing(const Phrase& phrase)
{
    constexpr double glide = 0.07;
    constexpr double tail = 1.4;
    std::vector<double> starts;
    double length = 0.0;
    for (const Note& note : phrase.notes) {
        starts.push_back(length);
        length += note.beats * phrase.secondsPerBeat;
    }
    std::vector<double> out(sampleAt(length + tail), 0.0);
    double phase = 0.0;
    double dronePhase = 0.0;
    std::size_t current = 0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const double t = static_cast<double>(i) / rate;
        while (current + 1 < phrase.notes.size() && t >= starts[current + 1])
            ++current;
        const double intoNote = t - starts[current];
        const double previousStep = current > 0 ? phrase.notes[current - 1].step : phrase.notes[current].step;
        const double step = previousStep + (phrase.notes[current].step - previousStep) * smoothstep(intoNote / glide);
        // The vibrato grows into a held note, as a singer's does.
        const double vibrato = 0.22 * smoothstep((intoNote - 0.15) / 0.5) * std::sin(twoPi * 5.3 * t);
        const double hz = phrase.tonicHz * std::pow(2.0, (step + vibrato) / 12.0);
        phase += twoPi * hz / rate;

        // The voice softens a little around each change of note (smoothly, or it clicks); the
        // line breathes in at the start and out at the end.
        const double toNext = current + 1 < starts.size() ? starts[current + 1] - t : intoNote;
        const double fromChange = std::min(intoNote, toNext) / 0.035;
        const double noteLevel = 1.0 - 0.35 * std::exp(-fromChange * fromChange);
        const double line = smoothstep(t / 0.15) * (1.0 - smoothstep((t - length) / 0.6));
        double voice = 0.0;
        double weight = 1.0;
        for (int h = 1; h <= 8; ++h) {
            voice += weight / h * std::sin(phase * h);
            weight *= phrase.brightness;
        }

        dronePhase += twoPi * (phrase.tonicHz / 2.0) / rate;
        const double drone =
            (std::sin(dronePhase) + 0.4 * std::sin(2.0 * dronePhase) + 0.25 * std::sin(3.0 * dronePhase)) * 0.09
            * smoothstep(t / 0.9) * (1.0 - smoothstep((t - length - 0.2) / 1.1));
        out[i] = 0.55 * voice * noteLevel * line + drone;
    }
    return out;
}

std::vector<double> bells(const std::vector<Strike>& strikes, const std::vector<double>& ratios, double decaySeconds,
                          double totalSeconds)
{
    std::vector<double> out(sampleAt(totalSeconds), 0.0);
    for (const Strike& strike : strikes) {
        for (std::size_t j = 0; j < ratios.size(); ++j) {
            const double amplitude = 1.0 / std::pow(static_cast<double>(j + 1), 0.7);
            const double decay = decaySeconds / (1.0 + 0.6 * static_cast<double>(j));
            const double hz = strike.hz * ratios[j];
            for (std::size_t i = sampleAt(strike.atSeconds); i < out.size(); ++i) {
                const double dt = static_cast<double>(i) / rate - strike.atSeconds;
                if (dt > decay * 7.0)
                    break;
                out[i] += amplitude * smoothstep(dt / 0.004) * std::exp(-dt / decay) * std::sin(twoPi * hz * dt);
            }
        }
    }
    return out;
}

std::vector<double> tones(const std::vector<Tone>& parts, double totalSeconds)
{
    constexpr double fadeSeconds = 0.008;
    std::vector<double> out(sampleAt(totalSeconds), 0.0);
    for (const Tone& tone : parts) {
        const std::size_t end = std::min(out.size(), sampleAt(tone.atSeconds + tone.seconds));
        for (std::size_t i = sampleAt(tone.atSeconds); i < end; ++i) {
            const double dt = static_cast<double>(i) / rate - tone.atSeconds;
            const double edge = smoothstep(dt / fadeSeconds) * smoothstep((tone.seconds - dt) / fadeSeconds);
            out[i] += edge * (std::sin(twoPi * tone.hz * dt) + 0.2 * std::sin(2.0 * twoPi * tone.hz * dt));
        }
    }
    return out;
}

void finish(std::vector<double>& samples, double reverbMix)
{
    std::array<Comb, 4> combs{Comb(558), Comb(594), Comb(638), Comb(678)};
    std::array<AllPass, 2> allPasses{AllPass(278), AllPass(110)};
    for (double& sample : samples) {
        double wet = 0.0;
        for (Comb& comb : combs)
            wet += comb.process(sample);
        for (AllPass& pass : allPasses)
            wet = pass.process(wet);
        sample = (1.0 - reverbMix) * sample + reverbMix * 0.25 * wet;
    }
    double peak = 1e-9;
    for (double sample : samples)
        peak = std::max(peak, std::abs(sample));
    const std::size_t fade = std::min(samples.size(), sampleAt(0.05));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const std::size_t left = samples.size() - i;
        const double tail = left < fade ? static_cast<double>(left) / static_cast<double>(fade) : 1.0;
        samples[i] *= 0.85 / peak * tail;
    }
}

}  // namespace kavenda::sounds
