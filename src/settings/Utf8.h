#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wayloom {

/// Stands for bytes that are no character.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// One step through a text: the character at a place and how many bytes it takes. Where the bytes
/// are not UTF-8 (cut short, overlong, a surrogate, beyond U+10FFFF) `valid` is false and the step
/// takes one byte.
struct Utf8Step {
  char32_t character = kReplacementCharacter;
  std::size_t length = 1;
  bool valid = false;
};

/// Reads the character at `position`, which must be within `text`. Any thread may call it.
Utf8Step utf8Step(std::string_view text, std::size_t position);

/// Appends a character, which must be a Unicode scalar value.
void appendUtf8(std::string& text, char32_t character);

}  // namespace wayloom
