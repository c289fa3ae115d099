// UTF-8 and Windows-1252.
#include "engine/state/mText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <utility>

#include <locale.h>

namespace {

// The characters of the bytes 80 to 9F; the five bytes without a character keep their number.
constexpr std::array<char32_t, 32> Windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr unsigned Byte(char c) { return static_cast<unsigned char>(c); }
constexpr bool Continues(char c) { return (Byte(c) & 0xC0U) == 0x80U; }

/// The length of the character at the start of the text; 0 where it is not valid UTF-8.
std::size_t CharacterLength(std::string_view text) {
    const unsigned first = Byte(text[0]);
    if (first < 0x80) return 1;
    const std::size_t length = first >= 0xC2 && first < 0xE0 ? 2 : first >= 0xE0 && first < 0xF0 ? 3 : 4;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!Continues(text[i])) return 0;
    }
    const unsigned second = Byte(text[1]);
    // Forms longer than needed, the surrogates, and what lies above the last code point.
    if ((first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F)) return 0;
    if ((first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F)) return 0;
    return length;
}

/// The code point of the character at the start of the text, which is that many bytes long.
char32_t CodePoint(std::string_view text, std::size_t length) {
    if (length <= 1) return Byte(text[0]);
    char32_t character = Byte(text[0]) & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) character = character << 6 | (Byte(text[i]) & 0x3FU);
    return character;
}

/// The system's tables of characters, whatever language the program was started in.
bool HasNoWidth(char32_t character) {
    static const locale_t tables = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (!tables) return false;
    const locale_t before = ::uselocale(tables);
    const int width = ::wcwidth(static_cast<wchar_t>(character));
    ::uselocale(before);
    return width == 0;
}

/// Takes one character after another off a text, with all that belongs to it.
class Characters {
public:
    explicit Characters(std::string_view text) : rest_(text) {}

    [[nodiscard]] std::string_view Rest() const { return rest_; }
    void Take() {
        char32_t before = TakeCodePoint();
        bool pair = IsFlagLetter(before);
        bool seen = before < 0x80 || !HasNoWidth(before);  // a mark before it belongs to a character, too
        while (!rest_.empty() && (!seen || Byte(rest_[0]) >= 0x80)) {
            const char32_t next = CodePoint(rest_, NextLength());
            const bool flag = std::exchange(pair, false) && IsFlagLetter(next);
            const bool added = flag || before == Joiner || IsSkinColor(next) || HasNoWidth(next);
            if (seen && !added) break;
            seen = seen || !added;
            before = TakeCodePoint();
        }
    }

private:
    static constexpr char32_t Joiner = 0x200D;  // makes one picture of two
    static bool IsFlagLetter(char32_t character) { return character >= 0x1F1E6 && character <= 0x1F1FF; }
    static bool IsSkinColor(char32_t character) { return character >= 0x1F3FB && character <= 0x1F3FF; }

    [[nodiscard]] std::size_t NextLength() const { return std::max<std::size_t>(1, CharacterLength(rest_)); }
    char32_t TakeCodePoint() {
        const std::size_t length = NextLength();
        const char32_t character = CodePoint(rest_, length);
        rest_.remove_prefix(length);
        return character;
    }

    std::string_view rest_;
};

}  // namespace

namespace mText {

bool IsAscii(std::string_view text) {
    constexpr std::uint64_t HighBits = 0x8080808080808080U;
    std::size_t at = 0;
    for (; at + sizeof(std::uint64_t) <= text.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + at, sizeof word);
        if ((word & HighBits) != 0) return false;
    }
    for (; at < text.size(); ++at) {
        if (Byte(text[at]) >= 0x80) return false;
    }
    return true;
}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

void AppendUtf8(std::string& text, char32_t character) {
    const auto put = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80) {
        put(character);
        return;
    }
    if (character < 0x800) {
        put(0xC0 | character >> 6);
    } else {
        if (character < 0x10000) {
            put(0xE0 | character >> 12);
        } else {
            put(0xF0 | character >> 18);
            put(0x80 | (character >> 12 & 0x3F));
        }
        put(0x80 | (character >> 6 & 0x3F));
    }
    put(0x80 | (character & 0x3F));
}

std::string FromFile(std::string_view bytes) {
    if (IsUtf8(bytes)) return std::string(bytes);
    std::string text;
    for (const char c : bytes) {
        const unsigned byte = Byte(c);
        AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? Windows1252.at(byte - 0x80) : byte);
    }
    return text;
}

int Length(std::string_view text) {
    if (IsAscii(text)) return static_cast<int>(text.size());
    int length = 0;
    for (Characters characters(text); !characters.Rest().empty(); characters.Take()) ++length;
    return length;
}

std::string_view First(std::string_view text, int characters) {
    if (IsAscii(text)) return text.substr(0, static_cast<std::size_t>(characters));
    Characters rest(text);
    while (!rest.Rest().empty() && --characters >= 0) rest.Take();
    return text.substr(0, text.size() - rest.Rest().size());
}

bool IsBlank(std::string_view text) {
    // Beside what has no width: no-break, typographic and ideographic blanks, and letters drawn as nothing.
    constexpr std::u32string_view Blanks = U" \t\u00A0\u1680\u2028\u2029\u202F\u205F\u2800\u3000\u3164";
    while (!text.empty()) {
        const std::size_t length = std::max<std::size_t>(1, CharacterLength(text));
        const char32_t c = CodePoint(text, length);
        const bool typographic = c >= 0x2000 && c <= 0x200F;
        if (Blanks.find(c) == std::u32string_view::npos && !typographic && !HasNoWidth(c)) return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string Shown(std::string_view text) {
    constexpr int Most = 60;
    const std::string_view first = First(text, Most);
    std::string shown;
    for (const char c : FromFile(first)) {
        const bool control = Byte(c) < 0x20 || Byte(c) == 0x7F;
        shown += control ? '?' : c;
    }
    return first.size() < text.size() ? shown + "…" : shown;
}

bool HasControl(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const unsigned byte = Byte(text[at]);
        if (byte < 0x20 || byte == 0x7F) return true;
        const bool c1 = byte == 0xC2 && at + 1 < text.size() && Byte(text[at + 1]) < 0xA0;
        if (c1) return true;
    }
    return false;
}

}  // namespace mText
