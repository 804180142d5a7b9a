#include <cstdint>
#include <string_view>

#include "places/LocationClass.h"

namespace wayloom {

namespace {

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
}

void appendUtf8(std::string& text, std::uint32_t point) {
  if (point >= 0xD800 && point < 0xE000) point = 0xFFFD;
  if (point < 0x80) {
    text += static_cast<char>(point);
    return;
  }
  const int more = point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
  constexpr std::uint8_t kLead[] = {0, 0xC0, 0xE0, 0xF0};
  text += static_cast<char>(kLead[more] | (point >> (6 * more)));
  for (int shift = 6 * (more - 1); shift >= 0; shift -= 6) {
    text += static_cast<char>(0x80 | ((point >> shift) & 0x3F));
  }
}

int digitOf(char character, int base) {
  int digit = base;
  if (character >= '0' && character <= '9') digit = character - '0';
  if (character >= 'a' && character <= 'f') digit = character - 'a' + 10;
  if (character >= 'A' && character <= 'F') digit = character - 'A' + 10;
  return digit < base ? digit : -1;
}

/// Reads the inside of a quoted text of an old-style property list.
class QuotedText {
 public:
  explicit QuotedText(std::string_view text) : mText(text) {}

  /// None when an unescaped quote ends the text early or an escape is cut short.
  std::optional<std::string> read() {
    std::string result;
    while (mAt < mText.size()) {
      const char character = mText[mAt++];
      if (character == '"') return std::nullopt;
      if (character != '\\') {
        result += character;
      } else if (!readEscape(result)) {
        return std::nullopt;
      }
    }
    return result;
  }

 private:
  bool readEscape(std::string& result) {
    if (mAt == mText.size()) return false;
    const char character = mText[mAt];
    if (character == 'U') {
      ++mAt;
      appendUtf8(result, readUtf16());
      return true;
    }
    if (digitOf(character, 8) >= 0) {
      appendUtf8(result, readDigits(8, 3));
      return true;
    }
    ++mAt;
    constexpr std::string_view kNames = "abfnrtv";
    constexpr std::string_view kCharacters = "\a\b\f\n\r\t\v";
    const std::size_t name = kNames.find(character);
    result += name == std::string_view::npos ? character : kCharacters[name];
    return true;
  }

  std::uint32_t readDigits(int base, int most) {
    std::uint32_t value = 0;
    for (int count = 0; count < most && mAt < mText.size(); ++count, ++mAt) {
      const int digit = digitOf(mText[mAt], base);
      if (digit < 0) break;
      value = value * base + digit;
    }
    return value;
  }

  /// One character behind "\U": four hexadecimal digits, or a pair of surrogates.
  std::uint32_t readUtf16() {
    const std::uint32_t high = readDigits(16, 4);
    if (high < 0xD800 || high >= 0xDC00 || !mText.substr(mAt).starts_with("\\U")) return high;
    const std::size_t before = mAt;
    mAt += 2;
    const std::uint32_t low = readDigits(16, 4);
    if (low >= 0xDC00 && low < 0xE000) return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
    mAt = before;
    return high;
  }

  std::string_view mText;
  std::size_t mAt = 0;
};

}  // namespace

std::optional<std::string> LocationClass::replaceUnicode(const std::string& text) {
  std::string quoted = text;
  replaceAll(quoted, "\\u", "\\U");
  replaceAll(quoted, "\"", "\\\"");
  auto result = QuotedText(quoted).read();
  if (result) replaceAll(*result, "\\r\\n", "\n");
  return result;
}

}  // namespace wayloom
