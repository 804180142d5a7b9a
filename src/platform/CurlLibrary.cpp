#include "platform/CurlLibrary.h"

#include <dlfcn.h>
#include <optional>

namespace wayloom {

namespace {

std::optional<CurlLibrary> open() {
  // Never closed: libcurl and the libraries under it leave threads and exit handlers behind.
  void* handle = dlopen("libcurl.so.4", RTLD_NOW | RTLD_LOCAL);
  if (!handle) return std::nullopt;
  CurlLibrary library;
  bool complete = true;
  const auto find = [&](auto& function, const char* name) {
    function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(handle, name));
    complete = complete && function;
  };
  find(library.globalInit, "curl_global_init");
  find(library.easyInit, "curl_easy_init");
  find(library.easySetopt, "curl_easy_setopt");
  find(library.easyGetinfo, "curl_easy_getinfo");
  find(library.easyHeader, "curl_easy_header");
  find(library.easyCleanup, "curl_easy_cleanup");
  find(library.easyStrerror, "curl_easy_strerror");
  find(library.multiInit, "curl_multi_init");
  find(library.multiAddHandle, "curl_multi_add_handle");
  find(library.multiRemoveHandle, "curl_multi_remove_handle");
  find(library.multiPerform, "curl_multi_perform");
  find(library.multiPoll, "curl_multi_poll");
  find(library.multiWakeup, "curl_multi_wakeup");
  find(library.multiInfoRead, "curl_multi_info_read");
  find(library.multiCleanup, "curl_multi_cleanup");
  if (!complete || library.globalInit(CURL_GLOBAL_DEFAULT) != CURLE_OK) return std::nullopt;
  return library;
}

}  // namespace

const CurlLibrary* CurlLibrary::load() {
  static const std::optional<CurlLibrary> library = open();
  return library ? &*library : nullptr;
}

}  // namespace wayloom
