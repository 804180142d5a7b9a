// Runs one fuzz target over the files of a folder, built without a fuzzer:   fuzz_replay TARGET
// FOLDER

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <vector>

#include "fuzz/Fuzzing.h"

#define TARGET(name) extern "C" int name(const std::uint8_t* bytes, std::size_t count);
FUZZ_TARGETS
#undef TARGET

namespace {

struct Target {
  const char* name;
  int (*run)(const std::uint8_t*, std::size_t);
};

#define TARGET(name) {#name, name},
constexpr Target kTargets[] = {FUZZ_TARGETS};

int replay(const Target& target, const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> inputs;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    inputs.push_back(entry.path());
  }
  std::sort(inputs.begin(), inputs.end());
  for (const auto& input : inputs) {
    std::printf("%s\n", input.filename().c_str());
    std::fflush(stdout);
    std::ifstream file(input, std::ios::binary);
    const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
    (void)target.run(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  }
  return inputs.empty() ? 1 : 0;
}

}  // namespace

int main(int argc, char* argv[]) {
  for (const Target& target : kTargets) {
    if (argc == 3 && std::strcmp(argv[1], target.name) == 0) return replay(target, argv[2]);
  }
  std::fputs("usage: fuzz_replay TARGET FOLDER\n", stderr);
  return 2;
}
