#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace wayloom {

/// A text for a person, decided without knowing the language: a key of the string table, which is
/// the English text, and what stands in its gaps "%1", "%2" and so on. A value; any thread may use
/// it.
struct Phrase {
  struct Number {
    double value = 0;
    int decimals = 0;
  };
  /// A time of day in local time, to the minute: 14:05 in every language, or 2026-11-24 14:05 where
  /// it is not today.
  struct Moment {
    double secondsSince1970 = 0;
    bool isAnotherDay = false;
  };
  struct Gap;

  explicit Phrase(const char* phraseKey);
  Phrase(const char* phraseKey, std::vector<Gap> inGaps);

  const char* key;
  std::vector<Gap> gaps;
};

/// A text stands there as it is, a phrase as the language says it.
struct Phrase::Gap : std::variant<std::string, Number, Moment, Phrase> {
  using variant::variant;
};

inline Phrase::Phrase(const char* phraseKey) : key(phraseKey) {}
inline Phrase::Phrase(const char* phraseKey, std::vector<Gap> inGaps)
    : key(phraseKey), gaps(std::move(inGaps)) {}

/// How a language says the parts of a phrase, UTF-8. Numbers are not grouped.
class Wording {
 public:
  virtual ~Wording() = default;
  virtual std::string text(const char* key) const = 0;
  virtual std::string number(const Phrase::Number& number) const = 0;
};

std::string said(const Phrase& phrase, const Wording& wording);
/// With the keys as they are and a decimal point.
std::string englishText(const Phrase& phrase);

/// "850 m" or "12.3 km".
Phrase distancePhrase(double metres);
/// "6 min" or "1 h 6 min".
Phrase durationPhrase(double minutes);

}  // namespace wayloom
