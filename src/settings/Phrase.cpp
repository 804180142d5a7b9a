#include "settings/Phrase.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace wayloom {

namespace {

class English : public Wording {
 public:
  std::string text(const char* key) const override { return key; }
  std::string number(const Phrase::Number& number) const override {
    // Wide enough for the greatest double.
    std::array<char, 400> digits{};
    std::snprintf(digits.data(), digits.size(), "%.*f", number.decimals, number.value);
    return digits.data();
  }
};

std::string said(const Phrase::Moment& moment) {
  const auto seconds = static_cast<std::time_t>(moment.secondsSince1970);
  std::tm parts{};
  std::array<char, 40> text{};
  const char* form = moment.isAnotherDay ? "%Y-%m-%d %H:%M" : "%H:%M";
  if (!localtime_r(&seconds, &parts)) return std::to_string(seconds);
  std::strftime(text.data(), text.size(), form, &parts);
  return text.data();
}

std::string said(const Phrase::Gap& gap, const Wording& wording) {
  if (const auto* number = std::get_if<Phrase::Number>(&gap)) return wording.number(*number);
  if (const auto* moment = std::get_if<Phrase::Moment>(&gap)) return said(*moment);
  if (const auto* phrase = std::get_if<Phrase>(&gap)) return said(*phrase, wording);
  return std::get<std::string>(gap);
}

}  // namespace

std::string said(const Phrase& phrase, const Wording& wording) {
  const std::string text = wording.text(phrase.key);
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char digit = text[at] == '%' && at + 1 < text.size() ? text[at + 1] : '0';
    const auto gap = static_cast<std::size_t>(digit - '1');
    if (digit >= '1' && gap < phrase.gaps.size()) {
      result += said(phrase.gaps[gap], wording);
      ++at;
    } else {
      result += text[at];
    }
  }
  return result;
}

std::string englishText(const Phrase& phrase) {
  return said(phrase, English());
}

Phrase distancePhrase(double metres) {
  if (metres < 1000) return Phrase{"%1 m", {Phrase::Number{metres, 0}}};
  return Phrase{"%1 km", {Phrase::Number{metres / 1000, 1}}};
}

Phrase durationPhrase(double minutes) {
  if (minutes < 60) return Phrase{"%1 min", {Phrase::Number{minutes, 0}}};
  const double hours = std::floor(minutes / 60);
  return Phrase{"%1 h %2 min", {Phrase::Number{hours, 0}, Phrase::Number{minutes - 60 * hours, 0}}};
}

}  // namespace wayloom
