#include "settings/PropertyListBinaryReader.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <utility>

#include "settings/BinaryObjectTable.h"
#include "settings/Utf8.h"

namespace wayloom {
namespace {

constexpr std::string_view kMagic = "bplist0";

std::string textFromUtf16(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() / 2);
  const auto unitAt = [&](std::size_t at) {
    return at < bytes.size() ? static_cast<char32_t>(bigEndianNumber(bytes.substr(at, 2))) : U'\0';
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

/// Builds the value from the table's objects. One reader reads one file.
class BinaryReader {
 public:
  explicit BinaryReader(std::string_view bytes) : mTable(bytes) {}

  ParsedPropertyList read() {
    std::optional<PropertyList> root;
    if (mTable.root()) {
      root = objectAt(*mTable.root(), 0);
    }
    return root ? ParsedPropertyList{std::move(root), {}}
                : ParsedPropertyList{std::nullopt, mTable.damage()};
  }

 private:
  using Marker = BinaryObjectTable::Marker;

  std::optional<PropertyList> objectAt(std::uint64_t object, std::size_t depth) {
    if (++mValues > kMaximumPropertyListValues) {
      return mTable.fail("too many values");
    }
    const std::optional<Marker> marker = mTable.markerAt(object);
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
        return mTable.fail("an object of a kind that property lists do not have");
      case 0x1:
        return integerAt(marker);
      case 0x2:
      case 0x3:
        return realOrDateAt(marker);
      case 0x4: {
        const auto bytes = mTable.contents(marker.contents, marker.count, 1);
        return bytes ? std::optional(PropertyList(
                           PropertyList::Value(PropertyList::Data{{bytes->begin(), bytes->end()}})))
                     : std::nullopt;
      }
      case 0x8: {
        const auto bytes = mTable.contents(marker.contents, marker.count + 1, 1);
        if (!bytes || bytes->size() > 8) {
          return mTable.fail("a reference number of more than 8 bytes");
        }
        return PropertyList(PropertyList::Value(PropertyList::Uid{bigEndianNumber(*bytes)}));
      }
      default: {
        std::optional<std::string> text = textAt(marker);
        return text ? std::optional(PropertyList(std::move(*text))) : std::nullopt;
      }
    }
  }

  std::optional<PropertyList> integerAt(const Marker& marker) {
    if (marker.count > 4) {
      return mTable.fail("an integer of more than 16 bytes");
    }
    const auto bytes = mTable.contents(marker.contents, std::uint64_t{1} << marker.count, 1);
    if (!bytes) {
      return std::nullopt;
    }
    // Short integers have no sign; of 16 bytes the upper 8 only say how the lower are meant.
    const bool isLong = bytes->size() == 16;
    const std::uint64_t upper = isLong ? bigEndianNumber(bytes->substr(0, 8)) : 0;
    const std::uint64_t lower = bigEndianNumber(isLong ? bytes->substr(8) : *bytes);
    const bool lowerLooksNegative = lower >> 63u != 0;
    if (isLong && upper == 0 && lowerLooksNegative) {
      return PropertyList(lower);
    }
    const bool isNegative = isLong && upper == std::numeric_limits<std::uint64_t>::max();
    if (upper != 0 && !(isNegative && lowerLooksNegative)) {
      return mTable.fail("an integer of more than 64 bits");
    }
    return PropertyList(static_cast<std::int64_t>(lower));
  }

  std::optional<PropertyList> realOrDateAt(const Marker& marker) {
    const bool isSingle = marker.kind == 0x2 && marker.count == 2;
    if (!isSingle && marker.count != 3) {
      return mTable.fail("a real or date of unknown size");
    }
    const auto bytes = mTable.contents(marker.contents, isSingle ? 4 : 8, 1);
    if (!bytes) {
      return std::nullopt;
    }
    const std::uint64_t bits = bigEndianNumber(*bytes);
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
      return mTable.fail("an object of a kind that property lists do not have");
    }
    const auto bytes = mTable.contents(marker.contents, marker.count, marker.kind == 0x6 ? 2 : 1);
    if (!bytes) {
      return std::nullopt;
    }
    if (marker.kind == 0x6) {
      return textFromUtf16(*bytes);
    }
    if (!isUtf8(*bytes)) {
      return mTable.fail("a text that is neither ASCII nor UTF-8");
    }
    return std::string(*bytes);
  }

  std::optional<PropertyList> arrayAt(const Marker& marker, std::size_t depth) {
    if (depth == kMaximumPropertyListDepth) {
      return mTable.fail("values nested too deeply, or within themselves");
    }
    const auto references = mTable.contents(marker.contents, marker.count, mTable.referenceBytes());
    if (!references) {
      return std::nullopt;
    }
    PropertyList::Array array;
    for (std::uint64_t i = 0; i < marker.count; ++i) {
      std::optional<PropertyList> value = objectAt(mTable.referenceAt(*references, i), depth + 1);
      if (!value) {
        return std::nullopt;
      }
      array.push_back(std::move(*value));
    }
    return PropertyList(std::move(array));
  }

  std::optional<PropertyList> dictionaryAt(const Marker& marker, std::size_t depth) {
    if (depth == kMaximumPropertyListDepth) {
      return mTable.fail("values nested too deeply, or within themselves");
    }
    const auto references =
        mTable.contents(marker.contents, marker.count, mTable.referenceBytes() * 2);
    if (!references) {
      return std::nullopt;
    }
    PropertyList::Dictionary dictionary;
    for (std::uint64_t i = 0; i < marker.count; ++i) {
      const std::optional<Marker> keyMarker = mTable.markerAt(mTable.referenceAt(*references, i));
      std::optional<std::string> key = keyMarker ? textAt(*keyMarker) : std::nullopt;
      if (!key) {
        return std::nullopt;
      }
      const std::uint64_t reference = mTable.referenceAt(*references, marker.count + i);
      std::optional<PropertyList> value = objectAt(reference, depth + 1);
      if (!value) {
        return std::nullopt;
      }
      dictionary.insert_or_assign(std::move(*key), std::move(*value));
    }
    return PropertyList(std::move(dictionary));
  }

  BinaryObjectTable mTable;
  std::size_t mValues = 0;
};

}  // namespace

bool isBinaryPropertyList(std::string_view bytes) {
  return bytes.starts_with(kMagic);
}

ParsedPropertyList parseBinaryPropertyList(std::string_view bytes) {
  return BinaryReader(bytes).read();
}

}  // namespace wayloom
