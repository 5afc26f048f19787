#include "OndelAppSupport/https/CurlLibrary.h"

#include "OndelAppSupport/https/HttpsExchange.h"

#include <dlfcn.h>

namespace OndelAppSupport::https {

namespace {

using Kind = TransportError::Kind;

/// That of another interface than this is compiled with, which has been the same since 2006, is none.
TransportError noLibrary() { return {Kind::failed, "libcurl.so.4 cannot be loaded"}; }

template <typename Function>
void find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    if (!function)
        throw noLibrary();
}

CurlLibrary load() {
    void* const library = dlopen("libcurl.so.4", RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw noLibrary();
    CurlLibrary curl{};
    find(library, "curl_global_init", curl.globalInit);
    find(library, "curl_easy_strerror", curl.strerror);
    find(library, "curl_easy_init", curl.easyInit);
    find(library, "curl_easy_cleanup", curl.easyCleanup);
    find(library, "curl_easy_setopt", curl.setOption);
    find(library, "curl_easy_getinfo", curl.information);
    find(library, "curl_multi_init", curl.multiInit);
    find(library, "curl_multi_cleanup", curl.multiCleanup);
    find(library, "curl_multi_add_handle", curl.addHandle);
    find(library, "curl_multi_remove_handle", curl.removeHandle);
    find(library, "curl_multi_perform", curl.perform);
    find(library, "curl_multi_poll", curl.poll);
    find(library, "curl_multi_wakeup", curl.wakeup);
    find(library, "curl_multi_info_read", curl.readInformation);
    find(library, "curl_slist_append", curl.appendLine);
    find(library, "curl_slist_free_all", curl.freeLines);
    if (const CURLcode prepared = curl.globalInit(CURL_GLOBAL_DEFAULT); prepared != CURLE_OK)
        throw TransportError(Kind::failed, curl.strerror(prepared));
    return curl;
}

} // namespace

const CurlLibrary& CurlLibrary::shared() {
    static const CurlLibrary library = load();
    return library;
}

} // namespace OndelAppSupport::https
