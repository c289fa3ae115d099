// Cards are noise through a filter, tones are sines that fade as a struck bar does.
#include "Sounds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <random>
#include <stdexcept>
#include <utility>

namespace Sounds {

namespace {

constexpr double FullTurn = 2 * std::numbers::pi;

class Track {
public:
    explicit Track(double seconds) : samples_(static_cast<std::size_t>(seconds * Rate), 0.0) {}

    /// A rustle: noise around a pitch (hertz) that glides, `width` octaves wide, rising for `attack`
    /// seconds and dying away with the time constant `decay`.
    void Rustle(double start, double attack, double decay, double pitch, double endPitch, double width,
                double level, unsigned seed) {
        constexpr double Softening = 0.55;  // a slope from about 5 kHz upwards
        std::mt19937 random(seed);
        double low = 0;
        double band = 0;
        double softer = 0;
        double soft = 0;
        const double length = attack + 7 * decay;
        for (std::size_t i = 0; i < static_cast<std::size_t>(length * Rate); ++i) {
            const double time = static_cast<double>(i) / Rate;
            const double glide =
                pitch * std::pow(endPitch / pitch, std::min(1.0, time / (attack + 2 * decay)));
            // A state variable filter, of which the band output is taken.
            const double tuning = 2 * std::sin(std::numbers::pi * std::min(glide, Rate / 7.0) / Rate);
            // The engine's own numbers are the same everywhere, which those of a distribution are not.
            const double noise = static_cast<double>(random()) / 2147483648.0 - 1;
            low += tuning * band;
            band += tuning * (noise - low - width * band);
            // Two gentle slopes take off what would hiss.
            softer += Softening * (band - softer);
            soft += Softening * (softer - soft);
            const double envelope = time < attack ? std::pow(std::sin(time / attack * FullTurn / 4), 2)
                                                  : std::exp(-(time - attack) / decay);
            Add(start, i, level * envelope * soft);
        }
    }

    /// A struck wooden bar: a sine and two overtones that die sooner.
    void Bar(double start, double pitch, double decay, double level) {
        constexpr double Attack = 0.004;
        const double length = 7 * decay;
        for (std::size_t i = 0; i < static_cast<std::size_t>(length * Rate); ++i) {
            const double time = static_cast<double>(i) / Rate;
            const double rise = time < Attack ? std::pow(std::sin(time / Attack * FullTurn / 4), 2) : 1.0;
            const double tone =
                std::sin(FullTurn * pitch * time) * std::exp(-time / decay) +
                0.22 * std::sin(FullTurn * pitch * 3.93 * time) * std::exp(-time / (0.22 * decay)) +
                0.12 * std::sin(FullTurn * pitch * 2 * time) * std::exp(-time / (0.6 * decay));
            Add(start, i, level * rise * tone);
        }
    }

    /// A soft low knock, its pitch falling.
    void Knock(double start, double pitch, double decay, double level) {
        double phase = 0;
        constexpr double Attack = 0.003;
        for (std::size_t i = 0; i < static_cast<std::size_t>(7 * decay * Rate); ++i) {
            const double time = static_cast<double>(i) / Rate;
            phase += FullTurn * pitch * (1 + 0.8 * std::exp(-time / 0.012)) / Rate;
            const double rise = time < Attack ? std::pow(std::sin(time / Attack * FullTurn / 4), 2) : 1.0;
            Add(start, i, level * rise * std::sin(phase) * std::exp(-time / decay));
        }
    }

    /// A small room: a few soft echoes.
    void Room(double level) {
        const std::vector<double> dry = samples_;
        for (const auto& [delay, share] :
             {std::pair{0.019, 0.5}, std::pair{0.031, 0.38}, std::pair{0.047, 0.28}, std::pair{0.071, 0.2},
              std::pair{0.103, 0.13}}) {
            const auto offset = static_cast<std::size_t>(delay * Rate);
            for (std::size_t i = offset; i < samples_.size(); ++i)
                samples_[i] += level * share * dry[i - offset];
        }
    }

    /// The samples with this peak, without a step at either end.
    [[nodiscard]] std::vector<double> Finished(double peak) {
        constexpr double FadeIn = 0.002;
        constexpr double FadeOut = 0.03;
        double loudest = 0;
        for (const double sample : samples_) loudest = std::max(loudest, std::abs(sample));
        const auto last = static_cast<double>(samples_.size() - 1) / Rate;
        for (std::size_t i = 0; i < samples_.size(); ++i) {
            const double time = static_cast<double>(i) / Rate;
            const double fade = std::min({1.0, time / FadeIn, (last - time) / FadeOut});
            samples_[i] *= peak / loudest * fade;
        }
        return samples_;
    }

private:
    // Only the start is rounded to a sample: a time rounded anew for each one would double some samples and
    // leave others out, which sounds harsh.
    void Add(double start, std::size_t sample, double value) {
        const auto index = static_cast<std::size_t>(start * Rate + 0.5) + sample;
        if (index < samples_.size()) samples_[index] += value;
    }

    std::vector<double> samples_;
};

// A riffle: the cards of two packets fall ever faster, then the deck is squared.
std::vector<double> Start() {
    Track track(1.05);
    double time = 0.02;
    for (unsigned card = 0; card < 26; ++card) {
        const double share = card / 25.0;
        const double level = 0.5 + 0.5 * std::sin(share * std::numbers::pi);
        track.Rustle(time, 0.0015, 0.009, 3000 + 900 * std::sin(card * 2.4), 1900, 0.8, level, 100 + card);
        track.Knock(time, 190 + 30 * (card % 3), 0.008, 0.09 * level);
        time += 0.034 - 0.016 * share + 0.003 * std::sin(card * 5.1);
    }
    track.Rustle(0.70, 0.07, 0.045, 900, 2600, 1.1, 0.36, 7);
    track.Rustle(0.86, 0.002, 0.018, 1800, 1200, 0.9, 0.8, 8);
    track.Knock(0.86, 150, 0.03, 0.4);
    track.Room(0.25);
    return track.Finished(0.5);
}

// A card slides off the pile.
std::vector<double> CardUp() {
    Track track(0.16);
    track.Rustle(0.004, 0.028, 0.014, 1500, 4200, 0.9, 0.8, 21);
    track.Rustle(0.036, 0.0015, 0.008, 3600, 2800, 0.8, 0.6, 22);
    return track.Finished(0.36);
}

// A card falls on the cloth.
std::vector<double> CardDown() {
    Track track(0.2);
    track.Rustle(0.004, 0.012, 0.012, 3000, 1500, 1.0, 0.5, 31);
    track.Rustle(0.022, 0.0015, 0.012, 1900, 1100, 0.9, 0.9, 32);
    track.Knock(0.022, 140, 0.022, 0.75);
    return track.Finished(0.42);
}

// A card goes home by itself: it lands, and a bar rings softly.
std::vector<double> AutoPlay() {
    Track track(0.5);
    track.Rustle(0.004, 0.02, 0.012, 1800, 3400, 0.9, 0.3, 41);
    track.Rustle(0.03, 0.0015, 0.009, 2300, 1500, 0.9, 0.4, 42);
    track.Bar(0.032, 783.99, 0.085, 0.5);
    track.Bar(0.032, 1174.66, 0.06, 0.16);
    track.Room(0.2);
    return track.Finished(0.4);
}

// A card slides back: the same rustle downwards, and two falling notes.
std::vector<double> Undo() {
    Track track(0.46);
    track.Rustle(0.004, 0.035, 0.024, 3600, 1300, 0.9, 0.45, 51);
    track.Bar(0.03, 587.33, 0.06, 0.4);
    track.Bar(0.11, 440.0, 0.08, 0.44);
    track.Room(0.2);
    return track.Finished(0.38);
}

// A rising chord over a bass, and a glitter on top.
std::vector<double> Win() {
    Track track(1.98);
    constexpr std::array<double, 7> Notes = {392.00, 493.88, 587.33, 783.99, 987.77, 1174.66, 1567.98};
    for (std::size_t i = 0; i < Notes.size(); ++i) {
        track.Bar(0.02 + 0.085 * static_cast<double>(i), Notes[i], 0.2, 0.45);
    }
    track.Bar(0.02, 196.0, 0.26, 0.35);
    for (const double pitch : {392.0, 587.33, 783.99, 987.77}) track.Bar(0.78, pitch, 0.3, 0.34);
    track.Bar(0.78, 196.0, 0.32, 0.34);
    for (int i = 0; i < 5; ++i) {
        constexpr std::array<double, 5> Glitter = {1567.98, 1975.53, 2349.32, 1975.53, 3135.96};
        track.Bar(0.9 + 0.07 * i, Glitter[static_cast<std::size_t>(i)], 0.09, 0.13);
    }
    track.Room(0.3);
    return track.Finished(0.55);
}

struct SoundEntry {
    std::string_view Name;
    std::vector<double> (*Make)();
};

constexpr std::array<SoundEntry, 6> All = {{
    {"START", Start},
    {"CARDUP", CardUp},
    {"CARDDOWN", CardDown},
    {"AUTOPLAY", AutoPlay},
    {"UNDO", Undo},
    {"WIN", Win},
}};

}  // namespace

std::span<const std::string_view> Names() {
    static const auto List = [] {
        std::array<std::string_view, All.size()> names;
        std::transform(All.begin(), All.end(), names.begin(),
                       [](const SoundEntry& sound) { return sound.Name; });
        return names;
    }();
    return List;
}

std::vector<double> Sound(std::string_view name) {
    const auto sound =
        std::find_if(All.begin(), All.end(), [name](const SoundEntry& entry) { return entry.Name == name; });
    if (sound == All.end()) throw std::out_of_range("no such sound");
    return sound->Make();
}

}  // namespace Sounds
