#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/ChangeNotice.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {

/// Records each notice together with what the location file held at that moment.
class RecordedNotice : public ChangeNotice {
 public:
  struct Post {
    std::string name;
    std::map<std::string, std::string> fileThen;
  };

  explicit RecordedNotice(const SettingsFiles& files) : mFiles(files) {}

  void post(std::string_view name) noexcept override {
    posts.push_back({std::string(name), textsIn(mFiles, SettingsFile::Location)});
  }

  std::vector<Post> posts;

 private:
  const SettingsFiles& mFiles;
};

}  // namespace wayloom
