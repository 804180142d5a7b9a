#include "fuzz/Fuzzing.h"
#include "platform/DesktopEntry.h"
#include "platform/IconFolders.h"

using namespace wayloom;

/// A desktop entry, a zero byte, and the index of an icon theme: what they say leads to no file
/// outside the theme, unless the entry itself names a path.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  static const MemoryFolder folder;
  const auto theme = folder.path() / "hicolor";
  std::string_view rest = textOf(bytes, count);
  const auto entry = parseDesktopEntry(takePart(rest), {"sv_SE", "sv"});
  writeFile(theme / "index.theme", rest);
  writeFile(theme / "64x64/apps/editor.png", "");
  writeFile(theme / "scalable/editor.svg", "");
  writeFile(folder.path() / "secret.png", "");
  IconFolders icons({folder.path()}, {});
  for (const std::string& name :
       {std::string("editor"), std::string("secret"), entry ? entry->icon : std::string()}) {
    const auto found = icons.find(name, {".png", ".svg"});
    if (found.empty() || name.starts_with('/')) continue;
    require(std::filesystem::exists(found));
    const auto inside = std::filesystem::canonical(found).lexically_relative(theme);
    require(!inside.empty() && *inside.begin() != "..");
  }
  return 0;
}
