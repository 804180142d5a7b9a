#include "roads/RoadHours.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ctime>
#include <optional>
#include <span>

namespace wayloom {

namespace {

constexpr std::array<std::string_view, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::array<std::string_view, 7> kDays = {"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"};

/// Reads one clause from its beginning; each part is there or not.
class Clause {
 public:
  explicit Clause(std::string_view text) : mText(text) { skipSpaces(); }

  bool isAtEnd() const { return mText.empty(); }

  bool take(std::string_view word) {
    if (!mText.starts_with(word)) return false;
    mText.remove_prefix(word.size());
    skipSpaces();
    return true;
  }

  // "Mo-Fr,Su" as one bit for each name; 0 when none is here.
  unsigned takeNames(std::span<const std::string_view> names) {
    unsigned bits = 0;
    while (const auto first = takeName(names)) {
      auto last = first;
      if (take("-")) last = takeName(names);
      if (!last) return 0;
      for (std::size_t name = *first;; name = (name + 1) % names.size()) {
        bits |= 1U << name;
        if (name == *last) break;
      }
      const Clause before = *this;
      if (!take(",")) break;
      // Behind the comma hours or other names may stand.
      if (!hasName(names)) {
        *this = before;
        break;
      }
    }
    return bits;
  }

  // "07:00-09:00"; takes nothing else.
  bool takeSpan(RoadHours& hours) {
    const Clause before = *this;
    const auto from = takeMinute();
    const auto to = from && take("-") ? takeMinute() : std::nullopt;
    if (!to) {
      *this = before;
      return false;
    }
    hours.from = *from;
    hours.to = *to;
    return true;
  }

 private:
  void skipSpaces() {
    while (mText.starts_with(' ')) mText.remove_prefix(1);
  }

  bool hasName(std::span<const std::string_view> names) const {
    return Clause(*this).takeName(names).has_value();
  }

  std::optional<std::size_t> takeName(std::span<const std::string_view> names) {
    for (std::size_t name = 0; name < names.size(); ++name) {
      if (take(names[name])) return name;
    }
    return std::nullopt;
  }

  std::optional<std::uint16_t> takeNumber() {
    unsigned number = 0;
    const auto [end, error] = std::from_chars(mText.data(), mText.data() + mText.size(), number);
    if (error != std::errc() || number > RoadHours::kDayMinutes) return std::nullopt;
    mText.remove_prefix(static_cast<std::size_t>(end - mText.data()));
    return static_cast<std::uint16_t>(number);
  }

  std::optional<std::uint16_t> takeMinute() {
    const auto hour = takeNumber();
    if (!hour || !mText.starts_with(':')) return std::nullopt;
    mText.remove_prefix(1);
    const auto minute = takeNumber();
    skipSpaces();
    if (!minute || *minute > 59 || *hour * 60 + *minute > RoadHours::kDayMinutes) {
      return std::nullopt;
    }
    return static_cast<std::uint16_t>(*hour * 60 + *minute);
  }

  std::string_view mText;
};

// A clause may hold several spans of hours, and behind a comma further days with theirs.
bool parseClause(std::string_view text, std::vector<RoadHours>& hours) {
  Clause clause(text);
  if (clause.take("24/7")) {
    hours.emplace_back();
    return clause.isAtEnd();
  }
  do {
    RoadHours each;
    const unsigned months = clause.takeNames(kMonths);
    if (months != 0) each.months = static_cast<std::uint16_t>(months);
    const unsigned days = clause.takeNames(kDays);
    if (days != 0) each.days = static_cast<std::uint8_t>(days);
    clause.take(":");
    bool hasSpan = false;
    while (clause.takeSpan(each)) {
      hasSpan = true;
      hours.push_back(each);
      if (clause.isAtEnd()) return true;
      if (!clause.take(",")) return false;
    }
    if (hasSpan) continue;
    if (!clause.isAtEnd() || (months == 0 && days == 0)) return false;
    hours.push_back(each);
  } while (!clause.isAtEnd());
  return true;
}

}  // namespace

RoadTime roadTime(double secondsSince1970) {
  constexpr double kFarthest = 1e11;
  const auto seconds = static_cast<std::time_t>(
      std::isfinite(secondsSince1970) ? std::clamp(secondsSince1970, -kFarthest, kFarthest) : 0);
  std::tm local{};
  ::localtime_r(&seconds, &local);
  return {local.tm_mon, (local.tm_wday + 6) % 7, local.tm_hour * 60 + local.tm_min};
}

bool RoadHours::contain(const RoadTime& time) const {
  if ((months >> time.month & 1) == 0) return false;
  const bool isDay = (days >> time.weekday & 1) != 0;
  if (from < to) return isDay && from <= time.minute && time.minute < to;
  const bool isDayAfter = (days >> (time.weekday + 6) % 7 & 1) != 0;
  return (isDay && from <= time.minute) || (isDayAfter && time.minute < to);
}

ParsedHours parseHours(std::string_view text) {
  ParsedHours parsed;
  for (bool more = true; more;) {
    const auto end = text.find(';');
    more = end != std::string_view::npos;
    std::vector<RoadHours> hours;
    if (parseClause(text.substr(0, end), hours)) {
      parsed.hours.insert(parsed.hours.end(), hours.begin(), hours.end());
    } else {
      parsed.isWhole = false;
    }
    if (more) text.remove_prefix(end + 1);
  }
  return parsed;
}

}  // namespace wayloom
