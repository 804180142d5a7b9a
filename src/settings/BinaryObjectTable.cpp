#include "settings/BinaryObjectTable.h"

#include "settings/PropertyListFormat.h"

namespace wayloom {
namespace {

// bplist00, the objects, the table of their offsets, then a trailer of fixed size:
// 6 unused bytes, offset size, reference size, then count, root and table offset of 8 bytes each.
constexpr std::size_t kHeaderBytes = 8;
constexpr std::size_t kTrailerBytes = 32;
constexpr std::size_t kLongestNumber = 8;

bool isNumberSize(std::size_t bytes) {
  return bytes >= 1 && bytes <= kLongestNumber;
}

}  // namespace

std::uint64_t bigEndianNumber(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) {
    number = number << 8 | static_cast<unsigned char>(byte);
  }
  return number;
}

BinaryObjectTable::BinaryObjectTable(std::string_view bytes) {
  if (bytes.size() < kHeaderBytes + kTrailerBytes) {
    fail("the file is cut short");
    return;
  }
  readTrailer(bytes);
}

void BinaryObjectTable::readTrailer(std::string_view bytes) {
  const std::size_t end = bytes.size() - kTrailerBytes;
  const std::string_view trailer = bytes.substr(end);
  mOffsetBytes = static_cast<unsigned char>(trailer[6]);
  mReferenceBytes = static_cast<unsigned char>(trailer[7]);
  const std::uint64_t table = bigEndianNumber(trailer.substr(24, 8));
  const bool isSane = isNumberSize(mOffsetBytes) && isNumberSize(mReferenceBytes) &&
                      table >= kHeaderBytes && table <= end;
  mObjectCount = bigEndianNumber(trailer.substr(8, 8));
  if (!isSane || mObjectCount > (end - table) / mOffsetBytes) {
    fail("the table of objects lies outside the file");
    return;
  }
  mObjects = bytes.substr(0, table);
  mOffsets = bytes.substr(table, mObjectCount * mOffsetBytes);
  mRoot = bigEndianNumber(trailer.substr(16, 8));
}

std::optional<BinaryObjectTable::Marker> BinaryObjectTable::markerAt(std::uint64_t object) {
  if (object >= mObjectCount) {
    return fail("a reference to no object");
  }
  const std::uint64_t offset =
      bigEndianNumber(mOffsets.substr(object * mOffsetBytes, mOffsetBytes));
  if (offset < kHeaderBytes || offset >= mObjects.size()) {
    return fail("an object outside its part of the file");
  }
  const unsigned byte = static_cast<unsigned char>(mObjects[offset]);
  Marker marker{byte >> 4, byte & 0xF, offset + 1};
  const bool isCounted = marker.kind >= 0x4 && marker.kind != 0x8;
  if (isCounted && marker.count == 0xF && !readLongCount(marker)) {
    return std::nullopt;
  }
  return marker;
}

/// A count of 15 or more follows as an integer object.
bool BinaryObjectTable::readLongCount(Marker& marker) {
  const auto integer = contents(marker.contents, 1, 1);
  if (!integer) {
    return false;
  }
  const unsigned byte = static_cast<unsigned char>(integer->front());
  if (byte < 0x10 || byte > 0x13) {
    fail("a count that is no integer");
    return false;
  }
  const std::size_t size = std::size_t{1} << (byte & 0xF);
  const auto digits = contents(marker.contents + 1, size, 1);
  if (!digits) {
    return false;
  }
  marker.count = bigEndianNumber(*digits);
  marker.contents += 1 + size;
  return true;
}

std::optional<std::string_view> BinaryObjectTable::contents(std::size_t position,
                                                            std::uint64_t count,
                                                            std::uint64_t bytesEach) {
  if (count > (mObjects.size() - position) / bytesEach) {
    return fail("an object reaches beyond its part of the file");
  }
  const std::uint64_t size = count * bytesEach;
  if (size > kMaximumPropertyListBytes - mBytesRead) {
    return fail("objects shared until they are too large");
  }
  mBytesRead += size;
  return mObjects.substr(position, size);
}

std::uint64_t BinaryObjectTable::referenceAt(std::string_view references,
                                             std::uint64_t index) const {
  return bigEndianNumber(references.substr(index * mReferenceBytes, mReferenceBytes));
}

std::nullopt_t BinaryObjectTable::fail(std::string_view why) {
  if (mDamage.empty()) {
    mDamage = why;
  }
  return std::nullopt;
}

}  // namespace wayloom
