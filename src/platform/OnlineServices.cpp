#include "platform/OnlineServices.h"

#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <optional>
#include <system_error>
#include <utility>

namespace wayloom {

namespace {

constexpr std::size_t kFileLimitBytes = 64 << 10;

/// The whole file; nothing when it cannot be read or is larger than the limit.
std::optional<std::string> contents(const std::filesystem::path& file) {
  std::error_code failure;
  // A pipe or a device would keep the reader waiting.
  if (!std::filesystem::is_regular_file(file, failure)) return std::nullopt;
  std::ifstream stream(file, std::ios::binary);
  std::string text(kFileLimitBytes + 1, '\0');
  stream.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (stream.bad() || !stream.eof()) return std::nullopt;
  text.resize(static_cast<std::size_t>(stream.gcount()));
  return text;
}

/// Whether `address` is scheme, host and perhaps port and path, to which a path can be added.
bool isBaseAddress(std::string_view address) {
  for (const std::string_view scheme : {"http://", "https://"}) {
    if (!address.starts_with(scheme)) continue;
    const std::string_view rest = address.substr(scheme.size());
    const bool hasHost = !rest.empty() && rest.front() != '/' && rest.front() != ':';
    for (const char letter : rest) {
      if (letter <= ' ' || letter == 0x7f) return false;
    }
    return hasHost && rest.find_first_of("?#@\\\"<>") == rest.npos;
  }
  return false;
}

}  // namespace

std::filesystem::path OnlineServices::defaultFile() {
  const auto folder = [](const char* variable) {
    const char* value = std::getenv(variable);
    std::filesystem::path path = value ? value : "";
    return path.is_absolute() ? path : std::filesystem::path();
  };
  std::filesystem::path configuration = folder("XDG_CONFIG_HOME");
  if (configuration.empty()) {
    const std::filesystem::path home = folder("HOME");
    if (home.empty()) return {};
    configuration = home / ".config";
  }
  return configuration / "wayloom" / "services.json";
}

OnlineServices OnlineServices::read(const std::filesystem::path& file) {
  std::error_code failure;
  const auto status = std::filesystem::status(file, failure);
  if (status.type() == std::filesystem::file_type::not_found) return {};
  const auto text = contents(file);
  if (!text) return damaged(file, "it cannot be read or is too large");
  const auto document = nlohmann::json::parse(*text, nullptr, /*allow_exceptions=*/false);
  if (!document.is_object()) return damaged(file, "it is not a JSON object");
  OnlineServices services;
  bool online = false;
  for (const auto& [key, value] : document.items()) {
    if (key == "online") {
      if (!value.is_boolean()) return damaged(file, "\"online\" must be true or false");
      online = value.get<bool>();
    } else {
      std::string address = value.is_string() ? value.get<std::string>() : "";
      if (!isBaseAddress(address)) {
        const std::string quoted = nlohmann::json(key).dump(-1, ' ', /*ensure_ascii=*/true);
        return damaged(file, quoted + " must be an address such as \"https://example.org\"");
      }
      while (address.ends_with('/')) address.pop_back();
      services.mAddresses.emplace(key, std::move(address));
    }
  }
  return online ? services : OnlineServices();
}

const std::string& OnlineServices::address(std::string_view service) const {
  static const std::string off;
  const auto found = mAddresses.find(service);
  return found == mAddresses.end() ? off : found->second;
}

OnlineServices OnlineServices::damaged(const std::filesystem::path& file,
                                       const std::string& reason) {
  OnlineServices services;
  services.mError = "Online services stay off because of " + file.string() + ": " + reason + ".";
  return services;
}

}  // namespace wayloom
