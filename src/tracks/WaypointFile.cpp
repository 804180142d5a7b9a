#include "tracks/WaypointFile.h"

#include <algorithm>

#include "settings/DecimalNumber.h"
#include "settings/ReadFile.h"
#include "tracks/GeoJson.h"
#include "tracks/Gpx.h"
#include "tracks/Kml.h"
#include "tracks/XmlWalk.h"

namespace wayloom {

namespace {

constexpr char kNoFormat[] = "it is neither GPX nor KML nor GeoJSON";

std::string lowered(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return result;
}

/// Whether the document is in UTF-16, which JSON in files is not.
bool isUtf16(std::string_view bytes) {
  return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

Result<Waypoints> readXml(std::string_view bytes) {
  const auto root = xmlRootName(bytes);
  if (!root) return root.failure();
  if (*root == "gpx") return readGpx(bytes);
  if (*root == "kml") return readKml(bytes);
  return failed(kNoFormat);
}

Result<Waypoints> readAny(std::string_view bytes) {
  if (bytes.starts_with("PK\x03\x04")) {
    return failed("it is an archive: unpack it and take the file in it");
  }
  std::string_view text = bytes;
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  while (!text.empty() && isAsciiSpace(text.front())) text.remove_prefix(1);
  if (text.starts_with('{')) return readGeoJson(text);
  if (text.starts_with('<') || isUtf16(text)) return readXml(text);
  return failed(kNoFormat);
}

}  // namespace

std::optional<WaypointFormat> waypointFormatNamed(std::string_view name) {
  const auto* found = std::find(kWaypointFormats.begin(), kWaypointFormats.end(), lowered(name));
  if (found == kWaypointFormats.end()) return std::nullopt;
  return static_cast<WaypointFormat>(found - kWaypointFormats.begin());
}

std::optional<WaypointFormat> waypointFormatOf(const std::filesystem::path& file) {
  const std::string ending = file.extension().string();
  if (lowered(ending) == ".json") return WaypointFormat::GeoJson;
  return ending.empty() ? std::nullopt : waypointFormatNamed(std::string_view(ending).substr(1));
}

std::string writeWaypoints(const Waypoints& waypoints, WaypointFormat format) {
  switch (format) {
    case WaypointFormat::Gpx:
      return writeGpx(waypoints);
    case WaypointFormat::Kml:
      return writeKml(waypoints);
    case WaypointFormat::GeoJson:
      return writeGeoJson(waypoints);
  }
  return {};
}

Result<Waypoints> readWaypoints(std::string_view bytes) {
  if (bytes.size() > kMaximumWaypointBytes) return failed("it is larger than 64 MB");
  auto read = readAny(bytes);
  if (read && read->empty()) return failed("there is no place in it");
  return read;
}

Result<Waypoints> readWaypointFile(const std::filesystem::path& file, FileSystem& system) {
  const auto fail = [&](const std::string& why) { return failed(file.string() + ": " + why); };
  // Whoever names a file may name a link to it.
  std::error_code error;
  const std::filesystem::path followed = std::filesystem::canonical(file, error);
  if (error) return fail(error.message());
  const FileReading reading = readFile(followed, kMaximumWaypointBytes, system);
  if (reading.outcome == FileReading::Outcome::TooLarge) return fail("it is larger than 64 MB");
  if (reading.outcome == FileReading::Outcome::Missing) return fail("it is gone");
  if (reading.outcome == FileReading::Outcome::Failed) return fail(reading.problem);
  auto read = readWaypoints(reading.bytes);
  return read ? std::move(read) : Result<Waypoints>(fail(read.message()));
}

}  // namespace wayloom
