#include "platform/SpringBoardHomeScreen.h"

#include <cstdint>
#include <dlfcn.h>
#include <utility>

namespace wayloom {

namespace {

// The platform's own types, as far as a caller sees them.
using Object = const void*;
using Index = long;
using Boolean = unsigned char;
constexpr std::uint32_t kUtf8Encoding = 0x08000100;

constexpr const char* kServicesPath =
    "/System/Library/PrivateFrameworks/SpringBoardServices.framework/SpringBoardServices";
constexpr const char* kFoundationPath =
    "/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation";

template <typename Function>
bool find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  return function != nullptr;
}

}  // namespace

struct SpringBoardHomeScreen::Functions {
  Object (*copyIdentifiers)(bool onlyActive, bool debuggable) = nullptr;
  Object (*copyName)(Object identifier) = nullptr;
  Object (*copyIcon)(Object identifier) = nullptr;

  Index (*arrayCount)(Object array) = nullptr;
  Object (*arrayValue)(Object array, Index index) = nullptr;
  Object (*makeString)(Object allocator, const char* bytes, Index count, std::uint32_t encoding,
                       Boolean hasByteOrderMark) = nullptr;
  Index (*stringLength)(Object string) = nullptr;
  Index (*maximumSize)(Index length, std::uint32_t encoding) = nullptr;
  Boolean (*stringBytes)(Object string, char* buffer, Index size, std::uint32_t encoding) = nullptr;
  Index (*dataLength)(Object data) = nullptr;
  const char* (*dataBytes)(Object data) = nullptr;
  void (*release)(Object object) = nullptr;

  /// Whether the libraries have them all. The libraries stay loaded: they are the system's own.
  bool load(const char* services, const char* foundation) {
    void* const board = dlopen(services, RTLD_LAZY | RTLD_LOCAL);
    void* const base = dlopen(foundation, RTLD_LAZY | RTLD_LOCAL);
    return board && base && find(board, "SBSCopyApplicationDisplayIdentifiers", copyIdentifiers) &&
           find(board, "SBSCopyLocalizedApplicationNameForDisplayIdentifier", copyName) &&
           find(board, "SBSCopyIconImagePNGDataForDisplayIdentifier", copyIcon) &&
           find(base, "CFArrayGetCount", arrayCount) &&
           find(base, "CFArrayGetValueAtIndex", arrayValue) &&
           find(base, "CFStringCreateWithBytes", makeString) &&
           find(base, "CFStringGetLength", stringLength) &&
           find(base, "CFStringGetMaximumSizeForEncoding", maximumSize) &&
           find(base, "CFStringGetCString", stringBytes) &&
           find(base, "CFDataGetLength", dataLength) && find(base, "CFDataGetBytePtr", dataBytes) &&
           find(base, "CFRelease", release);
  }

  /// An object that the platform gave into our hands; null stays null.
  using Owned = std::unique_ptr<const void, void (*)(Object)>;
  Owned own(Object object) const { return {object, release}; }

  Owned toObject(const std::string& text) const {
    return own(
        makeString(nullptr, text.data(), static_cast<Index>(text.size()), kUtf8Encoding, false));
  }

  std::optional<std::string> toText(Object string) const {
    const Index size = maximumSize(stringLength(string), kUtf8Encoding) + 1;
    std::string text(static_cast<std::size_t>(size), '\0');
    if (!stringBytes(string, text.data(), size, kUtf8Encoding)) return std::nullopt;
    text.resize(text.find('\0'));
    return text;
  }
};

SpringBoardHomeScreen::SpringBoardHomeScreen(std::unique_ptr<const Functions> functions)
    : mFunctions(std::move(functions)) {}

SpringBoardHomeScreen::~SpringBoardHomeScreen() = default;

std::unique_ptr<SpringBoardHomeScreen> SpringBoardHomeScreen::open() {
  return open(kServicesPath, kFoundationPath);
}

std::unique_ptr<SpringBoardHomeScreen> SpringBoardHomeScreen::open(
    const std::filesystem::path& services, const std::filesystem::path& foundation) {
  auto functions = std::make_unique<Functions>();
  if (!functions->load(services.c_str(), foundation.c_str())) return nullptr;
  return std::unique_ptr<SpringBoardHomeScreen>(new SpringBoardHomeScreen(std::move(functions)));
}

std::optional<std::vector<std::string>> SpringBoardHomeScreen::identifiers(
    Selection selection) const {
  const auto array =
      mFunctions->own(mFunctions->copyIdentifiers(selection.onlyActive, selection.debuggable));
  if (!array) return std::nullopt;
  std::vector<std::string> identifiers;
  const Index count = mFunctions->arrayCount(array.get());
  for (Index index = 0; index < count; ++index) {
    if (auto text = mFunctions->toText(mFunctions->arrayValue(array.get(), index))) {
      identifiers.push_back(std::move(*text));
    }
  }
  return identifiers;
}

std::optional<std::string> SpringBoardHomeScreen::localizedName(
    const std::string& identifier) const {
  const auto object = mFunctions->toObject(identifier);
  if (!object) return std::nullopt;
  const auto name = mFunctions->own(mFunctions->copyName(object.get()));
  return name ? mFunctions->toText(name.get()) : std::nullopt;
}

std::optional<std::string> SpringBoardHomeScreen::iconPng(const std::string& identifier) const {
  const auto object = mFunctions->toObject(identifier);
  if (!object) return std::nullopt;
  const auto data = mFunctions->own(mFunctions->copyIcon(object.get()));
  if (!data) return std::nullopt;
  const auto length = static_cast<std::size_t>(mFunctions->dataLength(data.get()));
  return std::string(mFunctions->dataBytes(data.get()), length);
}

}  // namespace wayloom
