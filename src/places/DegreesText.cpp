#include "places/DegreesText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <vector>

#include "places/DegreesTokens.h"

namespace wayloom {

namespace {

using Kind = DegreesToken::Kind;

/// One of the two angles of a position.
struct Angle {
  std::array<double, 3> units{};
  std::size_t count = 0;
  /// Each unit before the last stands with its mark, or none does.
  bool isMarked = false;
  bool isSigned = false;
  bool isNegative = false;
  bool hasFraction = false;
  bool hasCompass = false;
  double compass = 1;
  Axis axis = Axis::Unknown;
};

/// Puts tokens together to angles.
class AngleReader {
 public:
  explicit AngleReader(const std::vector<DegreesToken>& tokens) : mTokens(tokens) {
    for (const DegreesToken& token : tokens) {
      if (token.kind == Kind::Number) break;
      if (token.kind == Kind::Compass) mIsCompassFirst = true;
    }
  }

  std::optional<std::vector<Angle>> run() {
    for (mAt = 0; mAt < mTokens.size(); ++mAt) {
      if (!take(mTokens[mAt])) return std::nullopt;
    }
    if (mAngle.count == 0 && mAngle.axis != Axis::Unknown) return std::nullopt;
    close();
    return std::move(mAngles);
  }

  bool isPoint() const { return mIsPoint; }

 private:
  bool take(const DegreesToken& token) {
    switch (token.kind) {
      case Kind::Number:
        return takeNumber(token);
      case Kind::Mark:
        return takeMark(token.unit);
      case Kind::Compass:
        return takeCompass(token);
      case Kind::Label:
        close();
        if (mAngle.axis != Axis::Unknown) return false;
        mAngle.axis = token.axis;
        return true;
      case Kind::Separator:
        close();
        return true;
      case Kind::Point:
        mIsPoint = true;
        return true;
    }
    return false;
  }

  bool takeNumber(const DegreesToken& token) {
    const bool hasNext = mAt + 1 < mTokens.size();
    const DegreesToken* const next = hasNext ? &mTokens[mAt + 1] : nullptr;
    const bool isDegrees = next && next->kind == Kind::Mark && next->unit == 0;
    if (mAngle.count > 0 && (token.isSigned || isDegrees)) close();
    if (mAngle.count == 3 || (mAngle.count > 0 && mAngle.hasFraction)) close();
    if (mAngle.count == 0) {
      mAngle.isSigned = token.isSigned;
      mAngle.isNegative = std::signbit(token.value);
    }
    mAngle.units[mAngle.count++] = std::abs(token.value);
    mAngle.hasFraction = token.hasFraction;
    return true;
  }

  bool takeMark(std::size_t unit) {
    if (mAngle.count != unit + 1) return false;
    mAngle.isMarked = true;
    return true;
  }

  bool takeCompass(const DegreesToken& token) {
    if (mIsCompassFirst) {
      close();
      if (mAngle.hasCompass) return false;
    } else if (mAngle.count == 0) {
      return false;
    }
    if (mAngle.axis != Axis::Unknown && mAngle.axis != token.axis) return false;
    mAngle.hasCompass = true;
    mAngle.compass = token.value;
    mAngle.axis = token.axis;
    if (!mIsCompassFirst) close();
    return true;
  }

  void close() {
    if (mAngle.count == 0) return;
    mAngles.push_back(mAngle);
    mAngle = {};
  }

  const std::vector<DegreesToken>& mTokens;
  std::size_t mAt = 0;
  bool mIsCompassFirst = false;
  bool mIsPoint = false;
  Angle mAngle;
  std::vector<Angle> mAngles;
};

/// 57.7 11.97 comes as one angle of two units, 57 42 N 11 58 E as two: numbers of which nothing
/// says that they are more than degrees are degrees, and then one of them must look like it.
bool splitPlainPair(std::vector<Angle>& angles) {
  if (angles.size() != 1) return angles.size() == 2;
  const Angle both = angles.front();
  if (both.count != 2 || both.isMarked || both.axis != Axis::Unknown) return false;
  if (!both.hasFraction && !both.isSigned) return false;
  Angle one = both, other;
  one.count = other.count = 1;
  other.units[0] = both.units[1];
  angles = {one, other};
  return true;
}

/// The angle in degrees, or what is wrong with it.
Result<double> degrees(const Angle& angle) {
  if (angle.isSigned && angle.hasCompass) {
    return failed("a sign and a point of the compass say twice on which side it is");
  }
  if (angle.units[1] >= 60 || angle.units[2] >= 60) {
    return failed("minutes and seconds must be less than 60");
  }
  const double size = angle.units[0] + angle.units[1] / 60 + angle.units[2] / 3600;
  return (angle.isNegative ? -size : size) * angle.compass;
}

std::optional<Result<Coordinate>> positionOf(const DegreesTokens& tokens) {
  AngleReader reader(tokens.list);
  auto angles = reader.run();
  if (!angles || !splitPlainPair(*angles)) return std::nullopt;
  Angle& first = angles->front();
  Angle& second = angles->back();
  // 12:30, 14:00 are hours, and 031 12, 34 56 is anything, unless the compass says otherwise.
  const bool isSure = first.axis != Axis::Unknown && second.axis != Axis::Unknown;
  const bool hasUnits = first.count > 1 || second.count > 1;
  if (tokens.hasSlash && !isSure && !(first.hasFraction && second.hasFraction)) return std::nullopt;
  if (hasUnits && !isSure && (tokens.hasColons || !first.isMarked || !second.isMarked)) {
    return std::nullopt;
  }
  if (first.axis != Axis::Unknown && first.axis == second.axis) {
    return failed(first.axis == Axis::Latitude ? "two latitudes are no position"
                                               : "two longitudes are no position");
  }
  const bool isLongitudeFirst = first.axis == Axis::Longitude || second.axis == Axis::Latitude ||
                                (!isSure && reader.isPoint());
  if (isLongitudeFirst) std::swap(first, second);
  const auto latitude = degrees(first);
  const auto longitude = degrees(second);
  if (!latitude) return latitude.failure();
  if (!longitude) return longitude.failure();
  return checkedPosition({*latitude, *longitude});
}

}  // namespace

Result<Coordinate> checkedPosition(Coordinate position) {
  if (isOnGlobe(position)) return position;
  const bool isLatitude = !(std::abs(position.latitude) <= 90);
  std::array<char, 400> digits{};
  const double wrong = isLatitude ? position.latitude : position.longitude;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), wrong).ptr;
  const std::string number(digits.data(), end);
  return failed(isLatitude ? "latitude " + number + " is beyond 90 degrees"
                           : "longitude " + number + " is beyond 180 degrees");
}

std::optional<Result<Coordinate>> readDegrees(const std::u32string& plain,
                                              std::string_view language) {
  for (const bool isCommaDecimal : {false, true}) {
    const auto tokens = degreesTokens(plain, language, isCommaDecimal);
    if (!tokens) continue;
    if (auto position = positionOf(*tokens)) return position;
  }
  return std::nullopt;
}

}  // namespace wayloom
