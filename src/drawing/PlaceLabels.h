#pragma once

#include <string>
#include <vector>

#include "regions/Database.h"
#include "regions/DrawingShape.h"

namespace wayloom {

/// A country, city or village whose name the map may show.
struct PlaceLabel {
  enum class Kind { kCountry, kCapital, kPlace };

  Kind kind = Kind::kPlace;
  std::string name;
  MapPoint point;
  /// Labels that matter more are placed first.
  double importance = 0;
  /// The font size in pixels at firstZoom.
  double size = 11;
  /// The zooms at which the label may be shown; selectPlaceLabels raises the first to the zoom
  /// from which on there is room for it.
  int firstZoom = 0;
  int lastZoom = 0;
};

/// The largest zoom at which towns are dots with their name above; further in, the name stands on
/// the place itself.
inline constexpr int kLastDotZoom = 7;

/// The font size at a zoom at or after the label's first: it grows a little over four zooms.
double labelSize(const PlaceLabel& label, int zoom);

/// The box that the label takes in pixels of the zoom, with some air around it.
MapBox labelBox(const PlaceLabel& label, int zoom);

/// Chooses, zoom by zoom, the labels that find room beside more important ones, so that no two
/// shown labels ever overlap. A label that is shown stays until its last zoom. Those of `fixed` are
/// shown in any case; they are not among the chosen.
std::vector<PlaceLabel> selectPlaceLabels(std::vector<PlaceLabel> candidates, int lastZoom,
                                          const std::vector<PlaceLabel>& fixed = {});

/// Writes the tables place_label and its smaller versions for small zooms.
Status writePlaceLabels(Database& database, const std::vector<PlaceLabel>& labels);

}  // namespace wayloom
