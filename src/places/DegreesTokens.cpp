#include "places/DegreesTokens.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace wayloom {

namespace {

using Kind = DegreesToken::Kind;

struct Word {
  std::u32string_view text;
  Kind kind;
  Axis axis;
  /// The sign that a point of the compass gives; the unit of a mark.
  double value = 1;
};

constexpr auto kCompass = Kind::Compass;
constexpr auto kLabel = Kind::Label;
constexpr auto kLatitude = Axis::Latitude;
constexpr auto kLongitude = Axis::Longitude;

// What stands beside the numbers of positions in the program's languages, in small letters.
constexpr Word kWords[] = {
    {U"n", kCompass, kLatitude},
    {U"north", kCompass, kLatitude},
    {U"nord", kCompass, kLatitude},
    {U"norden", kCompass, kLatitude},
    {U"norte", kCompass, kLatitude},
    {U"北", kCompass, kLatitude},
    {U"北纬", kCompass, kLatitude},
    {U"北緯", kCompass, kLatitude},
    {U"s", kCompass, kLatitude, -1},
    {U"south", kCompass, kLatitude, -1},
    {U"süd", kCompass, kLatitude, -1},
    {U"süden", kCompass, kLatitude, -1},
    {U"sud", kCompass, kLatitude, -1},
    {U"sur", kCompass, kLatitude, -1},
    {U"南", kCompass, kLatitude, -1},
    {U"南纬", kCompass, kLatitude, -1},
    {U"南緯", kCompass, kLatitude, -1},
    {U"e", kCompass, kLongitude},
    {U"east", kCompass, kLongitude},
    {U"ost", kCompass, kLongitude},
    {U"osten", kCompass, kLongitude},
    {U"est", kCompass, kLongitude},
    {U"este", kCompass, kLongitude},
    {U"东", kCompass, kLongitude},
    {U"東", kCompass, kLongitude},
    {U"东经", kCompass, kLongitude},
    {U"東経", kCompass, kLongitude},
    {U"東經", kCompass, kLongitude},
    {U"w", kCompass, kLongitude, -1},
    {U"west", kCompass, kLongitude, -1},
    {U"westen", kCompass, kLongitude, -1},
    {U"ouest", kCompass, kLongitude, -1},
    {U"oeste", kCompass, kLongitude, -1},
    {U"西", kCompass, kLongitude, -1},
    {U"西经", kCompass, kLongitude, -1},
    {U"西経", kCompass, kLongitude, -1},
    {U"西經", kCompass, kLongitude, -1},
    {U"lat", kLabel, kLatitude},
    {U"latitude", kLabel, kLatitude},
    {U"latitud", kLabel, kLatitude},
    {U"breite", kLabel, kLatitude},
    {U"breitengrad", kLabel, kLatitude},
    {U"纬°", kLabel, kLatitude},
    {U"緯°", kLabel, kLatitude},
    {U"lon", kLabel, kLongitude},
    {U"lng", kLabel, kLongitude},
    {U"long", kLabel, kLongitude},
    {U"longitude", kLabel, kLongitude},
    {U"longitud", kLabel, kLongitude},
    {U"länge", kLabel, kLongitude},
    {U"längengrad", kLabel, kLongitude},
    {U"经°", kLabel, kLongitude},
    {U"経°", kLabel, kLongitude},
    {U"經°", kLabel, kLongitude},
    {U"deg", Kind::Mark, Axis::Unknown, 0},
    {U"degrees", Kind::Mark, Axis::Unknown, 0},
    {U"min", Kind::Mark, Axis::Unknown, 1},
    {U"sec", Kind::Mark, Axis::Unknown, 2},
};

constexpr std::u32string_view kNothing = U"()[]{}<> ";
constexpr std::u32string_view kSeparators = U",;/|\n";

bool isDigit(char32_t character) {
  return character >= U'0' && character <= U'9';
}

bool isLetter(char32_t character) {
  const char32_t small = character | 0x20;
  return (small >= U'a' && small <= U'z') || (character > 0xBF && character != U'×');
}

char32_t small(char32_t character) {
  const bool isCapital = (character >= U'A' && character <= U'Z') ||
                         (character >= U'À' && character <= U'Þ' && character != U'×');
  return isCapital ? character + 0x20 : character;
}

/// Cuts a text into tokens; none when there is anything in it that positions do not have.
class Lexer {
 public:
  Lexer(std::u32string_view text, std::string_view language, bool isCommaDecimal)
      : mText(text), mLanguage(language), mIsCommaDecimal(isCommaDecimal) {}

  std::optional<DegreesTokens> run() {
    while (mAt < mText.size()) {
      if (kNothing.find(mText[mAt]) != kNothing.npos) {
        ++mAt;
      } else if (!take(mText[mAt])) {
        return std::nullopt;
      }
    }
    return std::move(mTokens);
  }

 private:
  char32_t at(std::size_t place) const { return place < mText.size() ? mText[place] : 0; }

  bool take(char32_t next) {
    if (isDigit(next) || next == U'.' || next == U'-' || next == U'+') return takeNumber();
    if (isLetter(next)) return takeWord(false);
    ++mAt;
    // JSON's quotes stand around words only; whoever wants seconds writes a digit before them.
    if (next == U'"' && isLetter(at(mAt))) return takeWord(true);
    if (next == U'°') return add({.kind = Kind::Mark, .unit = 0});
    if (next == U'\'') return add({.kind = Kind::Mark, .unit = 1});
    if (next == U'"') return add({.kind = Kind::Mark, .unit = 2});
    const bool isAfterLabel = !mTokens.list.empty() && mTokens.list.back().kind != Kind::Number &&
                              mTokens.list.back().kind != Kind::Mark;
    if ((next == U':' || next == U'=') && isAfterLabel) return add({});
    if (next == U':' && !mTokens.list.empty() && mTokens.list.back().kind == Kind::Number) {
      return addColon();
    }
    // 57,7,11,97 is a list as well.
    if (next == U',' && mIsCommaDecimal && isDigit(at(mAt))) return false;
    if (kSeparators.find(next) == kSeparators.npos) return false;
    if (next == U'/' || next == U'|') mTokens.hasSlash = true;
    const bool isEmpty = mTokens.list.empty() || mTokens.list.back().kind == Kind::Separator;
    return (!isEmpty || next == U'\n') && add({});
  }

  bool add(const DegreesToken& token) {
    mTokens.list.push_back(token);
    return true;
  }

  /// 57:42:27: a colon is the mark of the number before it.
  bool addColon() {
    std::size_t before = 0;
    for (auto token = mTokens.list.rbegin(); token != mTokens.list.rend(); ++token) {
      if (token->kind == Kind::Mark) ++before;
      if (token->kind != Kind::Mark && token->kind != Kind::Number) break;
      if (token->isSigned) break;
    }
    mTokens.hasColons = true;
    return isDigit(at(mAt)) && before < 2 && add({.kind = Kind::Mark, .unit = before});
  }

  bool takeNumber() {
    DegreesToken token{.kind = Kind::Number};
    const bool isAttached = mAt > 0 && !mTokens.list.empty() &&
                            mTokens.list.back().kind == Kind::Number &&
                            kNothing.find(mText[mAt - 1]) == kNothing.npos;
    std::string digits;
    if (at(mAt) == U'-' || at(mAt) == U'+') {
      token.isSigned = true;
      if (at(mAt) == U'-') digits = "-";
      ++mAt;
      // "57.7 - 11.97" is from one to the other as well.
      const bool isSign = mTokens.list.empty() || mTokens.list.back().kind == Kind::Separator;
      if (isSign && at(mAt) == U' ' && isDigit(at(mAt + 1))) ++mAt;
    }
    // +57.7+011.97 is a pair; 10-12 is none, nor is 1.2.3.
    if (isAttached && !(token.isSigned && mTokens.list.back().isSigned)) return false;
    const auto takeDigits = [&] {
      const std::size_t from = mAt;
      for (; isDigit(at(mAt)); ++mAt) digits += static_cast<char>(at(mAt));
      return mAt - from;
    };
    std::size_t count = takeDigits();
    const bool isPoint = at(mAt) == U'.' || (mIsCommaDecimal && at(mAt) == U',');
    if (isPoint && isDigit(at(mAt + 1))) {
      ++mAt;
      digits += '.';
      count += takeDigits();
      token.hasFraction = true;
    }
    if (at(mAt) == U'.' && !isDigit(at(mAt + 1))) ++mAt;  // "57." or the end of a sentence.
    if (count == 0 || count > 40) return false;
    if (!token.isSigned && isCompact(std::min(digits.find('.'), digits.size()))) {
      return addCompact(digits);
    }
    std::from_chars(digits.data(), digits.data() + digits.size(), token.value);
    token.isSigned = token.isSigned || std::signbit(token.value);
    return add(token);
  }

  /// Whether so many whole digits, of which the last are before the text's current place, are
  /// degrees, minutes and perhaps seconds in one, as in 402646N 0795856W.
  bool isCompact(std::size_t digits) const {
    const char32_t side = small(at(mAt));
    const bool isLatitude = side == U'n' || side == U's';
    const bool isLongitude = side == U'e' || side == U'w';
    const bool isAlone = mTokens.list.empty() || (mTokens.list.back().kind != Kind::Number &&
                                                  mTokens.list.back().kind != Kind::Mark);
    const bool isWhole = digits == 4 || digits == 6;
    return isAlone && !isLetter(at(mAt + 1)) &&
           ((isLatitude && isWhole) || (isLongitude && digits >= 4 && digits <= 7));
  }

  bool addCompact(const std::string& digits) {
    const std::size_t whole = std::min(digits.find('.'), digits.size());
    const std::size_t units = whole < 6 ? 2 : 3;
    std::size_t from = 0;
    for (std::size_t unit = 0; unit < units; ++unit) {
      const std::size_t end = unit + 1 == units ? digits.size() : whole - 2 * (units - 1 - unit);
      DegreesToken number{.kind = Kind::Number};
      std::from_chars(digits.data() + from, digits.data() + end, number.value);
      number.hasFraction = end > whole;
      add(number);
      add({.kind = Kind::Mark, .unit = unit});
      from = end;
    }
    return true;
  }

  /// The unit that a letter right behind a number marks: 57d42m27s.
  std::optional<std::size_t> letterUnit() const {
    const std::vector<DegreesToken>& list = mTokens.list;
    const bool isBehindNumber = mAt > 0 && (isDigit(mText[mAt - 1]) || mText[mAt - 1] == U'.') &&
                                !list.empty() && list.back().kind == Kind::Number;
    if (!isBehindNumber) return std::nullopt;
    const bool isAlone = !isLetter(at(mAt + 1));
    const auto isBehindUnit = [&](std::size_t unit) {
      return list.size() > 1 && list[list.size() - 2].kind == Kind::Mark &&
             list[list.size() - 2].unit == unit;
    };
    const char32_t letter = at(mAt);
    // 5d is five days.
    if (small(letter) == U'd' && isDigit(at(mAt + 1))) return 0;
    if (small(letter) == U'm' && isAlone && isBehindUnit(0)) return 1;
    // A capital one at the end is the south.
    if (small(letter) == U's' && isBehindUnit(1) && (letter == U's' || !isAlone)) return 2;
    return std::nullopt;
  }

  bool takeWord(bool isQuoted) {
    if (const auto unit = letterUnit(); unit && !isQuoted) {
      ++mAt;
      return add({.kind = Kind::Mark, .unit = *unit});
    }
    const std::size_t begin = mAt;
    std::u32string word;
    while (isLetter(at(mAt)) || (at(mAt) == U'°' && !word.empty() && word.back() > 0x2E80)) {
      word += small(at(mAt));
      ++mAt;
    }
    if (at(mAt) == U'"') ++mAt;                           // JSON's, see above.
    if (at(mAt) == U'.' && !isDigit(at(mAt + 1))) ++mAt;  // "lat."
    if (word == U"o") return addWestOrEast();
    // 1e5 is a number of another kind.
    const bool isWithin = begin > 0 && isDigit(mText[begin - 1]) && isDigit(at(mAt));
    if (word == U"e" && isWithin && !mHasCompass) return false;
    if (word == U"point" || word == U"coordinates" || word == U"type") {
      return addFormat(word, isQuoted);
    }
    for (const Word& known : kWords) {
      if (word != known.text) continue;
      mHasCompass = mHasCompass || known.kind == kCompass;
      return add({.kind = known.kind,
                  .value = known.value,
                  .unit = static_cast<std::size_t>(std::max(known.value, 0.0)),
                  .axis = known.axis});
    }
    return false;
  }

  /// GeoJSON's names, in quotes, and well-known text's POINT (11.97 57.7): both begin with
  /// longitude.
  bool addFormat(std::u32string_view word, bool isQuoted) {
    const auto has = [this](std::u32string_view any) {
      return mText.find_first_of(any) != mText.npos;
    };
    if (isQuoted) return add({.kind = word == U"type" ? Kind::Separator : Kind::Point});
    if (word == U"coordinates") return !has(U"[{") && add({});
    return word == U"point" && has(U"(") && !has(U",;") && add({.kind = Kind::Point});
  }

  bool addWestOrEast() {
    const bool isEast = mLanguage.starts_with("de");
    if (!isEast && !mLanguage.starts_with("fr") && !mLanguage.starts_with("es")) return false;
    return add({.kind = kCompass, .value = isEast ? 1.0 : -1.0, .axis = kLongitude});
  }

  std::u32string_view mText;
  std::string_view mLanguage;
  bool mIsCommaDecimal;
  std::size_t mAt = 0;
  bool mHasCompass = false;
  DegreesTokens mTokens;
};

}  // namespace

std::optional<DegreesTokens> degreesTokens(std::u32string_view plain, std::string_view language,
                                           bool isCommaDecimal) {
  return Lexer(plain, language, isCommaDecimal).run();
}

}  // namespace wayloom
