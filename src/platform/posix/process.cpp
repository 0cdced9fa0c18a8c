#include "platform/process.h"

#include <array>

#include <spawn.h>
#include <unistd.h>

namespace s2k2ngt {

bool StartProcess(const std::string& program, const std::string& argument,
                  const std::string& /*commandLine*/) {
  posix_spawn_file_actions_t actions;
  if (posix_spawn_file_actions_init(&actions) != 0) {
    return false;
  }
  posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
  const std::array<char*, 3> words = {const_cast<char*>(program.c_str()),
                                      const_cast<char*>(argument.c_str()), nullptr};
  pid_t process = 0;
  const int error =
      posix_spawnp(&process, program.c_str(), &actions, nullptr, words.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  return error == 0;
}

}  // namespace s2k2ngt
