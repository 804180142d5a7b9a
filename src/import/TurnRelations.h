#pragma once

#include <osmium/handler.hpp>
#include <osmium/osm/relation.hpp>
#include <string_view>

#include "import/Extract.h"

namespace wayloom {

/// Reads restrictions of turns from relations, as far as they bind cars.
class TurnRelations : public osmium::handler::Handler {
 public:
  /// Both outlive this object.
  TurnRelations(ExtractVisitor& visitor, ExtractGaps& gaps) : mVisitor(visitor), mGaps(gaps) {}

  void relation(const osmium::Relation& relation);

 private:
  void visit(const osmium::Relation& relation, std::string_view kind,
             const std::vector<RoadHours>& hours);
  void visitConditional(const osmium::Relation& relation, std::string_view values);

  ExtractVisitor& mVisitor;
  ExtractGaps& mGaps;
};

}  // namespace wayloom
