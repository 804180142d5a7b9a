#include "fuzz/Fuzzing.h"
#include "geo/Coordinate.h"
#include "places/OpenLocationCode.h"
#include "places/PlaceText.h"

using namespace wayloom;

/// A place as somebody typed, pasted or shared it: what is taken for a position lies on the globe,
/// so does the cell of a short code wherever it is near to, and what is wrong has a sentence.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const std::string_view text = textOf(bytes, count);
  for (const char* language : {"en", "de"}) {
    const PlaceText place = readPlaceText(text, language);
    if (const auto* position = std::get_if<Coordinate>(&place)) require(isOnGlobe(*position));
    if (const auto* wrong = std::get_if<Failure>(&place)) {
      require(!wrong->message.empty() && wrong->message.find('\n') == std::string::npos);
    }
    if (const auto* code = std::get_if<ShortPlaceCode>(&place)) {
      for (const Coordinate near :
           {Coordinate{90, 180}, Coordinate{-90, -180}, Coordinate{57, 12}}) {
        require(isOnGlobe(nearestOfShortCode(code->code, near)));
      }
    }
  }
  return 0;
}
