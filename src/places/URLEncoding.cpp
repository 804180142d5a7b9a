#include "places/URLEncoding.h"

namespace wayloom {

std::string encodedURLParameterString(std::string_view text) {
  constexpr std::string_view kUnchanged =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.~";
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(text.size());
  for (const char letter : text) {
    if (kUnchanged.find(letter) != std::string_view::npos) {
      encoded += letter;
      continue;
    }
    const auto byte = static_cast<unsigned char>(letter);
    encoded += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
  }
  return encoded;
}

}  // namespace wayloom
