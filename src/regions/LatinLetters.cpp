#include "regions/LatinLetters.h"

#include <dlfcn.h>
#include <optional>
#include <unicode/utrans.h>

#include "settings/Utf8.h"

namespace wayloom {

namespace {

// ICU's functions carry its version in their names.
#define TEXT_OF(name) #name
#define SYMBOL_OF(function) TEXT_OF(function)

struct IcuLibrary {
  decltype(&utrans_openU) open = nullptr;
  decltype(&utrans_transUChars) translate = nullptr;
  decltype(&utrans_close) close = nullptr;
};

std::optional<IcuLibrary> openLibrary() {
  void* handle = dlopen("libicui18n.so." U_ICU_VERSION_SHORT, RTLD_NOW | RTLD_LOCAL);
  if (!handle) return std::nullopt;
  IcuLibrary icu;
  const auto find = [&](auto& function, const char* name) {
    function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(handle, name));
  };
  find(icu.open, SYMBOL_OF(utrans_openU));
  find(icu.translate, SYMBOL_OF(utrans_transUChars));
  find(icu.close, SYMBOL_OF(utrans_close));
  if (!icu.open || !icu.translate || !icu.close) return std::nullopt;
  return icu;
}

const IcuLibrary* icuLibrary() {
  static const std::optional<IcuLibrary> library = openLibrary();
  return library ? &*library : nullptr;
}

// All of them in the first plane.
bool isRewritten(char32_t letter) {
  const auto within = [&](char32_t first, char32_t last) {
    return letter >= first && letter <= last;
  };
  return within(0x0370, 0x058F) || within(0x10A0, 0x10FF) || within(0x1F00, 0x1FFF);
}

constexpr std::size_t kMostUnits = 2000;

}  // namespace

class LatinLetters::Transliterator {
 public:
  Transliterator() {
    UErrorCode error = U_ZERO_ERROR;
    if (const IcuLibrary* icu = icuLibrary()) {
      mHandle =
          icu->open(u"Any-Latin; Latin-ASCII", -1, UTRANS_FORWARD, nullptr, 0, nullptr, &error);
    }
  }
  ~Transliterator() {
    if (mHandle) icuLibrary()->close(mHandle);
  }
  Transliterator(const Transliterator&) = delete;
  Transliterator& operator=(const Transliterator&) = delete;

  // Nothing when it cannot be done.
  std::optional<std::string> rewritten(std::u16string letters) const {
    if (!mHandle || letters.size() > kMostUnits / 4) return std::nullopt;
    auto size = static_cast<std::int32_t>(letters.size());
    std::int32_t limit = size;
    letters.resize(kMostUnits);
    UErrorCode error = U_ZERO_ERROR;
    icuLibrary()->translate(mHandle, letters.data(), &size, static_cast<std::int32_t>(kMostUnits),
                            0, &limit, &error);
    if (U_FAILURE(error)) return std::nullopt;
    std::string latin;
    for (std::int32_t at = 0; at < size; ++at) {
      const char16_t letter = letters[static_cast<std::size_t>(at)];
      // The signs for hard and soft consonants are no part of a word.
      if (letter != u'\'' && letter != u'"' && letter < 0x80) latin += static_cast<char>(letter);
    }
    return latin;
  }

 private:
  UTransliterator* mHandle = nullptr;
};

LatinLetters::LatinLetters() = default;
LatinLetters::LatinLetters(LatinLetters&&) noexcept = default;
LatinLetters::~LatinLetters() = default;

std::string LatinLetters::from(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    std::u16string letters;
    Utf8Step step = utf8Step(text, at);
    while (step.valid && isRewritten(step.character)) {
      letters += static_cast<char16_t>(step.character);
      at += step.length;
      if (at >= text.size()) break;
      step = utf8Step(text, at);
    }
    if (letters.empty()) {
      result += text.substr(at, step.length);
      at += step.length;
      continue;
    }
    if (!mTransliterator) mTransliterator = std::make_unique<Transliterator>();
    const auto latin = mTransliterator->rewritten(std::move(letters));
    result += latin ? *latin : std::string(text.substr(start, at - start));
  }
  return result;
}

}  // namespace wayloom
