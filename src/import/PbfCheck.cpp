#include <algorithm>
#include <fstream>
#include <osmium/io/detail/pbf_decoder.hpp>
#include <osmium/util/file.hpp>
#include <protozero/pbf_reader.hpp>
#include <span>

#include "import/ExtractCheck.h"

namespace wayloom {

namespace {

namespace format = osmium::io::detail;
using protozero::data_view;
using protozero::pbf_reader;
using protozero::pbf_wire_type;
using Deltas = protozero::iterator_range<pbf_reader::const_sint64_iterator>;

// Thrown and caught in this file only: it comes up from as deep as what libosmium throws.
struct Refusal {
  const char* why;
};

// The fields of an object that libosmium reckons with, by the numbers that the format gives them.
// Those named in the plural are packed, each number as the difference from the one before.
enum class FieldContent { kId, kZigZagId, kIds, kLatitude, kLatitudes, kLongitude, kLongitudes };
struct Field {
  protozero::pbf_tag_type number;
  FieldContent content;
};
constexpr Field kNode[] = {
    {1, FieldContent::kZigZagId}, {8, FieldContent::kLatitude}, {9, FieldContent::kLongitude}};
constexpr Field kDenseNodes[] = {
    {1, FieldContent::kIds}, {8, FieldContent::kLatitudes}, {9, FieldContent::kLongitudes}};
constexpr Field kWay[] = {{1, FieldContent::kId},
                          {8, FieldContent::kIds},
                          {9, FieldContent::kLatitudes},
                          {10, FieldContent::kLongitudes}};
constexpr Field kRelation[] = {{1, FieldContent::kId}, {9, FieldContent::kIds}};
// A group's field 1 is a node, and so on.
constexpr std::span<const Field> kObjects[] = {kNode, kDenseNodes, kWay, kRelation};

void checkId(std::int64_t id) {
  if (id > kHighestObject || id < -kHighestObject) throw Refusal{"an id is beyond all bounds"};
}

// One block and the objects in it.
class BlockCheck {
 public:
  explicit BlockCheck(const data_view& block) {
    constexpr int kGranularity = 17, kLatitudeOffset = 19, kLongitudeOffset = 20;
    constexpr int kTexts = 1, kGroup = 2;
    for (pbf_reader scale(block); scale.next();) {
      const bool isNumber = scale.wire_type() == pbf_wire_type::varint;
      if (isNumber && scale.tag() == kGranularity) {
        mGranularity = scale.get_int32();
      } else if (isNumber && scale.tag() == kLatitudeOffset) {
        mLatitude.offset = scale.get_int64();
      } else if (isNumber && scale.tag() == kLongitudeOffset) {
        mLongitude.offset = scale.get_int64();
      } else {
        scale.skip();
      }
    }
    for (pbf_reader texts(block); texts.next(kTexts, pbf_wire_type::length_delimited);) {
      checkTexts(texts.get_message());
    }
    for (pbf_reader groups(block); groups.next(kGroup, pbf_wire_type::length_delimited);) {
      checkGroup(groups.get_message());
    }
  }

 private:
  struct Axis {
    std::int64_t mostDegrees;
    std::int64_t offset;
  };

  // libosmium takes the lengths for granted here and zero bytes for ends there, and so reads on
  // behind its buffer.
  static void checkTexts(pbf_reader texts) {
    while (texts.next()) {
      if (texts.wire_type() != pbf_wire_type::length_delimited) {
        texts.skip();
        continue;
      }
      const data_view text = texts.get_view();
      if (std::find(text.data(), text.data() + text.size(), '\0') != text.data() + text.size()) {
        throw Refusal{"a text holds a zero byte"};
      }
    }
  }

  void checkGroup(pbf_reader group) const {
    while (group.next()) {
      const bool isObject = group.wire_type() == pbf_wire_type::length_delimited &&
                            group.tag() >= 1 && group.tag() <= std::size(kObjects);
      if (isObject) {
        const auto& fields = kObjects[group.tag() - 1];  // Taking the message forgets its tag.
        checkObject(group.get_message(), fields);
      } else {
        group.skip();
      }
    }
  }

  void checkObject(pbf_reader object, std::span<const Field> fields) const {
    while (object.next()) {
      const auto field = std::find_if(fields.begin(), fields.end(), [&](const Field& each) {
        return each.number == object.tag();
      });
      const bool isSingle = object.wire_type() == pbf_wire_type::varint;
      if (field != fields.end() && isSingle) {
        checkNumber(object, field->content);
      } else if (field != fields.end() && object.wire_type() == pbf_wire_type::length_delimited) {
        checkNumbers(object.get_packed_sint64(), field->content);
      } else {
        object.skip();
      }
    }
  }

  void checkNumber(pbf_reader& object, FieldContent content) const {
    if (content == FieldContent::kId) return checkId(object.get_int64());
    check(object.get_sint64(), content);
  }

  void checkNumbers(const Deltas& deltas, FieldContent content) const {
    std::int64_t number = 0;
    for (const std::int64_t delta : deltas) {
      if (__builtin_add_overflow(number, delta, &number)) throw Refusal{"its numbers overflow"};
      check(number, content);
    }
  }

  void check(std::int64_t number, FieldContent content) const {
    switch (content) {
      case FieldContent::kId:
      case FieldContent::kZigZagId:
      case FieldContent::kIds:
        return checkId(number);
      case FieldContent::kLatitude:
      case FieldContent::kLatitudes:
        return checkDegrees(number, mLatitude);
      case FieldContent::kLongitude:
      case FieldContent::kLongitudes:
        return checkDegrees(number, mLongitude);
    }
  }

  void checkDegrees(std::int64_t number, const Axis& axis) const {
    std::int64_t billionths = 0;
    if (__builtin_mul_overflow(number, mGranularity, &billionths) ||
        __builtin_add_overflow(billionths, axis.offset, &billionths) ||
        std::abs(billionths / format::lonlat_resolution) > axis.mostDegrees) {
      throw Refusal{"a position lies outside the world"};
    }
  }

  std::int64_t mGranularity = 100;
  Axis mLatitude = {90, 0};
  Axis mLongitude = {180, 0};
};

// The bytes of a file, piece by piece.
class Pieces {
 public:
  explicit Pieces(const std::string& path) : mStream(path, std::ios::binary) {}

  std::uint64_t passed() const { return mPassed; }

  // Nothing at the end of the file.
  std::string next(std::size_t size) {
    std::string bytes(size, '\0');
    if (!mStream.read(bytes.data(), static_cast<std::streamsize>(size))) return {};
    mPassed += size;
    return bytes;
  }

  // The content of the next blob as the file packs it; nothing at the end of the file.
  std::string nextBlob() {
    constexpr std::size_t kLengthBytes = 4;
    std::size_t headerSize = 0;
    for (const char byte : next(kLengthBytes)) {
      headerSize = headerSize << 8 | static_cast<unsigned char>(byte);
    }
    if (headerSize > format::max_blob_header_size) throw osmium::pbf_error("blob header too long");
    const std::string header = next(headerSize);
    constexpr int kType = 1;
    constexpr int kDataSize = 3;
    bool hasType = false;
    std::int32_t size = 0;
    for (pbf_reader reader(header); reader.next();) {
      if (reader.tag() == kDataSize && reader.wire_type() == pbf_wire_type::varint) {
        size = reader.get_int32();
      } else if (reader.tag() == kType && reader.wire_type() == pbf_wire_type::length_delimited) {
        hasType = reader.get_view().size() > 0;
      } else {
        reader.skip();
      }
    }
    // libosmium compares the type of a blob without any with a null pointer.
    if (!header.empty() && !hasType) throw osmium::pbf_error("blob without a type");
    if (size < 0 || static_cast<std::uint64_t>(size) > format::max_uncompressed_blob_size) {
      throw osmium::pbf_error("blob too long");
    }
    return next(static_cast<std::size_t>(size));
  }

 private:
  std::ifstream mStream;
  std::uint64_t mPassed = 0;
};

}  // namespace

Status checkPbf(const osmium::io::File& file, const CheckProgress& progress) {
  const double size = static_cast<double>(osmium::file_size(file.filename()));
  Pieces pieces(file.filename());
  std::uint64_t unpackedBytes = 0;
  bool isHeader = true;
  std::string unpacked;
  for (std::string packed = pieces.nextBlob(); !packed.empty(); packed = pieces.nextBlob()) {
    const data_view block = format::decode_blob(packed, unpacked);
    unpackedBytes += block.size();
    if (unfoldsTooFar(unpackedBytes, pieces.passed())) return failed(kUnfoldsTooFar);
    try {
      if (!isHeader) (void)BlockCheck(block);
    } catch (const Refusal& refusal) {
      return failed(refusal.why);
    }
    isHeader = false;
    if (!progress(static_cast<double>(pieces.passed()) / size)) return failed("interrupted");
  }
  return done();
}

}  // namespace wayloom
