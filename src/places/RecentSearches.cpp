#include "places/RecentSearches.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "places/LinkParts.h"
#include "settings/ReadFile.h"
#include "settings/ReplaceFile.h"
#include "settings/Utf8.h"

namespace wayloom {

namespace {

// As much as a search field takes, in the longest characters.
constexpr std::size_t kMostTextBytes = 4000;
constexpr std::size_t kMostFileBytes = 4 * RecentSearches::kMost * kMostTextBytes;

/// Whether a text can stand in a line, and comes from nobody who means to harm.
bool isLineText(std::string_view text) {
  if (text.empty() || text.size() > kMostTextBytes) return false;
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Step step = utf8Step(text, at);
    const bool isControl =
        step.character < 0x20 || (step.character >= 0x7F && step.character < 0xA0);
    if (!step.valid || isControl) return false;
    at += step.length;
  }
  return true;
}

std::optional<RecentSearch> searchIn(std::string_view line) {
  const std::string_view text = takeUntil(line, '\t');
  const std::string_view query = line.empty() ? text : line;
  if (!isLineText(text) || !isLineText(query)) return std::nullopt;
  return RecentSearch{std::string(text), std::string(query)};
}

}  // namespace

RecentSearches::RecentSearches(std::optional<std::filesystem::path> file, FileSystem& system)
    : mFile(std::move(file)), mSystem(system) {}

std::vector<RecentSearch> RecentSearches::all() const {
  auto searches = read();
  return searches ? std::move(*searches) : std::vector<RecentSearch>();
}

Result<std::vector<RecentSearch>> RecentSearches::read() const {
  std::vector<RecentSearch> searches;
  if (!mFile) return searches;
  const FileReading reading = readFile(*mFile, kMostFileBytes, mSystem);
  if (reading.outcome == FileReading::Outcome::Failed) {
    return failed("cannot read " + mFile->string());
  }
  std::string_view lines = reading.bytes;
  while (!lines.empty() && searches.size() < kMost) {
    auto search = searchIn(takeUntil(lines, '\n'));
    if (search) searches.push_back(std::move(*search));
  }
  return searches;
}

Status RecentSearches::add(const RecentSearch& search) {
  if (!mFile || !isLineText(search.text) || !isLineText(search.query)) return done();
  auto searches = read();
  if (!searches) return searches.failure();
  std::erase_if(*searches, [&](const RecentSearch& other) { return other.text == search.text; });
  searches->insert(searches->begin(), search);
  searches->resize(std::min(searches->size(), kMost));
  return write(*searches);
}

Status RecentSearches::remove(const RecentSearch& search) {
  auto searches = read();
  if (!searches) return searches.failure();
  return std::erase(*searches, search) > 0 ? write(*searches) : done();
}

Status RecentSearches::clear() {
  return mFile ? write({}) : done();
}

Status RecentSearches::write(const std::vector<RecentSearch>& searches) {
  std::string lines;
  for (const RecentSearch& search : searches) {
    lines += search.text;
    if (search.query != search.text) lines.append("\t").append(search.query);
    lines += '\n';
  }
  return replaceFile(*mFile, lines, mSystem);
}

}  // namespace wayloom
