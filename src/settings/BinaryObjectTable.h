#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace wayloom {

/// A big-endian number; `bytes` holds at most eight.
std::uint64_t bigEndianNumber(std::string_view bytes);

/// The objects of a binary property list as bytes: where each stands, of which kind it is and what
/// it holds. Every access is checked against the part of the file that may hold objects; the first
/// damage found is kept. It looks into the bytes it was made from, which must outlive it. It
/// belongs to the one reader that walks through it.
class BinaryObjectTable {
 public:
  /// What an object begins with: its kind, the number beside it, and where its contents begin.
  struct Marker {
    unsigned kind = 0;
    std::uint64_t count = 0;
    std::size_t contents = 0;
  };

  explicit BinaryObjectTable(std::string_view bytes);

  /// The object at the root of the value; nothing when the table itself is damaged.
  std::optional<std::uint64_t> root() const { return mRoot; }

  std::optional<Marker> markerAt(std::uint64_t object);

  /// `count` times `bytesEach` bytes of an object, charged to what the whole value may hold.
  std::optional<std::string_view> contents(std::size_t position, std::uint64_t count,
                                           std::uint64_t bytesEach);

  std::size_t referenceBytes() const { return mReferenceBytes; }
  std::uint64_t referenceAt(std::string_view references, std::uint64_t index) const;

  /// Notes why the file is damaged, unless something else was noted before.
  std::nullopt_t fail(std::string_view why);
  const std::string& damage() const { return mDamage; }

 private:
  void readTrailer(std::string_view bytes);
  bool readLongCount(Marker& marker);

  /// Where objects may stand: everything before the table.
  std::string_view mObjects;
  std::string_view mOffsets;
  std::size_t mOffsetBytes = 1;
  std::size_t mReferenceBytes = 1;
  std::uint64_t mObjectCount = 0;
  std::optional<std::uint64_t> mRoot;
  std::uint64_t mBytesRead = 0;
  std::string mDamage;
};

}  // namespace wayloom
