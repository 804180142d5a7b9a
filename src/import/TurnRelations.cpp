#include "import/TurnRelations.h"

#include <cstring>
#include <initializer_list>
#include <string>

namespace wayloom {

namespace {

std::string_view trimmed(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

// Cuts off what stands before the next separator that is in no brackets.
std::string_view takePart(std::string_view& text, char separator) {
  std::size_t end = 0;
  for (int depth = 0; end < text.size() && (depth > 0 || text[end] != separator); ++end) {
    if (text[end] == '(') ++depth;
    if (text[end] == ')') --depth;
  }
  const std::string_view part = trimmed(text.substr(0, end));
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

bool isRestriction(const osmium::TagList& tags) {
  const char* type = tags.get_value_by_key("type");
  return type && std::strcmp(type, "restriction") == 0;
}

bool exceptsCars(const osmium::TagList& tags) {
  std::string_view exceptions = tags.get_value_by_key("except", "");
  while (!exceptions.empty()) {
    if (isOneOf(takePart(exceptions, ';'), {"motorcar", "motor_vehicle", "vehicle"})) return true;
  }
  return false;
}

// What the most particular of the keys says that hold for cars.
std::string_view forCars(const osmium::TagList& tags, const std::string& behind) {
  for (const char* key : {"restriction:motorcar", "restriction:motor_vehicle", "restriction"}) {
    if (const char* value = tags.get_value_by_key((key + behind).c_str())) return value;
  }
  return {};
}

bool isKind(std::string_view kind) {
  return kind.starts_with("only_") || kind.starts_with("no_");
}

}  // namespace

void TurnRelations::relation(const osmium::Relation& relation) {
  const osmium::TagList& tags = relation.tags();
  if (!isRestriction(tags) || exceptsCars(tags)) return;
  const std::string_view kind = forCars(tags, "");
  // The forms of before there were conditions.
  const bool hasOldHours = tags.has_key("day_on") || tags.has_key("hour_on");
  if (hasOldHours) {
    ++mGaps.unclearConditions;
  } else if (isKind(kind)) {
    visit(relation, kind, {});
  }
  visitConditional(relation, forCars(tags, ":conditional"));
}

// "no_left_turn @ (Mo-Fr 07:00-09:00); no_u_turn @ (22:00-06:00)"
void TurnRelations::visitConditional(const osmium::Relation& relation, std::string_view values) {
  while (!values.empty()) {
    std::string_view condition = takePart(values, ';');
    const std::string_view kind = takePart(condition, '@');
    condition = trimmed(condition);
    if (condition.starts_with('(') && condition.ends_with(')')) {
      condition = condition.substr(1, condition.size() - 2);
    }
    const ParsedHours parsed = parseHours(condition);
    if (!parsed.isWhole || !isKind(kind)) ++mGaps.unclearConditions;
    if (isKind(kind) && !parsed.hours.empty()) visit(relation, kind, parsed.hours);
  }
}

void TurnRelations::visit(const osmium::Relation& relation, std::string_view kind,
                          const std::vector<RoadHours>& hours) {
  RoadRestriction restriction;
  restriction.isOnly = kind.starts_with("only_");
  restriction.hours = hours;
  for (const auto& member : relation.members()) {
    const std::string_view role = member.role();
    const bool isWay = member.type() == osmium::item_type::way;
    if (isWay && role == "from") restriction.from.push_back(member.ref());
    if (isWay && role == "to") restriction.to.push_back(member.ref());
    if (isWay && role == "via") restriction.viaWays.push_back(member.ref());
    if (!isWay && role == "via") restriction.viaNode = member.ref();
  }
  mVisitor.restriction(std::move(restriction));
}

}  // namespace wayloom
