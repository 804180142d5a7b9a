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

std::size_t recordCount(double seconds) {
  for (const double step : {0.25, 0.5, 1.0, 2.0}) {
    const double steps = std::ceil(seconds / step);
    if (steps < static_cast<double>(kMostRecords)) {
      return std::max<std::size_t>(static_cast<std::size_t>(steps), 1) + 1;
    }
  }
  return kMostRecords;
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
    records.push_back(
        {{std::lerp(a.latitude, b.latitude, share), std::lerp(a.longitude, b.longitude, share)},
         passed});
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
      if (nearestSpot(route.geometry[at], straight).metres <= kMostOffRoadMetres) continue;
      caps[at] = std::min(caps[at], route.passages[at].metresPerSecond) / 2;
      isCut = true;
    }
  }
  return isCut;
}

}  // namespace

void spaceEvenly(Route& route) {
  // Half the speed takes half the length off what a step can cut.
  constexpr int kMostRounds = 12;
  std::vector<double> caps = bendSpeeds(route.geometry);
  std::vector<Record> records;
  for (int round = 0; round < kMostRounds; ++round) {
    route.passages = passagesOf(route, caps);
    records = recordsOf(route);
    if (!slowDownAtCutBends(route, records, caps)) break;
  }
  route.expectedSeconds = route.passages.back().seconds;
  route.polyline.clear();
  for (const Record& record : records) route.polyline.push_back(record.coordinate);
}

}  // namespace wayloom
