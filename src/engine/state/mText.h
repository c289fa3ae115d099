// Text in UTF-8: what files hold, and how many characters a text has.
#pragma once

#include <string>
#include <string_view>

namespace mText {

[[nodiscard]] bool IsAscii(std::string_view text);
[[nodiscard]] bool IsUtf8(std::string_view text);
/// Valid UTF-8 as it stands; any other bytes read as Windows-1252, in which every byte is a character.
[[nodiscard]] std::string FromFile(std::string_view bytes);

/// Characters as the eye counts them: accents, marks of writing direction and the like are part of the
/// character before them.
[[nodiscard]] int Length(std::string_view text);
[[nodiscard]] std::string_view First(std::string_view text, int characters);

void AppendUtf8(std::string& text, char32_t character);

/// Whether nothing of a text can be seen: only blanks of any kind, or nothing at all.
[[nodiscard]] bool IsBlank(std::string_view text);

/// A text that somebody else has written, fit for a message: its beginning, without control characters.
[[nodiscard]] std::string Shown(std::string_view text);

/// Whether a text holds a control character (C0, DEL or C1).
[[nodiscard]] bool HasControl(std::string_view text);

}  // namespace mText
