#include "settings/PropertyListXmlWriter.h"

#include <set>
#include <type_traits>

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

SerializedPropertyList PropertyListXmlWriter::write(const PropertyList& value) {
  mOutput = kHeader;
  append(value, 0);
  mOutput += kFooter;
  if (mProblem.empty() && mOutput.size() > kMaximumPropertyListBytes) {
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
          appendArray(held, depth);
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

void PropertyListXmlWriter::appendArray(const PropertyList::Array& array, std::size_t depth) {
  if (!isWithinLimits(depth + 1)) {
    return;
  }
  beginLine(depth);
  mOutput += array.empty() ? "<array/>\n" : "<array>\n";
  for (const PropertyList& value : array) {
    append(value, depth + 1);
    if (!mProblem.empty()) {
      return;
    }
  }
  if (!array.empty()) {
    beginLine(depth);
    mOutput += "</array>\n";
  }
}

void PropertyListXmlWriter::appendDictionary(const PropertyList::Dictionary& dictionary,
                                             std::size_t depth) {
  if (!isWithinLimits(depth + 1)) {
    return;
  }
  beginLine(depth);
  mOutput += dictionary.empty() ? "<dict/>\n" : "<dict>\n";
  std::set<std::string> replacedKeys;
  for (const auto& [name, value] : dictionary) {
    std::string key = cleaned(name);
    if (key != name) {
      // Two keys may differ only in what was replaced; the reader would drop one of them.
      while (dictionary.contains(key) || !replacedKeys.insert(key).second) {
        appendUtf8(key, kReplacementCharacter);
      }
    }
    beginLine(depth + 1);
    appendElement("key", escaped(key));
    mOutput += '\n';
    append(value, depth + 1);
    if (!mProblem.empty()) {
      return;
    }
  }
  if (!dictionary.empty()) {
    beginLine(depth);
    mOutput += "</dict>\n";
  }
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
