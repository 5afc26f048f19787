#include "OndelCore/logging/Redact.h"

#include "OndelCore/NamedError.h"
#include "OndelCore/logging/Utf8.h"
#include "OndelCore/platform/process/SystemCalls.h"

#include <QByteArrayView>
#include <QCryptographicHash>

#include <cxxabi.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <system_error>
#include <typeinfo>

namespace OndelCore::logging {

namespace {

bool isFull() { return Redact::detail == Redact::Detail::full; }

/// The first three bytes of SHA-256 over salt, colon and value, in lower-case hexadecimal.
std::string token(std::string_view value) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArrayView(Redact::salt()));
    hash.addData(QByteArrayView(":"));
    hash.addData(QByteArrayView(value.data(), static_cast<qsizetype>(value.size())));
    return hash.result().first(3).toHex().toStdString();
}

/// Including the full stop; empty if the text after the last one is no short, plain extension.
std::string_view fileExtension(std::string_view name) {
    constexpr std::size_t longest = 12;
    const auto stop = name.rfind('.');
    if (stop == std::string_view::npos || stop == 0)
        return {};
    const std::string_view extension = name.substr(stop);
    const auto isPlain = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    };
    const bool isShort = extension.size() > 1 && extension.size() <= longest + 1;
    return isShort && std::all_of(extension.begin() + 1, extension.end(), isPlain) ? extension
                                                                                   : std::string_view();
}

/// The special properties of a name, separated by commas; empty for an ordinary one.
std::string flags(std::string_view name) {
    constexpr std::size_t overlongBytes = 256;
    const auto holds = [name](std::string_view piece) { return name.find(piece) != std::string_view::npos; };
    const bool newline = name.find_first_of("\n\v\f\r") != std::string_view::npos || holds("\u0085") ||
                         holds("\u2028") || holds("\u2029");
    const bool nonascii = std::any_of(name.begin(), name.end(), [](char c) { return (c & 0x80) != 0; });
    const std::array<std::pair<bool, std::string_view>, 6> words{
        {{nonascii, "nonascii"},
         {holds(" "), "space"},
         {newline, "newline"},
         {name.starts_with('.'), "hidden"},
         {name.ends_with('.'), "trailingdot"},
         {name.size() >= overlongBytes, "overlong"}}};
    std::string list;
    for (const auto& [applies, word] : words)
        if (applies)
            list.append(list.empty() ? "" : ",").append(word);
    return list;
}

struct Pieces {
    std::size_t count = 0;
    std::string_view last;
};

Pieces piecesOf(std::string_view path) {
    Pieces pieces;
    std::size_t at = 0;
    while ((at = path.find_first_not_of('/', at)) != std::string_view::npos) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        pieces = {pieces.count + 1, path.substr(at, end - at)};
        at = end;
    }
    return pieces;
}

/// "std::filesystem::__cxx11::filesystem_error"
std::string fullTypeName(const std::exception& error) {
    const char* mangled = typeid(error).name();
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> name(abi::__cxa_demangle(mangled, nullptr, nullptr, &status),
                                                      std::free);
    return status == 0 ? name.get() : mangled;
}

/// "filesystem_error": removes namespaces, template arguments and ABI tags.
std::string ownNameOf(std::string_view typeName) {
    typeName = typeName.substr(0, typeName.find_first_of("<["));
    const auto colons = typeName.rfind("::");
    return std::string(colons == std::string_view::npos ? typeName : typeName.substr(colons + 2));
}

std::string failureText(const std::string& caseName, std::string_view domain, int code) {
    if (domain == posixErrorDomain)
        return caseName + " posix=" + std::to_string(code) + " (" + platform::errorText(code) + ")";
    return caseName + " " + std::string(domain) + "/" + std::to_string(code);
}

} // namespace

const std::string& Redact::salt() {
    static const std::string& salt =
        *new std::string(platform::newUuid()); // never destroyed: the last destructor may log
    return salt;
}

std::string Redact::path(std::string_view path) {
    if (isFull())
        return std::string(path);
    const Pieces pieces = piecesOf(path);
    if (pieces.count == 0)
        return "/";
    std::string shown;
    for (std::size_t depth = 1; depth < pieces.count; ++depth)
        shown.append("/").append(std::to_string(depth));
    shown.append("/«").append(token(path)).append("»").append(fileExtension(pieces.last));
    shown.append(" len=").append(std::to_string(characterCount(path)));
    shown.append(" name=").append(std::to_string(characterCount(pieces.last)));
    if (const std::string words = flags(pieces.last); !words.empty())
        shown.append(" flags=").append(words);
    return shown;
}

std::string Redact::opaque(std::string_view value) {
    return isFull() ? std::string(value) : "#" + token(value);
}

std::string Redact::failure(const std::exception& error) {
    if (const auto* named = dynamic_cast<const NamedError*>(&error)) {
        const ErrorName name = named->errorName();
        std::string caseName(name.type);
        if (!name.caseName.empty())
            caseName.append(".").append(name.caseName);
        return failureText(caseName, name.domain, name.code);
    }
    const std::string type = fullTypeName(error);
    if (const auto* system = dynamic_cast<const std::system_error*>(&error)) {
        const std::error_code code = system->code();
        const bool isPosix =
            code.category() == std::generic_category() || code.category() == std::system_category();
        return failureText(ownNameOf(type), isPosix ? posixErrorDomain : code.category().name(),
                           code.value());
    }
    return failureText(ownNameOf(type), type, 1);
}

std::string Redact::failure(const std::exception_ptr& error) {
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& known) {
        return failure(known);
    } catch (...) {
        return "unknown";
    }
}

} // namespace OndelCore::logging
