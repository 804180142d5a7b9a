#include "regions/Vocabulary.h"

#include "regions/SimilarWords.h"

namespace wayloom {

namespace {

// One letter less than the shortest that may be misspelt.
constexpr std::size_t kShortestWord = 3;

}  // namespace

void Vocabulary::add(const std::string& word) {
  if (word.size() < kShortestWord || !isPlainWord(word)) return;
  if (mKnown.insert(word).second) mByLength[word.size()] += word;
}

Status Vocabulary::write(Database& database) const {
  auto insert = database.prepare("INSERT INTO place_word VALUES (?1, ?2)");
  if (!insert) return insert.failure();
  for (const auto& [length, words] : mByLength) {
    auto status = insert->bind(1, static_cast<std::int64_t>(length)).bind(2, words).run();
    if (!status) return status;
  }
  return done();
}

}  // namespace wayloom
