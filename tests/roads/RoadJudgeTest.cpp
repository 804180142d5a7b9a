#include <cstdlib>
#include <random>

#include "import/ExtractRoads.h"
#include "regions/RegionStore.h"
#include "roads/RoadGraphFile.h"
#include "roads/RouterSearch.h"
#include "tests/roads/AsciiRoads.h"
#include "tests/roads/RoadJudge.h"

namespace wayloom {
namespace {

/// How many drives are compared where the environment does not ask for more.
int pairs(int usual) {
  const char* wanted = std::getenv("WAYLOOM_JUDGED_PAIRS");
  return wanted ? std::atoi(wanted) : usual;
}

/// Lets the search and the judge answer the same questions.
class Court {
 public:
  Court(const std::vector<RoadWay>& ways, const RoadRules& rules,
        const std::optional<RoadTime>& time = {})
      : mJudge(ways, rules, time), mGraph(roadNetwork(ways, rules)), mSearch(mGraph), mTime(time) {
    std::map<std::vector<RoadPoint>, std::vector<std::size_t>> arcs;
    for (std::size_t arc = 0; arc < mJudge.arcs().size(); arc += 2) {
      std::vector<RoadPoint> points;
      for (const Coordinate& each : mJudge.arcs()[arc].line) points.push_back(roadPoint(each));
      arcs[points].push_back(arc);
    }
    // Ways drawn twice cannot be told apart.
    for (std::uint32_t edge = 0; edge < mGraph.edges().size(); ++edge) {
      const auto& found = arcs[mGraph.network().points(edge)];
      if (found.size() == 1 && !mGraph.edges()[edge].use.isFerry) {
        mPlaces.emplace_back(edge, found.front());
      }
    }
  }

  const RoadGraph& graph() const { return mGraph; }
  int answered() const { return mAnswered; }

  void compare(std::mt19937& random, int sources, int targets, const std::string& name) {
    std::uniform_real_distribution<double> share(0.05, 0.95);
    for (int source = 0; source < sources; ++source) {
      const auto [from, fromArc] = mPlaces[random() % mPlaces.size()];
      const double begin = share(random);
      mJudge.driveFrom(fromArc, begin);
      for (int target = 0; target < targets; ++target) {
        const auto [to, toArc] = mPlaces[random() % mPlaces.size()];
        const double end = share(random);
        mSearch.ask(spot(from, begin), spot(to, end), mTime);
        const auto path = mSearch.find();
        const double judged = mJudge.cost(toArc, end);
        mAnswered += path ? 1 : 0;
        const double found = path ? path->cost : RoadJudge::kNever;
        ASSERT_TRUE(found == judged || std::abs(found - judged) <= 1e-6 * judged)
            << name << ": from " << testing::PrintToString(mGraph.line(from).front().latitude)
            << ',' << mGraph.line(from).front().longitude << " to "
            << mGraph.line(to).front().latitude << ',' << mGraph.line(to).front().longitude
            << " takes " << found << ", judged " << judged;
      }
    }
  }

 private:
  RoadSpot spot(std::uint32_t edge, double share) const {
    const double metres = share * mGraph.metres(edge);
    return {edge, positionAlong(mGraph.line(edge), metres), metres, 0};
  }

  RoadJudge mJudge;
  const RoadGraph mGraph;
  RouterSearch mSearch;
  std::optional<RoadTime> mTime;
  std::vector<std::pair<std::uint32_t, std::size_t>> mPlaces;
  int mAnswered = 0;
};

// Restrictions of every kind along random drives over the ways.
void addRestrictions(const std::vector<RoadWay>& ways, int count, std::mt19937& random,
                     RoadRules& rules) {
  std::map<std::int64_t, std::vector<std::size_t>> meeting;
  for (std::size_t way = 0; way < ways.size(); ++way) {
    for (const Coordinate& end : {ways[way].line.front(), ways[way].line.back()}) {
      meeting[roadNodeAt(end)].push_back(way);
    }
  }
  const auto next = [&](std::size_t way, Coordinate& at) {
    const Line& line = ways[way].line;
    at = at == line.front() ? line.back() : line.front();
    const auto& here = meeting[roadNodeAt(at)];
    return here[random() % here.size()];
  };
  for (int number = 0; number < count; ++number) {
    std::size_t way = random() % ways.size();
    Coordinate at = random() % 2 == 0 ? ways[way].line.front() : ways[way].line.back();
    RoadRestriction restriction;
    restriction.from.push_back(ways[way].number);
    restriction.isOnly = random() % 3 == 0;
    if (random() % 4 == 0) restriction.hours = parseHours("Mo-Fr 07:00-09:00").hours;
    std::vector<std::int64_t> drive;
    for (std::size_t left = random() % 3 + 1; left > 0; --left) {
      way = next(way, at);
      if (drive.empty()) restriction.viaNode = roadNodeAt(at);
      // No restriction goes over one way twice.
      if (std::count(drive.begin(), drive.end(), ways[way].number) > 0) break;
      drive.push_back(ways[way].number);
    }
    restriction.to.push_back(drive.back());
    drive.pop_back();
    restriction.viaWays = drive;
    if (!drive.empty()) restriction.viaNode.reset();
    // Further members.
    if (random() % 4 == 0) restriction.from.push_back(ways[random() % ways.size()].number);
    if (random() % 4 == 0) restriction.to.push_back(ways[next(way, at)].number);
    rules.restrictions.push_back(restriction);
  }
}

AsciiRoads drawing(std::mt19937& random) {
  constexpr int kSide = 5;
  const auto oneOf = [&](const std::string& signs) { return signs[random() % signs.size()]; };
  std::vector<std::string> rows(4 * kSide - 3, std::string(4 * kSide - 3, ' '));
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < rows.size(); ++column) {
      char& sign = rows[row][column];
      if (row % 4 == 0 && column % 4 == 0) sign = '+';
      if (row % 4 == 0 && column % 4 != 0) sign = column % 4 == 2 ? oneOf("-----><=!x ~") : '-';
      if (row % 4 != 0 && column % 4 == 0) sign = row % 4 == 2 ? oneOf("||||||v^!x ") : '|';
    }
  }
  return AsciiRoads(rows);
}

TEST(RoadJudgeTest, AgreesOnDrawnRoads) {
  std::mt19937 random(11);
  int answered = 0;
  for (int round = 0; round < pairs(4000) / 20; ++round) {
    const AsciiRoads roads = drawing(random);
    std::vector<RoadWay> ways = roads.ways();
    RoadRules rules = roads.rules();
    for (RoadWay& way : ways) way.use.keepsLeft = round % 3 == 0;
    addRestrictions(ways, 30, random, rules);
    std::optional<RoadTime> time;
    if (round % 4 > 0) time = RoadTime{0, round % 4 == 1 ? 5 : 2, 8 * 60};
    Court court(ways, rules, time);
    court.compare(random, 4, 5, "drawing " + std::to_string(round));
    answered += court.answered();
  }
  EXPECT_GT(answered, pairs(4000) / 4);
}

#ifdef WAYLOOM_REGION_DIR
TEST(RoadJudgeTest, AgreesOnGothenburg) {
  auto database = openRegion(std::filesystem::path(WAYLOOM_REGION_DIR) / "gothenburg.region");
  ASSERT_TRUE(database) << database.message();
  const auto network = readRoads(*database);
  ASSERT_TRUE(network) << network.message();
  std::vector<RoadWay> ways;
  for (std::uint32_t edge = 0; edge < network->edges.size(); ++edge) {
    RoadWay way{{}, network->edges[edge].use, edge + 1};
    for (const RoadPoint& point : network->points(edge)) way.line.push_back(coordinateOf(point));
    ways.push_back(way);
  }
  std::mt19937 random(12);
  for (const int restrictions : {0, 2000}) {
    RoadRules rules;
    addRestrictions(ways, restrictions, random, rules);
    Court court(ways, rules);
    court.compare(random, pairs(300) / 100, 50, "with " + std::to_string(restrictions));
    EXPECT_GT(court.answered(), pairs(300) / 4);
  }
}
#endif

/// The roads of an extract as it holds them.
struct Surveyed : ExtractVisitor {
  void point(const OsmTags& tags, const ExtractNode& node) override { roads.addPoint(tags, node); }
  void line(std::int64_t way, const OsmTags& tags, Line,
            const std::vector<ExtractNode>& nodes) override {
    roads.addLine(way, tags, nodes);
  }
  void area(const OsmTags&, std::vector<GroundPolygon>) override {}
  void restriction(RoadRestriction restriction) override { roads.addRestriction(restriction); }
  ExtractRoads roads;
};

TEST(RoadJudgeTest, AgreesOnTheExtractOfTheEnvironment) {
  const char* extract = std::getenv("WAYLOOM_JUDGED_EXTRACT");
  if (!extract) GTEST_SKIP() << "WAYLOOM_JUDGED_EXTRACT names no extract";
  Surveyed surveyed;
  ExtractGaps gaps;
  const auto goOn = [](std::string_view, double) { return true; };
  const auto read = readExtract(extract, surveyed, goOn, gaps);
  ASSERT_TRUE(read) << read.message();
  Court court(surveyed.roads.ways(), surveyed.roads.rules());
  EXPECT_FALSE(court.graph().network().rules.empty());
  std::mt19937 random(13);
  court.compare(random, pairs(1000) / 50, 50, extract);
  EXPECT_GT(court.answered(), pairs(1000) / 4);
}

}  // namespace
}  // namespace wayloom
