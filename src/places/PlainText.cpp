#include <iterator>

#include "places/DegreesText.h"
#include "settings/Utf8.h"

namespace wayloom {

namespace {

constexpr std::size_t kMostBytes = 4096;

struct Replacement {
  char32_t first, last;
  /// What the first becomes; those after it what follows. 0 for nothing.
  char32_t becomes;
  /// All become the same.
  bool isOne;
};

// Sorted by what they become; blocks of digits run from zero to nine.
constexpr Replacement kReplacements[] = {
    {0x0660, 0x0669, U'0', false},  // Arabic digits
    {0x06F0, 0x06F9, U'0', false},  // Persian digits
    {0x0966, 0x096F, U'0', false},  // Devanagari digits
    {0xFF01, 0xFF06, U'!', false},  // full-width forms, up to the apostrophe
    {0xFF08, 0xFF5E, U'(', false}, {U'\t', U'\r', U' ', true},
    {0x0085, 0x0085, U' ', true},  {0x00A0, 0x00A0, U' ', true},
    {0x2000, 0x200A, U' ', true},  {0x2028, 0x2029, U' ', true},
    {0x202F, 0x202F, U' ', true},  {0x205F, 0x205F, U' ', true},
    {0x3000, 0x3000, U' ', true},  {0x2010, 0x2015, U'-', true},
    {0x2212, 0x2212, U'-', true},  {0xFE63, 0xFE63, U'-', true},
    {0x066B, 0x066B, U'.', true},  // Arabic decimal separator
    {0x060C, 0x060C, U',', true},  {0x3001, 0x3001, U',', true},
    {0x00BA, 0x00BA, U'°', true},  {0x02DA, 0x02DA, U'°', true},
    {0x2218, 0x2218, U'°', true},  {0x5EA6, 0x5EA6, U'°', true},  // 度
    {U'`', U'`', U'\'', true},     {0x00B4, 0x00B4, U'\'', true},
    {0x02B9, 0x02B9, U'\'', true}, {0x02BC, 0x02BC, U'\'', true},
    {0x2018, 0x201B, U'\'', true}, {0x2032, 0x2032, U'\'', true},
    {0xFF07, 0xFF07, U'\'', true}, {0x5206, 0x5206, U'\'', true},  // 分
    {0x02BA, 0x02BA, U'"', true},  {0x02DD, 0x02DD, U'"', true},
    {0x201C, 0x201F, U'"', true},  {0x2033, 0x2033, U'"', true},
    {0x3003, 0x3003, U'"', true},  {0x79D2, 0x79D2, U'"', true},  // 秒
    {0x00AD, 0x00AD, 0, true},     {0x061C, 0x061C, 0, true},
    {0x200B, 0x200F, 0, true},     {0x202A, 0x202E, 0, true},
    {0x2060, 0x2069, 0, true},     {0xFE0E, 0xFE0F, 0, true},
    {0xFEFF, 0xFEFF, 0, true},
};

char32_t plain(char32_t character) {
  for (const Replacement& range : kReplacements) {
    if (character < range.first || character > range.last) continue;
    return range.isOne ? range.becomes : range.becomes + (character - range.first);
  }
  return character;
}

}  // namespace

std::optional<std::u32string> plainText(std::string_view text) {
  if (text.size() > kMostBytes) return std::nullopt;
  std::u32string result;
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Step step = utf8Step(text, at);
    if (!step.valid || step.character == 0) return std::nullopt;
    at += step.length;
    const char32_t character = plain(step.character);
    if (character == U'\'' && result.ends_with(U'\'')) {
      result.back() = U'"';  // Two marks of minutes are one of seconds.
    } else if (character != 0) {
      result += character;
    }
  }
  return result;
}

}  // namespace wayloom
