#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "regions/Database.h"
#include "regions/LatinLetters.h"

struct Fts5Tokenizer;

namespace wayloom {

/// Reduces names and search texts to words in which case, accents, punctuation and alphabet no
/// longer differ, the same way for what is stored and what is looked for. One thread at a time.
class NameFolder {
 public:
  static Result<NameFolder> create();

  /// The folded words of a text, in its order. Any bytes are allowed; what is not UTF-8 gives
  /// unspecified words.
  std::vector<std::string> words(std::string_view text) const;
  /// The same words with ä, ö, ü, å and ø as two letters where the text has those ("malmoe").
  std::vector<std::string> spelledOutWords(std::string_view text) const;
  /// The folded words with one space between them.
  std::string key(std::string_view text) const;
  static std::string key(const std::vector<std::string>& words);

 private:
  struct Deleter {
    void (*destroy)(Fts5Tokenizer*) = nullptr;
    void operator()(Fts5Tokenizer* tokenizer) const;
  };
  using Tokenize = int (*)(Fts5Tokenizer*, void*, int, const char*, int,
                           int (*)(void*, int, const char*, int, int, int));

  std::vector<std::string> tokens(const std::string& text) const;
  NameFolder(Database database, std::unique_ptr<Fts5Tokenizer, Deleter> tokenizer,
             Tokenize tokenize);

  /// The tokenizer is SQLite's own and lives with this connection.
  Database mDatabase;
  std::unique_ptr<Fts5Tokenizer, Deleter> mTokenizer;
  mutable LatinLetters mLatinLetters;
  Tokenize mTokenize;
};

}  // namespace wayloom
