#include "settings/PropertyListXmlWriter.h"

#include <set>
#include <type_traits>
#include <utility>

#include "settings/PropertyListScalars.h"
#include "settings/Utf8.h"

namespace wayloom {
namespace {

constexpr std::string_view kHeader =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n";
constexpr std::string_view kFooter = "</plist>\n";

/// The characters that an XML 1.0 document may hold.
bool isXmlCharacter(char32_t character) {
  if (character < 0x20) {
    return character == '\t' || character == '\n' || character == '\r';
  }
  return character != 0xFFFE && character != 0xFFFF;
}

/// The text with everything that XML cannot hold replaced.
std::string cleaned(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Step step = utf8Step(text, at);
    if (step.valid && isXmlCharacter(step.character)) {
      clean += text.substr(at, step.length);
    } else {
      appendUtf8(clean, kReplacementCharacter);
    }
    at += step.length;
  }
  return clean;
}

std::string escaped(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '\r':
        // As itself it would read back as a line feed.
        escaped += "&#13;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

}  // namespace

template <typename ValueAt>
void PropertyListXmlWriter::appendArray(std::size_t count, const ValueAt& valueAt,
                                        std::size_t depth) {
  if (!isWithinLimits(depth + 1)) {
    return;
  }
  beginLine(depth);
  mOutput += count == 0 ? "<array/>\n" : "<array>\n";
  for (std::size_t index = 0; index < count; ++index) {
    append(valueAt(index), depth + 1);
    if (!mProblem.empty()) {
      return;
    }
  }
  if (count > 0) {
    beginLine(depth);
    mOutput += "</array>\n";
  }
}

SerializedPropertyList PropertyListXmlWriter::write(const PropertyList& value) {
  mOutput = kHeader;
  append(value, 0);
  return finished();
}

SerializedPropertyList PropertyListXmlWriter::write(const PropertyList::Dictionary& entries,
                                                    const PreparedEntry& prepared) {
  mOutput.reserve(kHeader.size() + prepared.bytes.size() + 4096);
  mOutput = kHeader;
  mPrepared = &prepared;
  appendDictionary(entries, 0);
  return finished();
}

PreparedEntry PropertyListXmlWriter::prepare(std::string key, const PropertyList& value) {
  append(value, 1);
  return {std::move(key), std::move(mOutput), mValues, std::move(mProblem)};
}

PreparedEntry PropertyListXmlWriter::prepare(
    std::string key, std::size_t count,
    const std::function<PropertyList(std::size_t index)>& valueAt) {
  appendArray(count, valueAt, 1);
  return {std::move(key), std::move(mOutput), mValues, std::move(mProblem)};
}

SerializedPropertyList PropertyListXmlWriter::finished() {
  mOutput += kFooter;
  const bool isTooLarge =
      mValues > kMaximumPropertyListValues || mOutput.size() > kMaximumPropertyListBytes;
  if (mProblem.empty() && isTooLarge) {
    mProblem = "the value is too large for a property list";
  }
  return mProblem.empty() ? SerializedPropertyList{std::move(mOutput), {}}
                          : SerializedPropertyList{std::nullopt, std::move(mProblem)};
}

bool PropertyListXmlWriter::isWithinLimits(std::size_t depth) {
  if (depth > kMaximumPropertyListDepth) {
    mProblem = "the value is nested too deeply for a property list";
  } else if (++mValues > kMaximumPropertyListValues || mOutput.size() > kMaximumPropertyListBytes) {
    mProblem = "the value is too large for a property list";
  }
  return mProblem.empty();
}

void PropertyListXmlWriter::append(const PropertyList& value, std::size_t depth) {
  std::visit(
      [&](const auto& held) {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, PropertyList::Array>) {
          appendArray(
              held.size(), [&](std::size_t index) -> const PropertyList& { return held[index]; },
              depth);
          return;
        } else if constexpr (std::is_same_v<Held, PropertyList::Dictionary>) {
          appendDictionary(held, depth);
          return;
        } else if constexpr (std::is_same_v<Held, PropertyList::Uid>) {
          appendUid(held, depth);
          return;
        }
        if (!isWithinLimits(0)) {
          return;
        }
        beginLine(depth);
        if constexpr (std::is_same_v<Held, bool>) {
          mOutput += held ? "<true/>" : "<false/>";
        } else if constexpr (std::is_integral_v<Held>) {
          appendElement("integer", std::to_string(held));
        } else if constexpr (std::is_same_v<Held, double>) {
          appendElement("real", textFromReal(held));
        } else if constexpr (std::is_same_v<Held, std::string>) {
          appendElement("string", escaped(cleaned(held)));
        } else if constexpr (std::is_same_v<Held, PropertyList::Date>) {
          appendElement("date", textFromDate(held));
        } else if constexpr (std::is_same_v<Held, PropertyList::Data>) {
          appendElement("data", textFromData(held));
        }
        mOutput += '\n';
      },
      value.value());
}

void PropertyListXmlWriter::appendDictionary(const PropertyList::Dictionary& dictionary,
                                             std::size_t depth) {
  if (!isWithinLimits(depth + 1)) {
    return;
  }
  beginLine(depth);
  const PreparedEntry* const prepared = depth == 0 ? std::exchange(mPrepared, nullptr) : nullptr;
  const bool isEmpty = dictionary.empty() && prepared == nullptr;
  mOutput += isEmpty ? "<dict/>\n" : "<dict>\n";
  bool isPreparedToCome = prepared != nullptr;
  std::set<std::string> replacedKeys;
  for (const auto& [name, value] : dictionary) {
    if (isPreparedToCome && prepared->key <= name) {
      appendPrepared(*prepared);
      isPreparedToCome = false;
    }
    if (prepared != nullptr && name == prepared->key) continue;
    std::string key = cleaned(name);
    if (key != name) {
      // Two keys may differ only in what was replaced; the reader would drop one of them.
      while (dictionary.contains(key) || !replacedKeys.insert(key).second) {
        appendUtf8(key, kReplacementCharacter);
      }
    }
    appendKey(key, depth + 1);
    append(value, depth + 1);
    if (!mProblem.empty()) {
      return;
    }
  }
  if (isPreparedToCome) appendPrepared(*prepared);
  if (!isEmpty) {
    beginLine(depth);
    mOutput += "</dict>\n";
  }
}

void PropertyListXmlWriter::appendKey(std::string_view key, std::size_t depth) {
  beginLine(depth);
  appendElement("key", escaped(key));
  mOutput += '\n';
}

void PropertyListXmlWriter::appendPrepared(const PreparedEntry& prepared) {
  appendKey(prepared.key, 1);
  mOutput += prepared.bytes;
  mValues += prepared.values;
  mProblem = prepared.problem;
}

void PropertyListXmlWriter::appendUid(PropertyList::Uid uid, std::size_t depth) {
  appendDictionary({{"CF$UID", PropertyList(uid.value)}}, depth);
}

void PropertyListXmlWriter::appendElement(std::string_view name, std::string_view text) {
  mOutput += '<';
  mOutput += name;
  mOutput += '>';
  mOutput += text;
  mOutput += "</";
  mOutput += name;
  mOutput += '>';
}

void PropertyListXmlWriter::beginLine(std::size_t depth) {
  mOutput.append(depth, '\t');
}

}  // namespace wayloom
