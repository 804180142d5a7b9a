#include "places/LinkParts.h"

#include <algorithm>

namespace wayloom {

namespace {

int hexDigit(char character) {
  if (character >= '0' && character <= '9') return character - '0';
  const int letter = character | 0x20;
  return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

/// In queries a blank is a plus.
std::string decoded(std::string_view text) {
  std::string spaced(text);
  std::replace(spaced.begin(), spaced.end(), '+', ' ');
  return unescaped(spaced);
}

void addParameters(std::string_view text, LinkParameters& parameters) {
  while (!text.empty()) {
    std::string_view value = takeUntil(text, '&');
    const std::string name = decoded(takeUntil(value, '='));
    if (!value.empty()) parameters.emplace_back(name, decoded(value));
  }
}

}  // namespace

std::string unescaped(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isEscape = text[at] == '%' && at + 2 < text.size() && hexDigit(text[at + 1]) >= 0 &&
                          hexDigit(text[at + 2]) >= 0;
    if (isEscape) {
      result += static_cast<char>(hexDigit(text[at + 1]) * 16 + hexDigit(text[at + 2]));
      at += 2;
    } else {
      result += text[at];
    }
  }
  return result;
}

LinkParts linkParts(std::string_view text) {
  LinkParts link;
  std::string_view fragment = text;
  std::string_view query = takeUntil(fragment, '#');
  std::string_view path = takeUntil(query, '?');
  if (const std::size_t scheme = path.find("://"); scheme != path.npos) {
    path.remove_prefix(scheme + 3);
  } else if (const std::size_t colon = path.find(':'); colon != path.npos) {
    addParameters(path.substr(colon + 1), link.parameters);  // "google.navigation:q=…"
  }
  link.host = takeUntil(path, '/');
  while (!path.empty()) link.path.push_back(decoded(takeUntil(path, '/')));
  addParameters(query, link.parameters);
  link.query = decoded(query);
  link.fragment = decoded(fragment);
  if (fragment.find('=') != fragment.npos) addParameters(fragment, link.parameters);
  return link;
}

LinkParameters linkParameters(std::string_view query) {
  LinkParameters parameters;
  addParameters(query, parameters);
  return parameters;
}

const std::string* valueOf(const LinkParameters& parameters, std::string_view name) {
  for (const auto& [key, value] : parameters) {
    if (key == name) return &value;
  }
  return nullptr;
}

std::string_view takeUntil(std::string_view& text, char separator) {
  const std::size_t end = std::min(text.find(separator), text.size());
  const std::string_view taken = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return taken;
}

}  // namespace wayloom
