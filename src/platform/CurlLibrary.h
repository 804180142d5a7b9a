#pragma once

#include <curl/curl.h>

namespace wayloom {

/// The functions we use of libcurl, loaded when first asked for: linking it would bring thirty
/// shared libraries into every start of wayloomctl, which rarely goes online. Only for
/// CurlWebRequests.cpp.
struct CurlLibrary {
  /// The library, set up, or null when it is not installed. Main thread only.
  static const CurlLibrary* load();

  decltype(&curl_global_init) globalInit;
  decltype(&curl_easy_init) easyInit;
  decltype(&curl_easy_setopt) easySetopt;
  decltype(&curl_easy_getinfo) easyGetinfo;
  decltype(&curl_easy_header) easyHeader;
  decltype(&curl_easy_cleanup) easyCleanup;
  decltype(&curl_easy_strerror) easyStrerror;
  decltype(&curl_multi_init) multiInit;
  decltype(&curl_multi_add_handle) multiAddHandle;
  decltype(&curl_multi_remove_handle) multiRemoveHandle;
  decltype(&curl_multi_perform) multiPerform;
  decltype(&curl_multi_poll) multiPoll;
  decltype(&curl_multi_wakeup) multiWakeup;
  decltype(&curl_multi_info_read) multiInfoRead;
  decltype(&curl_multi_cleanup) multiCleanup;
};

}  // namespace wayloom
