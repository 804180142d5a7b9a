#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace wayloom {

/// Writes Greek, Cyrillic, Armenian and Georgian in plain Latin letters, with ICU, which is loaded
/// when the first such letter is met: linking it would slow down every start. Scripts whose Latin
/// form nobody types (syllables, pictures, consonants only) stay. One thread at a time.
class LatinLetters {
 public:
  LatinLetters();
  LatinLetters(LatinLetters&&) noexcept;
  ~LatinLetters();

  /// Any bytes are allowed. Without ICU the text comes back as it is.
  std::string from(std::string_view text);

 private:
  class Transliterator;

  std::unique_ptr<Transliterator> mTransliterator;
};

}  // namespace wayloom
