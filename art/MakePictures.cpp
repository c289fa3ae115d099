// Writes all pictures as SVG files into a folder: cards/1.svg … cards-four/1.svg … backs/501.svg …
// marks/0.svg … icons/help.svg.
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "Pictures.h"
#include "Shapes.h"

namespace {

void Write(const std::filesystem::path& path, const std::string& text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path.string());
}

void WriteAll(const std::filesystem::path& folder) {
    constexpr int LastFace = 52;
    constexpr int LastMark = 17;
    for (int number = 1; number <= LastFace; ++number) {
        const std::string file = std::to_string(number) + ".svg";
        Write(folder / "cards" / file, Pictures::Face(number, Shapes::Colors::Two));
        Write(folder / "cards-four" / file, Pictures::Face(number, Shapes::Colors::Four));
    }
    for (const int number : Pictures::BackNumbers()) {
        Write(folder / "backs" / (std::to_string(number) + ".svg"), Pictures::Back(number));
    }
    for (int number = 0; number <= LastMark; ++number) {
        Write(folder / "marks" / (std::to_string(number) + ".svg"), Pictures::Mark(number));
    }
    for (const std::string_view name : Pictures::IconNames()) {
        Write(folder / "icons" / (std::string(name) + ".svg"), Pictures::Icon(name));
    }
    Write(folder / "icons" / "tarnival.svg", Pictures::ApplicationIcon());
    Write(folder / "icons" / "tarnival-small.svg", Pictures::SmallApplicationIcon());
    Write(folder / "splash.svg", Pictures::Splash());
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: " << arguments[0] << " <folder>\n";
        return EXIT_FAILURE;
    }
    try {
        WriteAll(arguments[1]);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
