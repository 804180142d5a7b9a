#include "platform/CommandNotice.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace wayloom {

void CommandNotice::post(std::string_view name) noexcept {
  std::string argument(name);
  char* arguments[] = {mCommand.data(), argument.data(), nullptr};

  posix_spawn_file_actions_t files;
  if (posix_spawn_file_actions_init(&files) != 0) return;
  posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int failed = posix_spawnp(&child, mCommand.c_str(), &files, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&files);
  if (failed != 0) return;
  try {
    std::thread([child] { waitpid(child, nullptr, 0); }).detach();
  } catch (const std::exception&) {
    // No thread to be had: the child stays unreaped until this process ends.
  }
}

}  // namespace wayloom
