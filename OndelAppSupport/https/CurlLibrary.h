#pragma once

#include <curl/curl.h>

namespace OndelAppSupport::https {

/// The functions of libcurl that are used. The library is loaded by the first request: with the thirty
/// libraries that it needs, each start of a program would take 5 ms longer. Threads: any.
struct CurlLibrary {
    /// Fails: throws TransportError. Owner: nobody, it stays until the process ends because an abandoned
    /// thread may still use it.
    static const CurlLibrary& shared();

    decltype(&::curl_global_init) globalInit;
    decltype(&::curl_easy_strerror) strerror;
    decltype(&::curl_easy_init) easyInit;
    decltype(&::curl_easy_cleanup) easyCleanup;
    decltype(&::curl_easy_setopt) setOption;
    decltype(&::curl_easy_getinfo) information;
    decltype(&::curl_multi_init) multiInit;
    decltype(&::curl_multi_cleanup) multiCleanup;
    decltype(&::curl_multi_add_handle) addHandle;
    decltype(&::curl_multi_remove_handle) removeHandle;
    decltype(&::curl_multi_perform) perform;
    decltype(&::curl_multi_poll) poll;
    decltype(&::curl_multi_wakeup) wakeup;
    decltype(&::curl_multi_info_read) readInformation;
    decltype(&::curl_slist_append) appendLine;
    decltype(&::curl_slist_free_all) freeLines;
};

} // namespace OndelAppSupport::https
