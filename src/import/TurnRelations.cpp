#include "import/TurnRelations.h"

#include <cstring>
#include <optional>
#include <sstream>
#include <string>

namespace wayloom {

namespace {

// The restriction's kind; empty when it does not bind cars at all times.
std::string_view kindOf(const osmium::TagList& tags) {
  const char* type = tags.get_value_by_key("type");
  if (!type || std::strcmp(type, "restriction") != 0) return {};
  std::istringstream exceptions(tags.get_value_by_key("except", ""));
  for (std::string vehicle; std::getline(exceptions, vehicle, ';');) {
    std::erase(vehicle, ' ');
    if (isOneOf(vehicle, {"motorcar", "motor_vehicle", "vehicle"})) return {};
  }
  for (const char* hours : {"day_on", "hour_on"}) {
    if (tags.has_key(hours)) return {};
  }
  const char* own = tags.get_value_by_key("restriction:motorcar");
  return own ? own : tags.get_value_by_key("restriction", "");
}

// The one member of a role, if it is a thing of this kind.
std::optional<osmium::object_id_type> member(const osmium::Relation& relation, const char* role,
                                             osmium::item_type type) {
  std::optional<osmium::object_id_type> found;
  for (const auto& each : relation.members()) {
    if (std::strcmp(each.role(), role) != 0) continue;
    if (found || each.type() != type) return std::nullopt;
    found = each.ref();
  }
  return found;
}

}  // namespace

void TurnRelations::relation(const osmium::Relation& relation) {
  const std::string_view kind = kindOf(relation.tags());
  const bool isOnly = kind.starts_with("only_");
  if (!isOnly && !kind.starts_with("no_")) return;
  const auto from = member(relation, "from", osmium::item_type::way);
  const auto via = member(relation, "via", osmium::item_type::node);
  const auto to = member(relation, "to", osmium::item_type::way);
  if (!from || !via || !to) return;
  mTurns.push_back({{*from, *to, {}, isOnly}, *via});
  mVias.insert(*via);
}

void TurnRelations::node(const osmium::Node& node) {
  if (!mVias.contains(node.id())) return;
  mPositions[node.id()] = {node.location().lat(), node.location().lon()};
}

void TurnRelations::visit(ExtractVisitor& visitor) const {
  for (const auto& [turn, via] : mTurns) {
    const auto position = mPositions.find(via);
    if (position == mPositions.end()) continue;
    ExtractTurn placed = turn;
    placed.via = position->second;
    visitor.turn(placed);
  }
}

}  // namespace wayloom
