#include "settings/TrimmedText.h"

#include <array>

namespace wayloom {

namespace {

using namespace std::string_view_literals;

// The UTF-8 forms of everything that is trimmed.
constexpr std::array kBlanks = {
    " "sv,
    "\t"sv,
    "\n"sv,
    "\v"sv,
    "\f"sv,
    "\r"sv,
    "\xC2\x85"sv,
    "\xC2\xA0"sv,
    "\xE1\x9A\x80"sv,
    "\xE2\x80\x80"sv,
    "\xE2\x80\x81"sv,
    "\xE2\x80\x82"sv,
    "\xE2\x80\x83"sv,
    "\xE2\x80\x84"sv,
    "\xE2\x80\x85"sv,
    "\xE2\x80\x86"sv,
    "\xE2\x80\x87"sv,
    "\xE2\x80\x88"sv,
    "\xE2\x80\x89"sv,
    "\xE2\x80\x8A"sv,
    "\xE2\x80\xA8"sv,
    "\xE2\x80\xA9"sv,
    "\xE2\x80\xAF"sv,
    "\xE2\x81\x9F"sv,
    "\xE3\x80\x80"sv,
};

std::size_t blankAtStart(std::string_view text) {
  for (std::string_view blank : kBlanks) {
    if (text.starts_with(blank)) return blank.size();
  }
  return 0;
}

std::size_t blankAtEnd(std::string_view text) {
  for (std::string_view blank : kBlanks) {
    if (text.ends_with(blank)) return blank.size();
  }
  return 0;
}

}  // namespace

std::string trimmedText(std::string_view text) {
  while (const std::size_t length = blankAtStart(text)) text.remove_prefix(length);
  while (const std::size_t length = blankAtEnd(text)) text.remove_suffix(length);
  return std::string(text);
}

}  // namespace wayloom
