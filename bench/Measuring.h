#pragma once

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <stdlib.h>
#include <string>
#include <vector>

namespace wayloom {

/// A folder of its own, removed when the program ends.
class Folder {
 public:
  Folder() : mPath("wayloom-bench-XXXXXX") {
    if (::mkdtemp(mPath.data()) == nullptr) {
      std::perror("cannot create a folder here");
      std::exit(1);
    }
  }
  ~Folder() { std::filesystem::remove_all(mPath); }
  const std::string& path() const { return mPath; }

 private:
  std::string mPath;
};

/// Ends the program, saying what the system says, when something it needs was not done.
inline void require(bool done, const char* what) {
  if (!done) {
    std::perror(what);
    std::exit(1);
  }
}

inline double medianOf(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace wayloom
