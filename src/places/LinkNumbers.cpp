#include "places/LinkNumbers.h"

#include <charconv>
#include <cmath>

#include "places/DegreesText.h"

namespace wayloom {

namespace {

void skipBlanks(std::string_view& text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
}

}  // namespace

std::optional<double> takeNumber(std::string_view& text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto read =
      std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  if (read.ec != std::errc() || !std::isfinite(number)) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
  return number;
}

std::optional<double> takeFraction(std::string_view& text) {
  const std::string_view before = text;
  const auto number = takeNumber(text);
  const std::string_view taken = before.substr(0, before.size() - text.size());
  return taken.find('.') == taken.npos ? std::nullopt : number;
}

Found checked(Coordinate position) {
  const auto result = checkedPosition(position);
  return result ? Result<LinkTarget>(*result) : Result<LinkTarget>(result.failure());
}

std::optional<Coordinate> pairIn(std::string_view text, Order order, Behind behind) {
  for (const std::string_view prefix : {"loc:", "ll.", "point.", "pos."}) {
    if (text.starts_with(prefix)) text.remove_prefix(prefix.size());
  }
  const bool isFree = behind == Behind::Anything;
  const std::string_view between = isFree ? ",~;_/" : ",~;";
  skipBlanks(text);
  const auto first = takeFraction(text);
  const bool isSpaced = text.starts_with(' ');
  skipBlanks(text);
  const bool isSeparated = !text.empty() && between.find(text.front()) != between.npos;
  if (!first || (!isSeparated && !isSpaced)) return std::nullopt;
  if (isSeparated) text.remove_prefix(1);
  skipBlanks(text);
  const auto second = takeFraction(text);
  skipBlanks(text);
  const bool isOver =
      text.empty() || text.front() == '(' || (isFree && between.find(text.front()) != between.npos);
  if (!second || !isOver) return std::nullopt;
  return order == Order::LatitudeFirst ? Coordinate{*first, *second} : Coordinate{*second, *first};
}

Found positionIn(const std::string& value, Order order, Behind behind) {
  if (const auto pair = pairIn(value, order, behind)) return checked(*pair);
  const auto plain = plainText(value);
  if (!plain || plain->find(U'°') == plain->npos) return std::nullopt;
  const auto position = readDegrees(*plain, "");
  if (!position) return std::nullopt;
  return *position ? checked(**position) : Result<LinkTarget>(position->failure());
}

}  // namespace wayloom
