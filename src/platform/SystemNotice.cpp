#include "platform/SystemNotice.h"

#include <dlfcn.h>
#include <string>

namespace wayloom {

SystemNotice::SystemNotice() : mPost(reinterpret_cast<Post>(dlsym(RTLD_DEFAULT, "notify_post"))) {}

void SystemNotice::post(std::string_view name) noexcept {
  if (mPost) mPost(std::string(name).c_str());
}

}  // namespace wayloom
