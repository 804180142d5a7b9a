#include <atomic>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <expat.h>
#include <memory>
#include <osmium/io/bzip2_compression.hpp>
#include <osmium/io/gzip_compression.hpp>
#include <osmium/util/file.hpp>
#include <string_view>

#include "import/ExtractCheck.h"

namespace wayloom {

namespace {

// Expat holds a tag, a comment or a text between quotes until it has seen its end.
constexpr std::int64_t kLongestTokenBytes = 1 << 20;
constexpr int kPieceBytes = 1 << 16;

// A number beyond what libosmium can hold in its 32 bits. What is no number it refuses itself.
bool isBeyondAllBounds(std::string_view text) {
  constexpr double kMostDegrees = 214;
  double degrees = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), degrees);
  return error == std::errc::result_out_of_range || std::abs(degrees) > kMostDegrees;
}

class XmlCheck {
 public:
  XmlCheck() : mParser(XML_ParserCreate(nullptr), XML_ParserFree) {
    XML_SetUserData(mParser.get(), this);
    XML_SetStartElementHandler(mParser.get(), [](void* self, const char*, const char** pairs) {
      static_cast<XmlCheck*>(self)->look(pairs);
    });
    XML_SetEntityDeclHandler(mParser.get(), [](void* self, const char*, int, const char*, int,
                                               const char*, const char*, const char*, const char*) {
      static_cast<XmlCheck*>(self)->stop("it declares entities");
    });
  }

  Status read(std::string_view bytes) {
    while (!bytes.empty()) {
      const auto piece = bytes.substr(0, kPieceBytes);
      bytes.remove_prefix(piece.size());
      mBytes += static_cast<std::int64_t>(piece.size());
      if (auto status = parse(piece, XML_FALSE); !status) return status;
      if (mBytes - XML_GetCurrentByteIndex(mParser.get()) > kLongestTokenBytes) {
        return failed("it holds a text of more than a million characters");
      }
    }
    return done();
  }

  Status finish() { return parse({}, XML_TRUE); }

 private:
  Status parse(std::string_view piece, XML_Bool isLast) {
    const int size = static_cast<int>(piece.size());
    if (XML_Parse(mParser.get(), piece.data(), size, isLast) != XML_STATUS_ERROR) return done();
    if (!mFault.empty()) return failed(mFault);
    return failed(std::string("it is damaged or no OpenStreetMap data: line ") +
                  std::to_string(XML_GetCurrentLineNumber(mParser.get())) + ": " +
                  XML_ErrorString(XML_GetErrorCode(mParser.get())));
  }

  void look(const char** pairs) {
    for (; *pairs; pairs += 2) {
      const std::string_view name = pairs[0];
      const bool isPosition = name.ends_with("lat") || name.ends_with("lon");
      if (isPosition && isBeyondAllBounds(pairs[1])) stop("a position lies outside the world");
    }
  }

  void stop(const char* fault) {
    mFault = fault;
    XML_StopParser(mParser.get(), XML_FALSE);
  }

  std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> mParser;
  std::int64_t mBytes = 0;
  std::string mFault;
};

}  // namespace

Status checkXml(const osmium::io::File& file, const CheckProgress& progress) {
  const int descriptor = osmium::io::detail::open_for_reading(file.filename());
  const double size = static_cast<double>(osmium::file_size(descriptor));
  const auto unpacking = osmium::io::CompressionFactory::instance().create_decompressor(
      file.compression(), descriptor);
  std::atomic<std::size_t> packed{0};
  unpacking->set_offset_ptr(&packed);
  XmlCheck check;
  std::uint64_t unpacked = 0;
  for (std::string bytes = unpacking->read(); !bytes.empty(); bytes = unpacking->read()) {
    unpacked += bytes.size();
    if (unfoldsTooFar(unpacked, packed)) return failed(kUnfoldsTooFar);
    if (auto status = check.read(bytes); !status) return status;
    if (!progress(static_cast<double>(packed) / size)) return failed("interrupted");
  }
  unpacking->close();
  return check.finish();
}

}  // namespace wayloom
