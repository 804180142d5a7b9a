#include "platform/DesktopHomeScreen.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <locale.h>
#include <map>
#include <set>
#include <string_view>
#include <sys/stat.h>
#include <tuple>
#include <utility>

#include "platform/DesktopEntry.h"
#include "platform/FileHead.h"
#include "platform/IconFolders.h"
#include "platform/LocaleNames.h"

namespace wayloom {

namespace {

namespace fs = std::filesystem;

/// The group that counts is the first; what stands behind so many bytes is left alone.
constexpr std::size_t kEntryLimitBytes = 256 << 10;
constexpr std::size_t kIconLimitBytes = 4 << 20;
/// A link that leads out of the applications must not lead through the whole file system.
constexpr std::size_t kMostFolders = 2000;

constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1a\n";

struct EntryFile {
  std::string identifier;
  fs::path path;
};

/// The entry files below a folder, however deep, each folder looked through once: links may lead
/// in circles.
std::vector<EntryFile> entryFiles(const fs::path& applications) {
  struct Folder {
    fs::path path;
    std::string prefix;
  };
  std::vector<EntryFile> files;
  std::set<std::pair<dev_t, ino_t>> seen;
  std::deque<Folder> waiting{{applications, ""}};
  while (!waiting.empty() && seen.size() < kMostFolders) {
    const Folder folder = std::move(waiting.front());
    waiting.pop_front();
    struct stat status = {};
    if (::stat(folder.path.c_str(), &status) != 0) continue;
    if (!seen.emplace(status.st_dev, status.st_ino).second) continue;
    std::error_code failure;
    for (fs::directory_iterator entry(folder.path, failure), end; !failure && entry != end;
         entry.increment(failure)) {
      const std::string name = entry->path().filename().string();
      std::error_code ignored;
      if (entry->is_directory(ignored)) {
        waiting.push_back({entry->path(), folder.prefix + name + "-"});
      } else if (name.ends_with(".desktop")) {
        files.push_back({storableIdentifier(folder.prefix + name), entry->path()});
      }
    }
  }
  // Where two files share an identifier, the one that is taken must not depend on the disk.
  std::sort(files.begin(), files.end(), [](const EntryFile& a, const EntryFile& b) {
    return std::tie(a.identifier, a.path) < std::tie(b.identifier, b.path);
  });
  return files;
}

/// Orders names as a reader in the user's language expects, whatever the process's own locale is.
class NameOrder {
 public:
  NameOrder() : mLocale(newlocale(LC_COLLATE_MASK | LC_CTYPE_MASK, "", nullptr)) {
    if (!mLocale) mLocale = newlocale(LC_ALL_MASK, "C", nullptr);
  }
  ~NameOrder() { freelocale(mLocale); }
  NameOrder(const NameOrder&) = delete;
  NameOrder& operator=(const NameOrder&) = delete;

  std::string key(const std::string& name) const {
    // Nobody compares names further than this.
    std::string head = name.substr(0, 200);
    for (char& letter : head) {
      if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    std::string key(std::strlen(head.c_str()) * 8 + 64, '\0');
    const std::size_t length = strxfrm_l(key.data(), head.c_str(), key.size(), mLocale);
    if (length >= key.size()) return head;
    key.resize(length);
    return key;
  }

 private:
  locale_t mLocale;
};

}  // namespace

struct DesktopHomeScreen::Catalogue {
  Catalogue(std::vector<fs::path> bases, std::vector<fs::path> loose)
      : icons(std::move(bases), std::move(loose)) {}

  const DesktopEntry* find(const std::string& identifier) const {
    const auto found = entries.find(identifier);
    return found != entries.end() && found->second.isApplication ? &found->second : nullptr;
  }

  std::map<std::string, DesktopEntry> entries;
  IconFolders icons;
};

DesktopHomeScreen::DesktopHomeScreen(EnvironmentLookup lookup, IconRasterizer rasterizer)
    : mLookup(std::move(lookup)), mRasterizer(std::move(rasterizer)) {}

DesktopHomeScreen::~DesktopHomeScreen() = default;

fs::path DesktopHomeScreen::home() const {
  const char* home = mLookup("HOME");
  return home && *home == '/' ? home : "/";
}

std::vector<fs::path> DesktopHomeScreen::dataFolders() const {
  const char* own = mLookup("XDG_DATA_HOME");
  std::vector<fs::path> folders{own && *own == '/' ? fs::path(own) : home() / ".local/share"};
  const char* shared = mLookup("XDG_DATA_DIRS");
  std::string_view rest = shared && *shared ? shared : "/usr/local/share:/usr/share";
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find(':'), rest.size());
    if (rest.front() == '/') folders.emplace_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return folders;
}

std::shared_ptr<DesktopHomeScreen::Catalogue> DesktopHomeScreen::read() const {
  std::vector<fs::path> bases{home() / ".icons"};
  std::vector<fs::path> loose;
  for (const fs::path& folder : dataFolders()) {
    bases.push_back(folder / "icons");
    loose.push_back(folder / "icons");
    loose.push_back(folder / "pixmaps");
  }
  auto catalogue = std::make_shared<Catalogue>(std::move(bases), std::move(loose));
  const auto locales = localeNames(mLookup);
  for (const fs::path& folder : dataFolders()) {
    for (const EntryFile& file : entryFiles(folder / "applications")) {
      if (catalogue->entries.contains(file.identifier)) continue;
      const auto text = readFileHead(file.path, kEntryLimitBytes);
      auto entry = text ? parseDesktopEntry(*text, locales) : std::nullopt;
      if (entry) catalogue->entries.emplace(file.identifier, std::move(*entry));
    }
  }
  return catalogue;
}

std::shared_ptr<DesktopHomeScreen::Catalogue> DesktopHomeScreen::catalogue() const {
  {
    const std::lock_guard lock(mMutex);
    if (mCatalogue) return mCatalogue;
  }
  auto fresh = read();
  const std::lock_guard lock(mMutex);
  mCatalogue = fresh;
  return fresh;
}

std::optional<std::vector<std::string>> DesktopHomeScreen::identifiers(Selection selection) const {
  if (selection.debuggable) return std::vector<std::string>();
  if (selection.onlyActive) return std::nullopt;
  auto fresh = read();
  const NameOrder order;
  std::vector<std::pair<std::string, std::string>> sorted;
  for (const auto& [identifier, entry] : fresh->entries) {
    if (!entry.isApplication) continue;
    sorted.emplace_back(order.key(entry.name.empty() ? identifier : entry.name), identifier);
  }
  std::sort(sorted.begin(), sorted.end());
  std::vector<std::string> identifiers;
  for (auto& [key, identifier] : sorted) identifiers.push_back(std::move(identifier));
  const std::lock_guard lock(mMutex);
  mCatalogue = std::move(fresh);
  return identifiers;
}

std::optional<std::string> DesktopHomeScreen::localizedName(const std::string& identifier) const {
  const auto current = catalogue();
  const DesktopEntry* entry = current->find(identifier);
  return entry && !entry->name.empty() ? std::optional(entry->name) : std::nullopt;
}

std::optional<std::string> DesktopHomeScreen::iconPng(const std::string& identifier) const {
  const auto current = catalogue();
  const DesktopEntry* entry = current->find(identifier);
  if (!entry) return std::nullopt;
  const std::vector<std::string> endings = mRasterizer
                                               ? std::vector<std::string>{".png", ".svg", ".xpm"}
                                               : std::vector<std::string>{".png"};
  const fs::path path = current->icons.find(entry->icon, endings);
  auto bytes = path.empty() ? std::nullopt : readFileHead(path, kIconLimitBytes + 1);
  if (!bytes || bytes->size() > kIconLimitBytes) return std::nullopt;
  if (bytes->starts_with(kPngSignature)) return bytes;
  std::string drawn = mRasterizer ? mRasterizer(*bytes) : std::string();
  return drawn.empty() ? std::nullopt : std::optional(std::move(drawn));
}

}  // namespace wayloom
