#include "regions/ShapeBlob.h"

#include <cmath>
#include <cstdint>

namespace wayloom {

namespace {

constexpr double kUnitsPerDegree = 1e7;

void put(std::vector<std::byte>& bytes, std::uint32_t value) {
  for (int shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<std::byte>(value >> shift & 0xff));
  }
}

void putDegrees(std::vector<std::byte>& bytes, double degrees) {
  put(bytes, static_cast<std::uint32_t>(
                 static_cast<std::int32_t>(std::llround(degrees * kUnitsPerDegree))));
}

std::uint32_t take(std::span<const std::byte>& bytes) {
  std::uint32_t value = 0;
  for (std::size_t index = 0; index < 4; ++index) {
    value |= std::to_integer<std::uint32_t>(bytes[index]) << (8 * index);
  }
  bytes = bytes.subspan(4);
  return value;
}

double takeDegrees(std::span<const std::byte>& bytes) {
  return static_cast<std::int32_t>(take(bytes)) / kUnitsPerDegree;
}

}  // namespace

std::vector<std::byte> encodeShape(std::span<const Line> lines) {
  std::vector<std::byte> bytes;
  for (const Line& line : lines) {
    put(bytes, static_cast<std::uint32_t>(line.size()));
    for (const Coordinate& position : line) {
      putDegrees(bytes, position.longitude);
      putDegrees(bytes, position.latitude);
    }
  }
  return bytes;
}

std::optional<std::vector<Line>> decodeShape(std::span<const std::byte> bytes) {
  std::vector<Line> lines;
  while (!bytes.empty()) {
    if (bytes.size() < 4) return std::nullopt;
    const std::uint32_t count = take(bytes);
    if (count == 0 || count > bytes.size() / 8) return std::nullopt;
    Line& line = lines.emplace_back();
    line.reserve(count);
    for (std::uint32_t index = 0; index < count; ++index) {
      const double longitude = takeDegrees(bytes);
      const double latitude = takeDegrees(bytes);
      line.push_back({latitude, longitude});
    }
  }
  if (lines.empty()) return std::nullopt;
  return lines;
}

}  // namespace wayloom
