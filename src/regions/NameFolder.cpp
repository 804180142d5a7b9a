#include "regions/NameFolder.h"

#include <algorithm>
#include <array>
#include <span>
#include <sqlite3.h>
#include <utility>

namespace wayloom {

namespace {

// Letters that are not another letter with an accent, and so stay as they are in accent folding,
// but that people type without. Both cases, because folding comes after.
using Letter = std::pair<std::string_view, std::string_view>;
constexpr std::array<Letter, 27> kLetters = {{
    {"ø", "o"},
    {"Ø", "o"},
    {"ß", "ss"},
    {"ẞ", "ss"},
    {"ł", "l"},
    {"Ł", "l"},
    {"đ", "d"},
    {"Đ", "d"},
    {"æ", "ae"},
    {"Æ", "ae"},
    {"œ", "oe"},
    {"Œ", "oe"},
    {"þ", "th"},
    {"Þ", "th"},
    {"ð", "d"},
    {"Ð", "d"},
    {"ı", "i"},
    {"İ", "i"},
    {"ħ", "h"},
    {"Ħ", "h"},
    {"ŋ", "n"},
    {"Ŋ", "n"},
    {"ə", "e"},
    {"Ə", "e"},
    // Apostrophes join: whoever types "coeur dalene" means "Coeur d'Alene".
    {"'", ""},
    {"’", ""},
    {"ʻ", ""},
}};

// How they are written where a keyboard lacks them, in German and the Nordic languages.
constexpr std::array<Letter, 10> kTwoLetters = {{
    {"ä", "ae"},
    {"Ä", "ae"},
    {"ö", "oe"},
    {"Ö", "oe"},
    {"ü", "ue"},
    {"Ü", "ue"},
    {"å", "aa"},
    {"Å", "aa"},
    {"ø", "oe"},
    {"Ø", "oe"},
}};

std::string replaceLetters(std::string_view text, std::span<const Letter> letters) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const auto letter = std::find_if(letters.begin(), letters.end(), [&](const Letter& pair) {
      return text.starts_with(pair.first);
    });
    if (letter != letters.end()) {
      result += letter->second;
      text.remove_prefix(letter->first.size());
    } else {
      result += text.front();
      text.remove_prefix(1);
    }
  }
  return result;
}

fts5_api* fullTextSearch(Database& database) {
  fts5_api* api = nullptr;
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(database.handle(), "SELECT fts5(?1)", -1, &statement, nullptr);
  sqlite3_bind_pointer(statement, 1, static_cast<void*>(&api), "fts5_api_ptr", nullptr);
  sqlite3_step(statement);
  sqlite3_finalize(statement);
  return api;
}

int addWord(void* words, int /*flags*/, const char* word, int size, int /*start*/, int /*end*/) {
  static_cast<std::vector<std::string>*>(words)->emplace_back(word, static_cast<std::size_t>(size));
  return SQLITE_OK;
}

}  // namespace

void NameFolder::Deleter::operator()(Fts5Tokenizer* tokenizer) const {
  destroy(tokenizer);
}

NameFolder::NameFolder(Database database, std::unique_ptr<Fts5Tokenizer, Deleter> tokenizer,
                       Tokenize tokenize)
    : mDatabase(std::move(database)), mTokenizer(std::move(tokenizer)), mTokenize(tokenize) {}

Result<NameFolder> NameFolder::create() {
  auto database = Database::openInMemory();
  if (!database) return database.failure();
  fts5_api* const api = fullTextSearch(*database);
  if (!api) return Failure{"SQLite was built without full-text search"};
  void* context = nullptr;
  fts5_tokenizer functions{};
  std::array<const char*, 2> arguments = {"remove_diacritics", "2"};
  Fts5Tokenizer* tokenizer = nullptr;
  if (api->xFindTokenizer(api, "unicode61", &context, &functions) != SQLITE_OK ||
      functions.xCreate(context, arguments.data(), static_cast<int>(arguments.size()),
                        &tokenizer) != SQLITE_OK) {
    return Failure{"SQLite's full-text search lacks the unicode61 tokenizer"};
  }
  std::unique_ptr<Fts5Tokenizer, Deleter> owned(tokenizer, Deleter{functions.xDelete});
  return NameFolder(std::move(*database), std::move(owned), functions.xTokenize);
}

std::vector<std::string> NameFolder::tokens(const std::string& text) const {
  const std::string replaced = replaceLetters(text, kLetters);
  std::vector<std::string> words;
  mTokenize(mTokenizer.get(), &words, FTS5_TOKENIZE_DOCUMENT, replaced.data(),
            static_cast<int>(replaced.size()), addWord);
  return words;
}

std::vector<std::string> NameFolder::words(std::string_view text) const {
  return tokens(mLatinLetters.from(text));
}

std::vector<std::string> NameFolder::spelledOutWords(std::string_view text) const {
  return tokens(replaceLetters(mLatinLetters.from(text), kTwoLetters));
}

std::string NameFolder::key(std::string_view text) const {
  return key(words(text));
}

std::string NameFolder::key(const std::vector<std::string>& words) {
  std::string key;
  for (const auto& word : words) {
    if (!key.empty()) key += ' ';
    key += word;
  }
  return key;
}

}  // namespace wayloom
