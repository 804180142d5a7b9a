// A stand-in for the phone's home screen service and the few functions of its base library, with
// the same names and calling conventions. It counts the objects that its caller must release.

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

struct Object {
  std::string text;
  std::vector<const Object*> array;
};

long living = 0;
const std::string kCyrillic = "Карты";

const Object* give(Object object) {
  ++living;
  return new Object(std::move(object));
}

const Object* as(const void* object) {
  return static_cast<const Object*>(object);
}

}  // namespace

#define EXPORTED extern "C" __attribute__((visibility("default")))

EXPORTED long standInLiving() {
  return living;
}

EXPORTED const void* SBSCopyApplicationDisplayIdentifiers(bool onlyActive, bool debuggable) {
  static const Object maps{"com.example.Maps", {}}, twin{"com.example.maps", {}}, bare{"bare", {}};
  if (debuggable) return nullptr;
  if (onlyActive) return give({"", {&bare}});
  return give({"", {&twin, &maps, &bare}});
}

EXPORTED const void* SBSCopyLocalizedApplicationNameForDisplayIdentifier(const void* identifier) {
  if (as(identifier)->text == "com.example.Maps") return give({kCyrillic, {}});
  if (as(identifier)->text == "com.example.maps") return give({"", {}});
  return nullptr;
}

EXPORTED const void* SBSCopyIconImagePNGDataForDisplayIdentifier(const void* identifier) {
  if (as(identifier)->text != "com.example.Maps") return nullptr;
  return give({std::string("\x89PNG\0bytes", 10), {}});
}

EXPORTED long CFArrayGetCount(const void* array) {
  return static_cast<long>(as(array)->array.size());
}

EXPORTED const void* CFArrayGetValueAtIndex(const void* array, long index) {
  return as(array)->array.at(static_cast<std::size_t>(index));
}

EXPORTED const void* CFStringCreateWithBytes(const void*, const unsigned char* bytes, long count,
                                             std::uint32_t encoding, unsigned char) {
  const std::string text(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
  return encoding == 0x08000100 && text.find('\xff') == text.npos ? give({text, {}}) : nullptr;
}

EXPORTED long CFStringGetLength(const void* string) {
  return static_cast<long>(as(string)->text.size() / 2);
}

EXPORTED long CFStringGetMaximumSizeForEncoding(long length, std::uint32_t) {
  return length * 3;
}

EXPORTED unsigned char CFStringGetCString(const void* string, char* buffer, long size,
                                          std::uint32_t) {
  const std::string& text = as(string)->text;
  if (static_cast<long>(text.size()) >= size) return 0;
  std::memcpy(buffer, text.c_str(), text.size() + 1);
  return 1;
}

EXPORTED long CFDataGetLength(const void* data) {
  return static_cast<long>(as(data)->text.size());
}

EXPORTED const unsigned char* CFDataGetBytePtr(const void* data) {
  return reinterpret_cast<const unsigned char*>(as(data)->text.data());
}

EXPORTED void CFRelease(const void* object) {
  --living;
  delete as(object);
}
