#include "ReadFile.h"

#include <fstream>
#include <iterator>

namespace wayloom {

Result<std::string> readFile(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  std::string content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  if (!stream) return Failure{"cannot read " + path.string()};
  return content;
}

}  // namespace wayloom
