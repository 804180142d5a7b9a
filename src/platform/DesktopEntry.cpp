#include "platform/DesktopEntry.h"

#include <map>

namespace wayloom {

namespace {

/// Raw values by key, locale included: "Name[sv]".
using Values = std::map<std::string_view, std::string_view>;

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view takeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == text.npos ? text.size() : end + 1);
  return trimmed(line);
}

/// The group of the application itself; others, such as its actions, are of no interest.
std::optional<Values> desktopEntryGroup(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::optional<Values> values;
  while (!text.empty()) {
    const std::string_view line = takeLine(text);
    if (line.starts_with('[')) {
      if (values) break;
      if (line == "[Desktop Entry]") values.emplace();
    } else if (const std::size_t equals = line.find('=');
               values && !line.starts_with('#') && equals != line.npos) {
      values->try_emplace(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
    }
  }
  return values;
}

std::string unescaped(std::string_view raw) {
  std::string text;
  for (std::size_t at = 0; at < raw.size(); ++at) {
    if (raw[at] != '\\' || at + 1 == raw.size()) {
      text += raw[at];
      continue;
    }
    constexpr std::string_view kCodes = "sntr\\";
    constexpr std::string_view kMeanings = " \n\t\r\\";
    const std::size_t code = kCodes.find(raw[++at]);
    if (code == kCodes.npos) text += '\\';
    text += code == kCodes.npos ? raw[at] : kMeanings[code];
  }
  return text;
}

std::string localized(const Values& values, const std::string& key,
                      const std::vector<std::string>& locales) {
  for (const std::string& locale : locales) {
    const auto found = values.find(key + "[" + locale + "]");
    if (found != values.end()) return unescaped(found->second);
  }
  const auto found = values.find(key);
  return found == values.end() ? std::string() : unescaped(found->second);
}

}  // namespace

std::optional<DesktopEntry> parseDesktopEntry(std::string_view text,
                                              const std::vector<std::string>& locales) {
  const auto values = desktopEntryGroup(text);
  if (!values) return std::nullopt;
  const auto says = [&](std::string_view key, std::string_view value) {
    const auto found = values->find(key);
    return found != values->end() && found->second == value;
  };
  DesktopEntry entry;
  const bool isOther = values->contains("Type") && !says("Type", "Application");
  entry.isApplication = !isOther && !says("Hidden", "true");
  entry.name = localized(*values, "Name", locales);
  entry.icon = localized(*values, "Icon", locales);
  return entry;
}

}  // namespace wayloom
