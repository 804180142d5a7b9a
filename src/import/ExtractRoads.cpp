#include "import/ExtractRoads.h"

#include <string>
#include <string_view>

#include "roads/CarAccess.h"
#include "roads/RoadGraphFile.h"

namespace wayloom {

namespace {

// As the countries' traffic codes have it.
constexpr std::string_view kLeftHandCountries =
    "|Anguilla|Antigua and Barbuda|Australia|Bahamas|Bangladesh|Barbados|Bermuda|Bhutan|Botswana|"
    "British Virgin Islands|Brunei|Cayman Islands|Cook Islands|Cyprus|Dominica|Eswatini|"
    "Falkland Islands|Fiji|Grenada|Guernsey|Guyana|Hong Kong|India|Indian Ocean Territories|"
    "Indonesia|Ireland|Isle of Man|Jamaica|Japan|Jersey|Kenya|Kiribati|Lesotho|Macao|Malawi|"
    "Malaysia|Maldives|Malta|Mauritius|Montserrat|Mozambique|Namibia|Nauru|Nepal|New Zealand|"
    "Niue|Norfolk Island|Pakistan|Papua New Guinea|Pitcairn Islands|Saint Helena|"
    "Saint Kitts and Nevis|Saint Lucia|Saint Vincent and the Grenadines|Samoa|Seychelles|"
    "Singapore|Solomon Islands|South Africa|South Georgia and the South Sandwich Islands|"
    "Sri Lanka|Suriname|Tanzania|Thailand|Timor-Leste|Tonga|Trinidad and Tobago|"
    "Turks and Caicos Islands|Tuvalu|Uganda|United Kingdom|United States Virgin Islands|Zambia|"
    "Zimbabwe|";

double metresOf(const std::vector<ExtractNode>& nodes) {
  double metres = 0;
  for (std::size_t at = 1; at < nodes.size(); ++at) {
    metres += distanceMetres(nodes[at - 1].position, nodes[at].position);
  }
  return metres;
}

}  // namespace

bool drivesOnTheLeft(std::string_view country) {
  const std::string framed = '|' + std::string(country) + '|';
  return framed.size() > 2 && kLeftHandCountries.find(framed) != std::string_view::npos;
}

void ExtractRoads::addPoint(const OsmTags& tags, const ExtractNode& node) {
  if (stopsCars(tags)) mRules.barriers.insert(node.number);
  if (tagOf(tags, "highway") != "traffic_signals") return;
  const std::string_view direction = tagOf(tags, "traffic_signals:direction");
  mRules.signals[node.number] = {direction != "backward", direction != "forward"};
}

void ExtractRoads::addLine(std::int64_t way, const OsmTags& tags,
                           const std::vector<ExtractNode>& nodes) {
  auto use = carUse(tags);
  if (!use) use = ferryUse(tags, metresOf(nodes));
  if (!use) return;
  const std::string_view side = tagOf(tags, "driving_side");
  if (isOneOf(side, {"left", "right"})) mSided.push_back(mWays.size());
  use->keepsLeft = side == "left";
  RoadWay& road = mWays.emplace_back(RoadWay{{}, *use, way});
  for (const ExtractNode& node : nodes) {
    road.line.push_back(node.position);
    road.nodes.push_back(node.number);
  }
}

void ExtractRoads::keepLeft(bool keepsLeft) {
  auto sided = mSided.begin();
  for (std::size_t way = 0; way < mWays.size(); ++way) {
    if (sided != mSided.end() && *sided == way) {
      ++sided;
    } else {
      mWays[way].use.keepsLeft = keepsLeft;
    }
  }
}

Status ExtractRoads::write(Database& database, RoadFaults& faults) const {
  return writeRoads(database, roadNetwork(mWays, mRules, &faults));
}

}  // namespace wayloom
