#include <cmath>
#include <numbers>
#include <random>

#include "roads/EvenRecords.h"
#include "roads/Router.h"
#include "roads/RouterAnswer.h"
#include "tests/roads/AsciiRoads.h"

namespace wayloom {
namespace {

// Metres east and north of an origin nearby; the planes of neighbouring positions hardly differ.
struct PlanePoint {
  double east = 0;
  double north = 0;
};

PlanePoint planePoint(Coordinate origin, Coordinate position) {
  constexpr double kMetres = 6371008.8 * std::numbers::pi / 180;
  const double parallel = std::cos(origin.latitude * std::numbers::pi / 180);
  return {(position.longitude - origin.longitude) * kMetres * parallel,
          (position.latitude - origin.latitude) * kMetres};
}

double metresBetween(Coordinate a, Coordinate b) {
  const PlanePoint to = planePoint(a, b);
  return std::hypot(to.east, to.north);
}

struct NearestOnStraight {
  double metres = 0;
  double share = 0;
};

NearestOnStraight nearestOnStraight(Coordinate position, Coordinate a, Coordinate b) {
  const PlanePoint from = planePoint(position, a);
  const PlanePoint to = planePoint(position, b);
  const double east = to.east - from.east;
  const double north = to.north - from.north;
  const double square = east * east + north * north;
  const double share =
      square > 0 ? std::clamp(-(from.east * east + from.north * north) / square, 0.0, 1.0) : 0;
  return {std::hypot(from.east + share * east, from.north + share * north), share};
}

/// Looks at the records of a drive alone, as who follows them would.
class DriveInspection {
 public:
  explicit DriveInspection(const Route& route)
      : mRoute(route),
        mStep(route.expectedSeconds / static_cast<double>(route.polyline.size() - 1)) {}

  void look() {
    ASSERT_LE(mRoute.polyline.size(), kMostRecords);
    ASSERT_EQ(mRoute.polyline.front(), mRoute.geometry.front());
    ASSERT_EQ(mRoute.polyline.back(), mRoute.geometry.back());
    double before = 0;
    for (std::size_t at = 1; at < mRoute.polyline.size(); ++at) {
      const std::size_t first = mStretch;
      goOnTo(mRoute.polyline[at]);
      const double driven = metresBetween(mRoute.polyline[at - 1], mRoute.polyline[at]);
      float limit = 0;
      for (std::size_t each = first; each <= mStretch; ++each) {
        limit = std::max(limit, mRoute.limits[each]);
      }
      EXPECT_LE(driven, static_cast<double>(limit) * mStep + 0.01) << "record " << at;
      lookAtBends(at, first);
      // A straight across a bend is shorter than the road.
      if (first == mStretch) {
        const double speed = driven / mStep;
        if (mWasStraight) {
          EXPECT_LE(speed - before, 1.2 * mStep + 0.05) << "record " << at;
          EXPECT_LE(before - speed, 1.8 * mStep + 0.05) << "record " << at;
        }
        before = speed;
      }
      mWasStraight = first == mStretch;
    }
  }

 private:
  // Never back: where the road turns round, the record lies on the stretch after.
  void goOnTo(Coordinate record) {
    for (;; ++mStretch, mShare = 0) {
      const auto [metres, share] =
          nearestOnStraight(record, mRoute.geometry[mStretch], mRoute.geometry[mStretch + 1]);
      if (metres < 1e-5 && share > mShare - 1e-6) {
        mShare = share;
        return;
      }
      ASSERT_LT(mStretch + 2, mRoute.geometry.size()) << "a record is off the road";
    }
  }

  void lookAtBends(std::size_t record, std::size_t first) {
    for (std::size_t bend = first + 1; bend <= mStretch; ++bend) {
      EXPECT_LE(nearestOnStraight(mRoute.geometry[bend], mRoute.polyline[record - 1],
                                  mRoute.polyline[record])
                    .metres,
                kMostOffRoadMetres + 0.02)
          << "record " << record;
    }
  }

  const Route& mRoute;
  const double mStep;
  std::size_t mStretch = 0;
  double mShare = 0;
  bool mWasStraight = false;
};

Route straight(double metres, float limit) {
  const Coordinate end{57 + metres / 111194.93, 12};
  return {.geometry = {{57, 12}, end}, .limits = {limit}};
}

TEST(EvenRecordsTest, GainsSpeedAndLosesIt) {
  // 20 m/s take 16.67 s and 166.7 m to reach with 1.2 m/s², 11.11 s and 111.1 m to lose with 1.8.
  Route route = straight(1000, 20);
  spaceEvenly(route);
  EXPECT_NEAR(route.expectedSeconds, 16.667 + 11.111 + (1000 - 166.667 - 111.111) / 20, 0.01);
  EXPECT_EQ(route.polyline.size(), std::ceil(route.expectedSeconds / 0.25) + 1);
  DriveInspection(route).look();
}

TEST(EvenRecordsTest, StandsAtAStop) {
  Route route = straight(300, 10);
  route.geometry.insert(route.geometry.begin() + 1, {57 + 150 / 111194.93, 12});
  route.limits.push_back(10);
  Route stopping = route;
  stopping.stops = {{1, 12}};
  spaceEvenly(route);
  spaceEvenly(stopping);
  DriveInspection(stopping).look();
  const auto standing =
      std::count(stopping.polyline.begin(), stopping.polyline.end(), stopping.geometry[1]);
  EXPECT_NEAR(static_cast<double>(standing), 12 / 0.25, 1.5);
  EXPECT_GT(stopping.expectedSeconds, route.expectedSeconds + 12 + 5);
}

TEST(EvenRecordsTest, SpacesLongDrivesWider) {
  struct Case {
    double metres;
    double step;
  };
  for (const auto& [metres, step] :
       {Case{100e3, 0.25}, Case{180e3, 0.5}, Case{350e3, 1}, Case{700e3, 2}}) {
    Route route = straight(metres, 25);
    spaceEvenly(route);
    EXPECT_NEAR(route.expectedSeconds / static_cast<double>(route.polyline.size() - 1), step,
                step / 1000)
        << metres;
  }
  // The bends of a long one, too, are kept without losing much time.
  Route winding{.geometry = {{57, 12}}};
  for (int bend = 0; bend < 8000; ++bend) {
    const Coordinate last = winding.geometry.back();
    const double east = bend % 2 == 0 ? 5.2 : -5.2;
    winding.geometry.push_back({last.latitude + 59.8 / 111194.93,
                                last.longitude + east / 111194.93 / std::cos(57 / 57.29578)});
    winding.limits.push_back(25);
  }
  spaceEvenly(winding);
  DriveInspection(winding).look();
  EXPECT_LT(winding.expectedSeconds, 1.2 * 8000 * 60 / 25);
  Route farther = straight(5000e3, 25);
  spaceEvenly(farther);
  EXPECT_EQ(farther.polyline.size(), kMostRecords);
}

TEST(EvenRecordsTest, HoldsOnAnyLine) {
  std::mt19937 random(17);
  for (int round = 0; round < 300; ++round) {
    Route route{.geometry = {{57, 12}}};
    for (int bends = static_cast<int>(random() % 40); bends >= 0; --bends) {
      // Many short stretches, some of nothing, and sharp turns.
      const double degrees = std::pow(10, -7 + static_cast<double>(random() % 50) / 10);
      const double angle = static_cast<double>(random() % 628) / 100;
      const Coordinate last = route.geometry.back();
      route.geometry.push_back(
          {last.latitude + degrees * std::sin(angle), last.longitude + degrees * std::cos(angle)});
      route.limits.push_back(static_cast<float>(2 + random() % 34));
      if (random() % 8 == 0) {
        route.stops.push_back({route.geometry.size() - 1, static_cast<double>(random() % 30)});
      }
    }
    spaceEvenly(route);
    SCOPED_TRACE("round " + std::to_string(round));
    DriveInspection(route).look();
    if (HasFatalFailure()) return;
  }
  Route nowhere{.geometry = {{57, 12}, {57, 12}}, .limits = {10}};
  spaceEvenly(nowhere);
  EXPECT_EQ(nowhere.polyline, nowhere.geometry);
  EXPECT_EQ(nowhere.expectedSeconds, 0);
}

#ifdef WAYLOOM_REGION_DIR
TEST(EvenRecordsTest, HoldsInGothenburg) {
  Router router(RegionStore({WAYLOOM_REGION_DIR}));
  std::mt19937 random(18);
  std::uniform_real_distribution<double> latitude(57.66, 57.75);
  std::uniform_real_distribution<double> longitude(11.88, 12.04);
  int drives = 0;
  for (int round = 0; drives < 200 && round < 1000; ++round) {
    const Coordinate from{latitude(random), longitude(random)};
    auto routes = router.plan(from, {latitude(random), longitude(random)});
    if (!routes) continue;
    Route& route = routes->front();
    spaceEvenly(route);
    SCOPED_TRACE("drive " + std::to_string(round));
    DriveInspection(route).look();
    if (HasFailure()) return;
    ++drives;
  }
  EXPECT_EQ(drives, 200);
}
#endif

TEST(EvenRecordsTest, StopsAtTheSameSignalsEachTime) {
  const AsciiRoads roads{{"A-!-B-!-C-!-D-!-E-!-F-!-G-!-H"}};
  const RoadGraph graph(roads.network());
  RouterSearch search(graph);
  const auto drive = [&](char from, char to) {
    return routesOn(search, roads.at(from), roads.at(to), 0, {})->front();
  };
  const Route whole = drive('A', 'H');
  EXPECT_GT(whole.stops.size(), 0u);
  EXPECT_LT(whole.stops.size(), 7u);
  const Route again = drive('A', 'H');
  ASSERT_EQ(again.stops.size(), whole.stops.size());
  for (std::size_t at = 0; at < whole.stops.size(); ++at) {
    EXPECT_EQ(again.stops[at].position, whole.stops[at].position);
    EXPECT_EQ(again.stops[at].seconds, whole.stops[at].seconds);
  }
}

}  // namespace
}  // namespace wayloom
