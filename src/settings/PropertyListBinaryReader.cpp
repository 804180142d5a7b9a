#include "settings/PropertyListBinaryReader.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <utility>

#include "settings/Utf8.h"

namespace wayloom {
namespace {

// bplist00, the objects, the table of their offsets, then a trailer of fixed size:
// 6 unused bytes, offset size, reference size, then count, root and table offset of 8 bytes each.
constexpr std::string_view kMagic = "bplist0";
constexpr std::size_t kHeaderBytes = 8;
constexpr std::size_t kTrailerBytes = 32;

/// A big-endian number; `bytes` holds at most eight.
std::uint64_t numberFrom(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) {
    number = number << 8 | static_cast<unsigned char>(byte);
  }
  return number;
}

std::string textFromUtf16(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() / 2);
  const auto unitAt = [&](std::size_t at) {
    return at < bytes.size() ? static_cast<char32_t>(numberFrom(bytes.substr(at, 2))) : U'\0';
  };
  for (std::size_t at = 0; at < bytes.size(); at += 2) {
    const char32_t unit = unitAt(at);
    const char32_t next = unitAt(at + 2);
    if ((unit & 0xF800) != 0xD800) {
      appendUtf8(text, unit);
    } else if (unit < 0xDC00 && (next & 0xFC00) == 0xDC00) {
      appendUtf8(text, 0x10000 + ((unit & 0x3FF) << 10 | (next & 0x3FF)));
      at += 2;
    } else {
      appendUtf8(text, kReplacementCharacter);
    }
  }
  return text;
}

bool isUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Step step = utf8Step(text, at);
    if (!step.valid) {
      return false;
    }
    at += step.length;
  }
  return true;
}

/// Reads the objects of one file. Every read is checked against the part of the file that may hold
/// objects; the first damage ends it.
class BinaryReader {
 public:
  explicit BinaryReader(std::string_view bytes) : mBytes(bytes) {}

  ParsedPropertyList read() {
    std::optional<PropertyList> root;
    if (readTrailer()) {
      root = objectAt(mRoot, 0);
    }
    return root ? ParsedPropertyList{std::move(root), {}}
                : ParsedPropertyList{std::nullopt, std::move(mDamage)};
  }

 private:
  /// What an object begins with: its kind, the number beside it, and where its contents begin.
  struct Marker {
    unsigned kind = 0;
    std::uint64_t count = 0;
    std::size_t contents = 0;
  };

  std::nullopt_t fail(std::string_view why) {
    if (mDamage.empty()) {
      mDamage = why;
    }
    return std::nullopt;
  }

  bool readTrailer() {
    if (mBytes.size() < kHeaderBytes + kTrailerBytes) {
      fail("the file is cut short");
      return false;
    }
    const std::string_view trailer = mBytes.substr(mBytes.size() - kTrailerBytes);
    mOffsetBytes = static_cast<unsigned char>(trailer[6]);
    mReferenceBytes = static_cast<unsigned char>(trailer[7]);
    mObjectCount = numberFrom(trailer.substr(8, 8));
    mRoot = numberFrom(trailer.substr(16, 8));
    const std::uint64_t table = numberFrom(trailer.substr(24, 8));
    const std::size_t tableEnd = mBytes.size() - kTrailerBytes;
    const bool sizesAreSane = mOffsetBytes >= 1 && mOffsetBytes <= 8 && mReferenceBytes >= 1 &&
                              mReferenceBytes <= 8 && table >= kHeaderBytes && table <= tableEnd;
    if (!sizesAreSane || mObjectCount > (tableEnd - table) / mOffsetBytes) {
      fail("the table of objects lies outside the file");
      return false;
    }
    mTable = mBytes.substr(table, mObjectCount * mOffsetBytes);
    mObjects = mBytes.substr(0, table);
    return true;
  }

  /// The bytes of an object's contents, charged to what the whole value may hold.
  std::optional<std::string_view> contents(std::size_t position, std::uint64_t count,
                                           std::uint64_t bytesEach) {
    const std::uint64_t available = (mObjects.size() - position) / bytesEach;
    if (count > available) {
      return fail("an object reaches beyond its part of the file");
    }
    const std::uint64_t size = count * bytesEach;
    if (size > kMaximumPropertyListBytes - mBytesRead) {
      return fail("objects shared until they are too large");
    }
    mBytesRead += size;
    return mObjects.substr(position, size);
  }

  std::optional<Marker> markerAt(std::uint64_t object) {
    if (object >= mObjectCount) {
      return fail("a reference to no object");
    }
    const std::uint64_t offset = numberFrom(mTable.substr(object * mOffsetBytes, mOffsetBytes));
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
  bool readLongCount(Marker& marker) {
    const auto integer = contents(marker.contents, 1, 1);
    if (!integer) {
      return false;
    }
    const auto byte = static_cast<unsigned char>(integer->front());
    if (byte < 0x10 || byte > 0x13) {
      fail("a count that is no integer");
      return false;
    }
    const std::size_t size = std::size_t{1} << (byte & 0xF);
    const auto digits = contents(marker.contents + 1, size, 1);
    if (!digits) {
      return false;
    }
    marker.count = numberFrom(*digits);
    marker.contents += 1 + size;
    return true;
  }

  std::optional<PropertyList> objectAt(std::uint64_t object, std::size_t depth) {
    if (++mValues > kMaximumPropertyListValues) {
      return fail("too many values");
    }
    const std::optional<Marker> marker = markerAt(object);
    if (!marker) {
      return std::nullopt;
    }
    switch (marker->kind) {
      case 0xA:
        return arrayAt(*marker, depth);
      case 0xD:
        return dictionaryAt(*marker, depth);
      default:
        return scalarAt(*marker);
    }
  }

  std::optional<PropertyList> scalarAt(const Marker& marker) {
    switch (marker.kind) {
      case 0x0:
        if (marker.count == 8 || marker.count == 9) {
          return PropertyList(marker.count == 9);
        }
        return fail("an object of a kind that property lists do not have");
      case 0x1:
        return integerAt(marker);
      case 0x2:
      case 0x3:
        return realOrDateAt(marker);
      case 0x4: {
        const auto bytes = contents(marker.contents, marker.count, 1);
        return bytes ? std::optional(PropertyList(
                           PropertyList::Value(PropertyList::Data{{bytes->begin(), bytes->end()}})))
                     : std::nullopt;
      }
      case 0x8: {
        const auto bytes = contents(marker.contents, marker.count + 1, 1);
        if (!bytes || bytes->size() > 8) {
          return fail("a reference number of more than 8 bytes");
        }
        return PropertyList(PropertyList::Value(PropertyList::Uid{numberFrom(*bytes)}));
      }
      default: {
        std::optional<std::string> text = textAt(marker);
        return text ? std::optional(PropertyList(std::move(*text))) : std::nullopt;
      }
    }
  }

  std::optional<PropertyList> integerAt(const Marker& marker) {
    if (marker.count > 4) {
      return fail("an integer of more than 16 bytes");
    }
    const auto bytes = contents(marker.contents, std::uint64_t{1} << marker.count, 1);
    if (!bytes) {
      return std::nullopt;
    }
    // Short integers have no sign; of 16 bytes the upper 8 only say how the lower are meant.
    const bool isLong = bytes->size() == 16;
    const std::uint64_t upper = isLong ? numberFrom(bytes->substr(0, 8)) : 0;
    const std::uint64_t lower = numberFrom(isLong ? bytes->substr(8) : *bytes);
    const bool lowerLooksNegative = lower >> 63u != 0;
    if (isLong && upper == 0 && lowerLooksNegative) {
      return PropertyList(lower);
    }
    const bool isNegative = isLong && upper == std::numeric_limits<std::uint64_t>::max();
    if (upper != 0 && !(isNegative && lowerLooksNegative)) {
      return fail("an integer of more than 64 bits");
    }
    return PropertyList(static_cast<std::int64_t>(lower));
  }

  std::optional<PropertyList> realOrDateAt(const Marker& marker) {
    const bool isSingle = marker.kind == 0x2 && marker.count == 2;
    if (!isSingle && marker.count != 3) {
      return fail("a real or date of unknown size");
    }
    const auto bytes = contents(marker.contents, isSingle ? 4 : 8, 1);
    if (!bytes) {
      return std::nullopt;
    }
    const std::uint64_t bits = numberFrom(*bytes);
    if (isSingle) {
      return PropertyList(
          static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits))));
    }
    const auto number = std::bit_cast<double>(bits);
    return marker.kind == 0x2 ? PropertyList(number)
                              : PropertyList(PropertyList::Value(PropertyList::Date{number}));
  }

  std::optional<std::string> textAt(const Marker& marker) {
    if (marker.kind != 0x5 && marker.kind != 0x6) {
      return fail("an object of a kind that property lists do not have");
    }
    const auto bytes = contents(marker.contents, marker.count, marker.kind == 0x6 ? 2 : 1);
    if (!bytes) {
      return std::nullopt;
    }
    if (marker.kind == 0x6) {
      return textFromUtf16(*bytes);
    }
    if (!isUtf8(*bytes)) {
      return fail("a text that is neither ASCII nor UTF-8");
    }
    return std::string(*bytes);
  }

  std::uint64_t referenceAt(std::string_view references, std::uint64_t index) const {
    return numberFrom(references.substr(index * mReferenceBytes, mReferenceBytes));
  }

  std::optional<PropertyList> arrayAt(const Marker& marker, std::size_t depth) {
    if (depth == kMaximumPropertyListDepth) {
      return fail("values nested too deeply, or within themselves");
    }
    const auto references = contents(marker.contents, marker.count, mReferenceBytes);
    if (!references) {
      return std::nullopt;
    }
    PropertyList::Array array;
    for (std::uint64_t i = 0; i < marker.count; ++i) {
      std::optional<PropertyList> value = objectAt(referenceAt(*references, i), depth + 1);
      if (!value) {
        return std::nullopt;
      }
      array.push_back(std::move(*value));
    }
    return PropertyList(std::move(array));
  }

  std::optional<PropertyList> dictionaryAt(const Marker& marker, std::size_t depth) {
    if (depth == kMaximumPropertyListDepth) {
      return fail("values nested too deeply, or within themselves");
    }
    const auto references = contents(marker.contents, marker.count, mReferenceBytes * 2);
    if (!references) {
      return std::nullopt;
    }
    PropertyList::Dictionary dictionary;
    for (std::uint64_t i = 0; i < marker.count; ++i) {
      const std::optional<Marker> keyMarker = markerAt(referenceAt(*references, i));
      std::optional<std::string> key = keyMarker ? textAt(*keyMarker) : std::nullopt;
      if (!key) {
        return std::nullopt;
      }
      const std::uint64_t reference = referenceAt(*references, marker.count + i);
      std::optional<PropertyList> value = objectAt(reference, depth + 1);
      if (!value) {
        return std::nullopt;
      }
      dictionary.insert_or_assign(std::move(*key), std::move(*value));
    }
    return PropertyList(std::move(dictionary));
  }

  std::string_view mBytes;
  /// Where objects may stand: everything before the table.
  std::string_view mObjects;
  std::string_view mTable;
  std::size_t mOffsetBytes = 0;
  std::size_t mReferenceBytes = 0;
  std::uint64_t mObjectCount = 0;
  std::uint64_t mRoot = 0;
  std::size_t mValues = 0;
  std::uint64_t mBytesRead = 0;
  std::string mDamage;
};

}  // namespace

bool isBinaryPropertyList(std::string_view bytes) {
  return bytes.starts_with(kMagic);
}

ParsedPropertyList parseBinaryPropertyList(std::string_view bytes) {
  return BinaryReader(bytes).read();
}

}  // namespace wayloom
