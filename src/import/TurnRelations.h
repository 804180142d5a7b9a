#pragma once

#include <map>
#include <osmium/handler.hpp>
#include <osmium/osm/node.hpp>
#include <osmium/osm/relation.hpp>
#include <set>
#include <vector>

#include "import/Extract.h"

namespace wayloom {

/// Collects the turn restrictions for cars at single nodes: first from the relations, then the
/// positions of their nodes. Restrictions over whole ways, for some hours or for others than cars
/// are passed over.
class TurnRelations : public osmium::handler::Handler {
 public:
  void relation(const osmium::Relation& relation);
  void node(const osmium::Node& node);

  /// Those whose node was found.
  void visit(ExtractVisitor& visitor) const;

 private:
  struct Turn {
    ExtractTurn turn;
    osmium::object_id_type via = 0;
  };

  std::vector<Turn> mTurns;
  std::map<osmium::object_id_type, Coordinate> mPositions;
  std::set<osmium::object_id_type> mVias;
};

}  // namespace wayloom
