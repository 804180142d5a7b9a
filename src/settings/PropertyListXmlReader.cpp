#include "settings/PropertyListXmlReader.h"

#include <algorithm>
#include <array>
#include <expat.h>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "settings/DecimalNumber.h"
#include "settings/PropertyListScalars.h"

namespace wayloom {
namespace {

enum class Element {
  PropertyList,
  Array,
  Dictionary,
  Key,
  Text,
  Integer,
  Real,
  True,
  False,
  Data,
  Date
};

constexpr std::array<std::pair<std::string_view, Element>, 11> kElements{{
    {"plist", Element::PropertyList},
    {"array", Element::Array},
    {"dict", Element::Dictionary},
    {"key", Element::Key},
    {"string", Element::Text},
    {"integer", Element::Integer},
    {"real", Element::Real},
    {"true", Element::True},
    {"false", Element::False},
    {"data", Element::Data},
    {"date", Element::Date},
}};

std::optional<Element> elementNamed(std::string_view name) {
  for (const auto& [known, element] : kElements) {
    if (known == name) {
      return element;
    }
  }
  return std::nullopt;
}

bool isBlank(std::string_view text) {
  return std::all_of(text.begin(), text.end(), isAsciiSpace);
}

/// An array or dictionary whose end has not been read yet.
struct OpenContainer {
  PropertyList value;
  /// The key that waits for its value.
  std::optional<std::string> key;
};

/// Keyed archives write a reference as a dictionary with this one key.
PropertyList withUidRecognized(PropertyList value) {
  const auto* dictionary = value.get<PropertyList::Dictionary>();
  if (dictionary == nullptr || dictionary->size() != 1 || dictionary->begin()->first != "CF$UID") {
    return value;
  }
  const auto* number = dictionary->begin()->second.get<std::int64_t>();
  if (number == nullptr || *number < 0) {
    return value;
  }
  return PropertyList::Value(PropertyList::Uid{static_cast<std::uint64_t>(*number)});
}

std::optional<PropertyList> scalarFromText(Element element, std::string& text) {
  const auto wrapped = [](auto scalar) -> std::optional<PropertyList> {
    return scalar ? std::optional(PropertyList(PropertyList::Value(std::move(*scalar))))
                  : std::nullopt;
  };
  switch (element) {
    case Element::Text:
      return PropertyList(std::exchange(text, {}));
    case Element::Integer:
      return integerFromText(text);
    case Element::Real:
      return wrapped(realFromText(text));
    case Element::Data:
      return wrapped(dataFromText(text));
    case Element::Date:
      return wrapped(dateFromText(text));
    default:
      return isBlank(text) ? std::optional(PropertyList(element == Element::True)) : std::nullopt;
  }
}

/// Builds the value while expat walks through the document. One reader reads one document.
class XmlReader {
 public:
  XmlReader() : mParser(XML_ParserCreate(nullptr)) {
    XML_SetUserData(mParser.get(), this);
    XML_SetElementHandler(mParser.get(), onStart, onEnd);
    XML_SetCharacterDataHandler(mParser.get(), onCharacters);
    XML_SetStartDoctypeDeclHandler(mParser.get(), onDoctype);
    XML_SetSkippedEntityHandler(mParser.get(), onSkippedEntity);
  }

  ParsedPropertyList read(std::string_view bytes) {
    const XML_Status status =
        XML_Parse(mParser.get(), bytes.data(), static_cast<int>(bytes.size()), XML_TRUE);
    if (status != XML_STATUS_OK && mDamage.empty()) {
      fail(XML_ErrorString(XML_GetErrorCode(mParser.get())));
    }
    if (mDamage.empty() && !mRoot) {
      fail("no value");
    }
    return mDamage.empty() ? ParsedPropertyList{std::move(mRoot), {}}
                           : ParsedPropertyList{std::nullopt, std::move(mDamage)};
  }

 private:
  struct ParserDeleter {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  static void XMLCALL onStart(void* reader, const XML_Char* name, const XML_Char**) {
    static_cast<XmlReader*>(reader)->start(name);
  }
  static void XMLCALL onEnd(void* reader, const XML_Char*) {
    static_cast<XmlReader*>(reader)->end();
  }
  static void XMLCALL onCharacters(void* reader, const XML_Char* text, int length) {
    static_cast<XmlReader*>(reader)->characters({text, static_cast<std::size_t>(length)});
  }
  static void XMLCALL onDoctype(void* reader, const XML_Char*, const XML_Char*, const XML_Char*,
                                int hasDeclarations) {
    if (hasDeclarations != 0) {
      static_cast<XmlReader*>(reader)->fail("declarations in the document type");
    }
  }
  static void XMLCALL onSkippedEntity(void* reader, const XML_Char*, int) {
    static_cast<XmlReader*>(reader)->fail("an entity that XML does not define");
  }

  /// Keeps the first damage and stops expat, which may still deliver an event or two.
  void fail(std::string_view why) {
    if (mDamage.empty()) {
      mDamage = "line " + std::to_string(XML_GetCurrentLineNumber(mParser.get())) + ": ";
      mDamage += why;
      XML_StopParser(mParser.get(), XML_FALSE);
    }
  }

  void start(std::string_view name) {
    const std::optional<Element> element = elementNamed(name);
    if (!mDamage.empty()) {
      return;
    }
    if (!element || mLeaf) {
      fail("an element that does not belong here");
    } else if (*element == Element::PropertyList) {
      if (mInPropertyList || mRoot || !mOpen.empty()) {
        fail("a property list within another");
      }
      mInPropertyList = true;
    } else if (!isExpected(*element)) {
      fail("a value or key out of order");
    } else if (*element != Element::Key && ++mValues > kMaximumPropertyListValues) {
      fail("too many values");
    } else if (*element == Element::Array || *element == Element::Dictionary) {
      open(*element);
    } else {
      mLeaf = element;
      mText.clear();
    }
  }

  bool isExpected(Element element) const {
    if (mOpen.empty()) {
      return element != Element::Key && !mRoot;
    }
    const bool needsKey = mOpen.back().value.get<PropertyList::Dictionary>() != nullptr &&
                          !mOpen.back().key.has_value();
    return needsKey == (element == Element::Key);
  }

  void open(Element element) {
    if (mOpen.size() == kMaximumPropertyListDepth) {
      fail("values nested too deeply");
      return;
    }
    mOpen.push_back({element == Element::Array ? PropertyList(PropertyList::Array())
                                               : PropertyList(PropertyList::Dictionary()),
                     std::nullopt});
  }

  void end() {
    if (!mDamage.empty()) {
      return;
    }
    if (mLeaf) {
      endLeaf(*std::exchange(mLeaf, std::nullopt));
    } else if (!mOpen.empty()) {
      if (mOpen.back().key) {
        fail("a key without a value");
        return;
      }
      PropertyList value = withUidRecognized(std::move(mOpen.back().value));
      mOpen.pop_back();
      add(std::move(value));
    }
  }

  void endLeaf(Element element) {
    if (element == Element::Key) {
      mOpen.back().key = std::exchange(mText, {});
      return;
    }
    std::optional<PropertyList> value = scalarFromText(element, mText);
    if (value) {
      add(std::move(*value));
    } else {
      fail("a text that is no value of its kind");
    }
  }

  void add(PropertyList value) {
    if (mOpen.empty()) {
      mRoot = std::move(value);
      return;
    }
    OpenContainer& container = mOpen.back();
    if (auto* array = container.value.get<PropertyList::Array>()) {
      array->push_back(std::move(value));
    } else {
      auto& dictionary = *container.value.get<PropertyList::Dictionary>();
      dictionary.insert_or_assign(std::move(*container.key), std::move(value));
      container.key.reset();
    }
  }

  void characters(std::string_view text) {
    if (mLeaf) {
      mText += text;
      return;
    }
    if (!isBlank(text)) {
      fail("text outside a value");
    }
  }

  std::unique_ptr<std::remove_pointer_t<XML_Parser>, ParserDeleter> mParser;
  std::string mDamage;
  bool mInPropertyList = false;
  std::optional<PropertyList> mRoot;
  std::vector<OpenContainer> mOpen;
  std::optional<Element> mLeaf;
  std::string mText;
  std::size_t mValues = 0;
};

}  // namespace

ParsedPropertyList parseXmlPropertyList(std::string_view bytes) {
  return XmlReader().read(bytes);
}

}  // namespace wayloom
