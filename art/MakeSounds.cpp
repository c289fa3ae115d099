// Writes the sounds as wave files into a folder: sounds/START.wav …, 16 bits, one channel.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "Sounds.h"

namespace {

// Wave files store the low byte first, on every machine.
void Append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

std::string WaveFile(const std::vector<double>& samples) {
    constexpr std::uint32_t BytesPerSample = 2;
    const auto size = static_cast<std::uint32_t>(samples.size()) * BytesPerSample;
    std::string bytes = "RIFF";
    Append(bytes, 36 + size, 4);
    bytes += "WAVEfmt ";
    Append(bytes, 16, 4);  // of what follows about the format
    Append(bytes, 1, 2);   // plain samples
    Append(bytes, 1, 2);   // channels
    Append(bytes, Sounds::Rate, 4);
    Append(bytes, Sounds::Rate * BytesPerSample, 4);
    Append(bytes, BytesPerSample, 2);
    Append(bytes, 8 * BytesPerSample, 2);
    bytes += "data";
    Append(bytes, size, 4);
    for (const double sample : samples) {
        Append(bytes, static_cast<std::uint32_t>(std::lround(sample * 32767)), BytesPerSample);
    }
    return bytes;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: " << arguments[0] << " <folder>\n";
        return EXIT_FAILURE;
    }
    try {
        const std::filesystem::path folder = std::filesystem::path(arguments[1]) / "sounds";
        std::filesystem::create_directories(folder);
        for (const std::string_view name : Sounds::Names()) {
            const std::filesystem::path path = folder / (std::string(name) + ".wav");
            std::ofstream file(path, std::ios::binary);
            file << WaveFile(Sounds::Sound(name));
            file.close();
            if (!file) throw std::runtime_error("cannot write " + path.string());
        }
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
