#include "regions/DrawingShape.h"

namespace wayloom {
namespace {

using Kind = DrawingShape::Kind;

std::vector<DrawingShape> shapes() {
  return {{Kind::kPoint, {{{1.5, -2.2}}}},
          {Kind::kLine, {{{0, 0}, {-2e7, 2e7}, {0.1, 3}}}},
          {Kind::kPolygon,
           {{{0, 0}, {9, 0}, {9, 9}, {0, 0}}, {{1, 1}, {2, 1}, {2, 2}, {1, 2}, {1, 1}}}}};
}

TEST(DrawingShapeTest, ComesBackAsItWasUnlessCutOrLengthened) {
  for (const DrawingShape& shape : shapes()) {
    const std::string bytes = encodeShape(shape);
    EXPECT_EQ(decodeShape(bytes), shape) << static_cast<int>(shape.kind);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
      EXPECT_FALSE(decodeShape(bytes.substr(0, length))) << "cut at " << length;
    }
    EXPECT_FALSE(decodeShape(bytes + '\0'));
  }
}

TEST(DrawingShapeTest, IsRefusedBeyondTheWorld) {
  for (const double metres : {1.1e9, -1.1e9, 9e17}) {
    EXPECT_FALSE(decodeShape(encodeShape({Kind::kPoint, {{{metres, 0}}}}))) << metres;
    EXPECT_FALSE(decodeShape(encodeShape({Kind::kLine, {{{0, 0}, {0, metres}}}}))) << metres;
  }
  EXPECT_FALSE(decodeShape("\1" + std::string(20, '\xff')));
}

}  // namespace
}  // namespace wayloom
