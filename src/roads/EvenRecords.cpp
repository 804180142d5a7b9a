#include "roads/EvenRecords.h"

#include <algorithm>
#include <cmath>

#include "regions/GroundGeometry.h"
#include "roads/DrivenSpeeds.h"

namespace wayloom {

namespace {

// A record and the number of the geometry's position that it has reached or passed.
struct Record {
  Coordinate coordinate;
  std::size_t passed = 0;
};

// In seconds; drives that take 20,000 of these have longer ones.
constexpr double kLongestStep = 2;

std::size_t recordCount(double seconds) {
  for (const double step : {0.25, 0.5, 1.0, kLongestStep}) {
    const double steps = std::ceil(seconds / step);
    if (steps < static_cast<double>(kMostRecords)) {
      return std::max<std::size_t>(static_cast<std::size_t>(steps), 1) + 1;
    }
  }
  return kMostRecords;
}

// The shorter way round the globe.
Coordinate between(Coordinate a, Coordinate b, double share) {
  const double east = std::remainder(b.longitude - a.longitude, 360.0);
  const double longitude = a.longitude + share * east;
  return {std::lerp(a.latitude, b.latitude, share),
          std::abs(longitude) <= 180 ? longitude : std::remainder(longitude, 360.0)};
}

std::vector<Record> recordsOf(const Route& route) {
  const auto& passages = route.passages;
  const std::size_t count = recordCount(passages.back().seconds);
  const double step = passages.back().seconds / static_cast<double>(count - 1);
  std::vector<Record> records{{route.geometry.front(), 0}};
  records.reserve(count);
  std::size_t passed = 0;
  for (std::size_t number = 1; number + 1 < count; ++number) {
    const double seconds = step * static_cast<double>(number);
    while (passed + 2 < passages.size() && passages[passed + 1].seconds <= seconds) ++passed;
    const RoutePassage& from = passages[passed];
    const RoutePassage& to = passages[passed + 1];
    const double driving = std::max(0.0, seconds - from.seconds - from.waitSeconds);
    const double metres = metresInto(from, to, static_cast<double>(route.limits[passed]), driving);
    const double whole = to.metres - from.metres;
    const double share = whole > 0 ? metres / whole : 0;
    const Coordinate& a = route.geometry[passed];
    const Coordinate& b = route.geometry[passed + 1];
    records.push_back({between(a, b, share), passed});
  }
  records.push_back({route.geometry.back(), route.geometry.size() - 1});
  return records;
}

// Slows down where records would cut a bend; whether there was such a bend.
bool slowDownAtCutBends(const Route& route, const std::vector<Record>& records,
                        std::vector<double>& caps) {
  bool isCut = false;
  for (std::size_t number = 1; number < records.size(); ++number) {
    const Coordinate straight[] = {records[number - 1].coordinate, records[number].coordinate};
    const std::size_t last = std::min(records[number].passed, route.geometry.size() - 2);
    for (std::size_t at = records[number - 1].passed + 1; at <= last; ++at) {
      const double metres = nearestSpot(route.geometry[at], straight).metres;
      if (metres <= kMostOffRoadMetres) continue;
      const double slower = std::clamp(0.95 * kMostOffRoadMetres / metres, 0.3, 0.95);
      caps[at] = std::min(caps[at], route.passages[at].metresPerSecond) * slower;
      isCut = true;
    }
  }
  return isCut;
}

}  // namespace

void spaceEvenly(Route& route) {
  constexpr int kMostRounds = 40;
  std::vector<double> caps = bendSpeeds(route.geometry);
  std::vector<Record> records;
  for (int round = 0; round < kMostRounds; ++round) {
    route.passages = passagesOf(route, caps);
    records = recordsOf(route);
    // Slowing down there would only make the steps longer.
    const double step = route.passages.back().seconds / static_cast<double>(records.size() - 1);
    if (step > kLongestStep || !slowDownAtCutBends(route, records, caps)) break;
  }
  route.expectedSeconds = route.passages.back().seconds;
  route.polyline.clear();
  for (const Record& record : records) route.polyline.push_back(record.coordinate);
}

}  // namespace wayloom
