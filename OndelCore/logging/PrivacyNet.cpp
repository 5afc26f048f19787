#include "OndelCore/logging/PrivacyNet.h"

#include "OndelCore/logging/Utf8.h"

#include <re2/re2.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <string_view>
#include <vector>

namespace OndelCore::logging {

namespace {

using re2::StringPiece;

/// Features that a line must have before a rule's expression is tried.
enum Sign : std::uint32_t {
    none = 0,
    slash = 1U << 0U, ///< "/" or an encoding of it: "%", "\"
    at = 1U << 1U,
    colon = 1U << 2U,
    equals = 1U << 3U,
    tilde = 1U << 4U,
    mark = 1U << 5U, ///< «», the mark of an earlier replacement
    backslash = 1U << 6U,
    hyphen = 1U << 7U,
    percent = 1U << 8U,
    dollar = 1U << 9U,
    underscore = 1U << 10U,
    word = 1U << 11U,  ///< a keyword before private text
    run = 1U << 12U,   ///< at least twenty letters and digits
    place = 1U << 13U, ///< a root of people's files, or another start of a path
};

constexpr auto signsOfBytes = [] {
    std::array<std::uint32_t, 256> table{};
    const auto set = [&](char c, std::uint32_t signs) { table.at(static_cast<unsigned char>(c)) = signs; };
    set('/', slash);
    set('%', slash | percent);
    set('\\', slash | backslash);
    set('@', at);
    set(':', colon);
    set('=', equals);
    set('~', tilde);
    set('-', hyphen);
    set('$', dollar);
    set('_', underscore);
    for (const char c : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"))
        set(c, run);
    return table;
}();

std::uint32_t signsIn(std::string_view line) {
    constexpr int longRun = 20;
    std::uint32_t signs = none;
    int length = 0;
    for (const char c : line) {
        const std::uint32_t own = signsOfBytes[static_cast<unsigned char>(c)];
        signs |= own & ~run;
        length = (own & run) != 0 ? length + 1 : 0;
        if (length == longRun)
            signs |= run;
    }
    for (auto open = line.find("«"); open != std::string_view::npos; open = line.find("«", open + 1))
        for (const std::string_view word : {"«path»", "«local»", "«email»", "«ip»", "«secret»"})
            if (line.substr(open).starts_with(word)) // no token of Redact
                return signs | mark;
    return signs;
}

/// One automaton for all rules: the keywords of netRules, and the addresses without a distinctive character.
constexpr const char* wordPattern = "cookie|auth|bearer|pass|pwd|secret|token|api.?key|access.?key|private.?"
                                    "key|credential|session.?(?:id|key)|"
                                    "(?:\\b|_)(?:key|sid|otp|psk|sig|signature|pin|r?user|username|login|"
                                    "account|owner|author|r?host|hostname|server|"
                                    "share|workgroup|domain|realm|volname|volume|ssid|mail|email|[ug]id|"
                                    "groups?)[:= \"\\\\]|\\beyj|akia|asia|aiza|label|"
                                    "serial|uuid|service.?tag|asset.?tag|product.?key|licen[cs]e|machine.?id|"
                                    "imei|wwn|wwid|\\bs/?n\\s*[:=#]|\\beui|"
                                    "\\bnaa|\\b(?:mac|hwaddr|bssid|ether)\\b|\\b(?:en|wl|ww)x[0-9a-f]|\\.(?:"
                                    "local|lan|fritz|home\\.arpa|intranet)|"
                                    "[0-9a-f]{4}\\.[0-9a-f]{4}\\.";

bool hasPlace(std::string_view line) {
    static const RE2& places = *new RE2(
        "(?i)(?:[/"
        "\\\\]|2f)(?:root|home|users|media|run|mnt|srv|export|nfs|net|volume|data|storage|backup|nas|share|"
        "tank|var|tmp|dev/disk)|//|\\\\\\\\|~|file:|[a-z]:[/\\\\]|\\$",
        RE2::Quiet);
    return RE2::PartialMatch(StringPiece(line.data(), line.size()), places);
}

/// The context of a match. A spared match is not replaced.
struct Match {
    std::string_view whole; ///< without its context
    char before;            ///< the bytes next to it; a blank at the ends of the line
    char after;
    bool behindEscape; ///< "%3A", "%22": the character before it is no letter of a name
};
using Spares = bool (*)(const Match&);

struct NetRule {
    std::uint32_t needs; ///< all of these features
    std::unique_ptr<const RE2> regex;
    const char* rewrite;
    Spares spares; ///< may be null
};

bool isWordByte(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || (c & 0x80) != 0; }
bool hasDigit(std::string_view text) { return std::ranges::any_of(text, isDigit); }

bool insidePath(const Match& match) {
    return !match.behindEscape && (isWordByte(match.before) ||
                                   std::string_view("._-/~+").find(match.before) != std::string_view::npos);
}

bool noWholeWord(const Match& match) { return isWordByte(match.before) || isWordByte(match.after); }

/// C++ scopes look like short addresses. An address has a digit and is not part of a word. "::1" is not
/// private.
bool noAddress(const Match& match) {
    return !hasDigit(match.whole) || match.whole == "::1" || isWordByte(match.before) ||
           isWordByte(match.after) || match.before == ':' || match.before == '_' || match.after == '_' ||
           match.before == '.';
}

/// "user@1000.service", "icon@2x", "getty@tty1"
bool noHost(const Match& match) {
    const std::string_view host = match.whole.substr(match.whole.find('@') + 1);
    return host.starts_with("tty") || host.starts_with("pts") || match.after == '.';
}

/// Paths that exist on every machine.
bool ordinaryTemporary(const Match& match) {
    const std::string_view name = match.whole.substr(match.whole.rfind("tmp/") + 4);
    for (const std::string_view prefix :
         {"ondel-", "systemd-private-", "dbus-", "runtime-", "snap-private-tmp"})
        if (name.starts_with(prefix) && name.find('/') == std::string_view::npos)
            return true;
    return insidePath(match);
}

bool ordinaryDotFolder(const Match& match) {
    for (const std::string_view folder : {"~/.local/", "~/.config/", "~/.cache/"})
        if (match.whole.starts_with(folder))
            return true;
    return isWordByte(match.before);
}

/// A serial number has a digit and is no kernel device name.
bool noSerial(const Match& match) {
    const auto at = match.whole.find_last_of(" :=#\"'") + 1;
    const std::string_view value = match.whole.substr(at);
    return isWordByte(match.before) || !hasDigit(value) || value.size() < 5 || value.starts_with("tty");
}

/// "bearer channel ready" has no secret.
bool plainWord(const Match& match) {
    const std::string_view value = match.whole.substr(match.whole.find_last_of(" \t") + 1);
    const bool hasLetter = std::ranges::any_of(value, [](char c) { return isWordByte(c) && !isDigit(c); });
    return value.size() < 5 || (value.size() < 20 && !(hasDigit(value) && hasLetter));
}

/// "password: required", "passphrase: wrong"
bool toldOfSecret(const Match& match) {
    static constexpr std::array words{"required", "wrong", "incorrect", "missing", "empty",   "invalid",
                                      "none",     "null",  "unset",     "denied",  "expired", "no",
                                      "yes",      "true",  "false",     "unknown", "not",     "set"};
    const std::string_view value = match.whole.substr(match.whole.find_last_of(" :") + 1);
    return std::ranges::find(words, value) != words.end();
}

/// "path:/mnt" names no host.
bool noHostBeforePath(const Match& match) {
    static constexpr std::array words{"path", "file", "url",  "uri",    "dir",   "folder", "target", "source",
                                      "from", "to",   "on",   "mount",  "error", "qrc",    "cwd",    "at",
                                      "in",   "open", "stat", "volume", "https", "http"};
    return std::ranges::find(words, match.whole.substr(0, match.whole.find(':'))) != words.end() ||
           isWordByte(match.before) || match.before == '/' || match.before == '.';
}

/// Random text alternates often between letters and digits.
bool noRandomText(const Match& match) {
    int groups = 0;
    bool lower = false;
    bool upper = false;
    char last = ' ';
    for (const char c : match.whole) {
        groups += isDigit(c) && !isDigit(last) ? 1 : 0;
        lower = lower || (c >= 'a' && c <= 'z');
        upper = upper || (c >= 'A' && c <= 'Z');
        last = c;
    }
    return groups < 3 || !lower || !upper;
}

bool noMac(const Match& match) {
    return noWholeWord(match) || std::ranges::none_of(match.whole, [](char c) {
               return std::isalpha(static_cast<unsigned char>(c)) != 0;
           });
}

struct Source {
    std::uint32_t needs;
    const char* pattern;
    const char* rewrite; ///< RE2's: \1 is the first group
    Spares spares = nullptr;
};

// {/}: a separator in any spelling. {…}: the rest of a path. {any}: the roots of people's files.
const std::pair<std::string_view, std::string_view> abbreviations[] = {
    {"{/}", R"re((?:\\*/|\\+u002f|%(?:25)*2f)+)re"},
    {"{…}", R"re((?:«local»|[^\s"'<>|«»])*)re"},
    {"{any}",
     R"re((?:root|home|users|media|run{/}media|mnt|run{/}user{/}\d+{/}(?:gvfs|doc)|srv|exports?|nfs|net|volumes?\d*|data|storage|backups?|nas|shares?|tank|var{/}home|var{/}mail|var{/}spool{/}(?:mail|cron)|var{/}lib{/}accountsservice))re"},
    {"{secret}",
     R"re((?:[\w.-]*[_.-]|pg|access|client|refresh|auth|id)?(?:pass(?:word|wd|phrase|code|wort)?|pwd|secret|token|api[_-]?key|access[_-]?key|private[_-]?key|credentials?|cookie|session[_-]?(?:id|key)|sid|otp|psk|auth|signature|sig|pin)(?:[_.-]\w+)*)re"},
    {"{value}", R"re((?:\\?"[^"]*"|'[^']*'|[^\s"',;&})\]]+))re"}};

// The order matters: rules build on the results of earlier ones.
const Source sources[] = {
    // Addresses of servers and their paths
    {slash | colon | place, R"re((://)[^\s/@"'<>]*(?:@|«email»)[^\s/"'<>]*)re", R"re(\1«local»)re"},
    {slash | colon | place,
     R"re(\b((?:smb|cifs|nfs4?|sftp|ssh|scp|ftps?|davs?|webdavs?|afp|afc|mtp|gphoto2|fish|rsync|rclone|s3|admin|file|network|obex|google-drive|onedrive)://)/*[^\s"'<>/«][^\s"'<>]*)re",
     R"re(\1«path»)re"},
    {slash | colon | place, R"re(\b(file:)/*{/}[^\s"'<>/«%][^\s"'<>]*)re", R"re(\1«path»)re"},
    {colon | equals,
     R"re(\b((?:smb-share|sftp|davs?|ftp|nfs|afp-volume|mtp|gphoto2|google-drive|archive):)(?:[a-z-]+=[^\s"'/,]+,?)+{…})re",
     R"re(\1«path»)re"},
    // Paths of people's files
    {slash | colon | place,
     R"re(\b[\w][\w.-]*:/(?:exports?|srv|nfs|volumes?\d*|mnt|data|storage|shares?)\b{…})re", "«local»:«path»",
     noHostBeforePath},
    {slash | place, R"re("(?:file:)?{/}{any}{/}[^"\n]*")re", R"re("«path»")re"},
    {slash | place, R"re('(?:file:)?{/}{any}{/}[^'\n]*')re", R"re('«path»')re"},
    {slash | place, R"re({/}(?:home|users|var{/}root|run{/}media){/}(?:«local»|[^\s"'<>|«»\\/%]){…})re",
     "«path»"},
    {slash | place, R"re({/}{any}{/}(?:«local»|[^\s"'<>|«»\\/%]){…})re", "«path»", insidePath},
    {slash | place, R"re(/(?:var/)?tmp/[^\s"'<>|«»/.]{…})re", "«path»", ordinaryTemporary},
    {mark | slash, R"re(/[^\s"'/«»]*«local»[^\s"'/«»]*/{…})re", "/«path»"},
    {slash | place, R"re((/dev/disk/by-[a-z]+/)[^\s"'<>«»]+)re", R"re(\1«serial»)re"},
    {slash | place, R"re(//[A-Za-z0-9][\w.-]*/[^\s"'<>|]+)re", "«path»",
     [](const Match& match) {
         return match.before == ':' || match.before == '/' || isWordByte(match.before);
     }},
    {tilde | slash | place, R"re(~[a-z_]*[\w.-]*/[^\s"'<>|]+)re", "«path»", ordinaryDotFolder},
    {dollar | slash | place, R"re(\$\{?(?:HOME|XDG_[A-Z_]+)\}?/[^\s"'<>|]+)re", "«path»"},
    {backslash | place, R"re(\\\\+[A-Z0-9._$-]+\\+[^\s"'<>|]+)re", "«path»"},
    {backslash | colon | place, R"re(\b[A-Z]:\\+[^\s"'<>|\\][^\s"'<>|]*)re", "«path»"},
    {slash | colon | place, R"re(\b(?-i:[A-Z]):/[^\s"'<>|/][^\s"'<>|]*)re", "«path»",
     [](const Match& match) { return isWordByte(match.before); }},
    {hyphen, R"re(\b(?:run-media|media|mnt|home|srv)-[^\s"'<>]+(\.(?:mount|automount|device|swap)\b))re",
     R"re(«path»\1)re"},
    // Continuations after a blank or an apostrophe
    {mark, R"re("«path»[^"\n]*")re", R"re("«path»")re"},
    {mark, R"re('«path»[^'\n]*')re", R"re('«path»')re"},
    {mark, R"re(«path»'[\pL\pN][^\s"']*)re", "«path»"},
    {mark | slash,
     R"re(«path»(?:(?: (?-i:[A-Z0-9])[^\s/"',;:()=«»]*){0,3} [^\s/"'=:«»]+/(?:[^\s"'/«»]*/[^\s"'«»]*|[^\s"'/«»]*\.[a-z0-9]{1,11}\b))+)re",
     "«path»"},
    // Secrets after their keywords
    {word, R"re(\b((?:set-)?cookie\\?["']?\s*[:=]\s*)[^"\n]+)re", R"re(\1«secret»)re"},
    {word, R"re(\b((?:proxy-)?authorization\\?["']?\s*[:=]\s*\\?["']?)(?:[a-z]+\s+)?[^\s"',]+)re",
     R"re(\1«secret»)re"},
    {word,
     R"re((\b(?:bearer|password|passwd|passphrase|passcode|pwd|secret|token)(?: is)?\s+)[^\s"',;=:]+)re",
     R"re(\1«secret»)re", plainWord},
    {word | equals, R"re((\b{secret}=){value})re", R"re(\1«secret»)re"},
    {word | equals, R"re((\bkey=)[^\s"',;&]*\d[^\s"',;&]*)re", R"re(\1«secret»)re"},
    {word | colon,
     R"re((\b[\w.-]*(?:pass(?:word|wd|phrase|code|wort)|pwd|secret|api[_-]?key|access[_-]?key|private[_-]?key|[_-]token|credentials?|["']?token\\?["'])\\?["']?\s*:\s*){value})re",
     R"re(\1«secret»)re", toldOfSecret},
    {word | colon,
     R"re((\\?"(?:pin|auth|key|otp|psk|sid|user(?:name)?|login|email|host(?:name)?|serial)\\?"\s*:\s*){value})re",
     R"re(\1«secret»)re"},
    {hyphen, R"re((--(?:password|passphrase|token|secret|api-key|key|user)[ =]){value})re",
     R"re(\1«secret»)re"},
    {word, R"re((\bpin[:= ]+)\d[\d-]{3,}\b)re", R"re(\1«secret»)re"},
    {word, R"re(\beyJ[A-Z0-9_-]{5,}(?:\.[A-Z0-9_-]+)*)re", "«secret»"},
    {mark, R"re(«secret»(?:\.[A-Z0-9_-]{8,})+)re", "«secret»"},
    {underscore, R"re(\b(?:gh[pousr]_|github_pat_|sk_live_|sk_test_|pk_live_|whsec_)[A-Z0-9_]{6,})re",
     "«secret»"},
    {hyphen, R"re(\b(?:xox[abprs]|glpat|sk|hf)-[A-Z0-9-]{10,})re", "«secret»",
     [](const Match& match) { return !hasDigit(match.whole); }},
    {word, R"re(\b(?-i:AKIA|ASIA|AIza)[A-Z0-9_-]{12,})re", "«secret»"},
    {run, R"re(\b[A-Za-z0-9]{20,31}\b)re", "«secret»", noRandomText},
    // Names, hosts and accounts after their keywords
    {word | equals,
     R"re((\b(?:r?user(?:name)?|login|account|owner|author|r?host(?:name)?|server|share|workgroup|domain|realm|label|partlabel|volname|volume|ssid|uuid|partuuid|ptuuid|mail|email|id_fs_label(?:_enc)?|id_fs_uuid(?:_enc)?)=){value})re",
     R"re(\1«local»)re",
     [](const Match& match) {
         const std::string_view value = match.whole.substr(match.whole.find('=') + 1);
         return value.starts_with("«") || value == "true" || value == "false" ||
                (!value.empty() && std::ranges::all_of(value, isDigit));
     }},
    {word | colon, R"re((\b(?:volume |disk |drive )?label: ?)[^\s"',;]+)re", R"re(\1«local»)re"},
    {word, R"re((\b(?:volume |disk |drive |partition )?label "?)(?-i:[A-Z0-9][A-Z0-9_-]{2,})\b)re",
     R"re(\1«local»)re"},
    {word | equals, R"re(\b([ug]id|groups?)=(\d+)\([^)\s]+\))re", R"re(\1=\2(«local»))re"},
    {word, R"re(\b[a-z0-9][a-z0-9-]*(?:\.[a-z0-9-]+)*\.(?:local|lan|fritz\.box|home\.arpa|intranet)\b)re",
     "«local»",
     [](const Match& match) {
         return match.after == '.' || match.after == '/' || match.after == '-' || match.before == '/' ||
                match.before == '.';
     }},
    {mark | at, R"re([^\s"'<>(),;:=/\[\]«»@]+«email»)re", "«email»"},
    {mark, R"re([^\s"'<>(),;:=/\[\]«»@\x00-\x7f][^\s"'<>(),;:=/\[\]«»@]*«email»)re", "«email»"},
    {at, R"re([\pL\pN._%+-]+@[\pL\pN-]+(?:\.[\pL\pN-]+)*\.\pL{2,})re", "«email»"},
    {at, R"re([\pL\pN._%+-]+@[\pL_][\pL\pN_-]*)re", "«email»", noHost},
    {at | mark, R"re([\pL\pN._%+-]+@«(?:local|ip)»(?:[-.][\pL\pN-]+)*)re", "«email»"},
    {at | mark, R"re(«local»@[\pL\pN_.-]+)re", "«email»", nullptr},
    {mark | colon, R"re((«(?:ip|local|email)»\]?:)[/~]?[^\s"'<>|«»\d$/~]{…})re", R"re(\1«path»)re"},
    {mark | colon, R"re((«(?:ip|local|email)»\]?:)[/~][^\s"'<>|«»$]{…})re", R"re(\1«path»)re"},
    // Addresses of networks and devices
    {colon,
     R"re((?:[0-9a-f]{1,4}:){1,7}:(?:[0-9a-f]{1,4}(?::[0-9a-f]{1,4}){0,6})?|::[0-9a-f]{1,4}(?::[0-9a-f]{1,4}){0,6})re",
     "«ip»", noAddress},
    {hyphen, R"re([0-9a-f]{2}(?:-[0-9a-f]{2}){5})re", "«mac»", noMac},
    {word, R"re([0-9a-f]{4}\.[0-9a-f]{4}\.[0-9a-f]{4})re", "«mac»", noMac},
    {underscore, R"re((?:[0-9a-f]{2}_){5}[0-9a-f]{2})re", "«mac»"},
    {word, R"re(\b((?:en|wl|ww)x)[0-9a-f]{12}\b)re", R"re(\1«mac»)re"},
    {word, R"re((\b(?:mac|hwaddr|bssid|ether)\s*[:= ]\s*)[0-9a-f]{12}\b)re", R"re(\1«mac»)re"},
    {underscore, R"re(_(?:\d{1,3}\.){3}\d{1,3}\b)re", "_«ip»"},
    {hyphen, R"re(\bip-\d{1,3}(?:-\d{1,3}){3}\b)re", "«ip»"},
    // Serial numbers
    {word,
     R"re((\b(?:serial(?:[ _-]?(?:number|no\.?|nr\.?|short))?|id_serial(?:_short)?|seriennummer|service[ _-]?tag|asset[ _-]?tag|product[ _-]?key|licen[cs]e(?:[ _-]?key)?|machine[ _-]?id|imei|wwn|wwid)(?:\s*[:=#]\s*|\s+(?:is\s+)?)\\?["']?)[A-Z0-9][A-Z0-9._:+-]{3,})re",
     R"re(\1«serial»)re", noSerial},
    {word | colon, R"re((\bWWN Device Id:\s*)[0-9a-f]+(?: [0-9a-f]+)*)re", R"re(\1«serial»)re"},
    {word, R"re((\b(?:s/n|sn)\s*[:=#]\s*\\?["']?)[A-Z0-9][A-Z0-9._-]{3,})re", R"re(\1«serial»)re", noSerial},
    {word, R"re(\b(?:eui|naa|wwn-0x|nvme-eui)[.]?[0-9a-f]{16,32}\b)re", "«serial»"},
};

std::string expanded(std::string pattern) {
    for (auto entry = std::rbegin(abbreviations); entry != std::rend(abbreviations); ++entry)
        for (auto found = pattern.find(entry->first); found != std::string::npos;
             found = pattern.find(entry->first, found + entry->second.size()))
            pattern.replace(found, entry->first.size(), entry->second);
    return pattern;
}

const std::vector<NetRule>& netRules() {
    static const std::vector<NetRule>& all = *[] {
        RE2::Options options;
        options.set_case_sensitive(false);
        options.set_log_errors(false);
        auto* made = new std::vector<NetRule>;
        for (const Source& source : sources)
            if (auto regex = std::make_unique<const RE2>(expanded(source.pattern), options); regex->ok())
                made->push_back({source.needs, std::move(regex), source.rewrite, source.spares});
        return made;
    }();
    return all;
}

bool isBehindEscape(std::string_view line, std::size_t start) {
    return start >= 3 && line[start - 3] == '%' &&
           std::isxdigit(static_cast<unsigned char>(line[start - 2])) != 0;
}

/// Replaces the matches that `spares` does not spare. Returns their number.
int replaceEach(std::string& line, const RE2& regex, const char* rewrite, Spares spares) {
    constexpr int mostGroups = 3; // the whole match and two groups
    std::array<StringPiece, mostGroups> groups;
    std::string replaced;
    std::size_t from = 0; // start of the text not copied yet
    int count = 0;
    for (std::size_t search = 0;
         search <= line.size() && regex.Match(line, search, line.size(), RE2::UNANCHORED, groups.data(),
                                              std::min(mostGroups, 1 + regex.NumberOfCapturingGroups()));) {
        const auto start = static_cast<std::size_t>(groups[0].data() - line.data());
        const std::size_t end = start + groups[0].size();
        search = std::max(end, search + 1);
        const Match match{std::string_view(line).substr(start, end - start),
                          start > 0 ? line[start - 1] : ' ', end < line.size() ? line[end] : ' ',
                          isBehindEscape(line, start)};
        if (spares && spares(match))
            continue;
        replaced.append(line, from, start - from);
        std::string text;
        regex.Rewrite(&text, rewrite, groups.data(), static_cast<int>(groups.size()));
        if (text != match.whole)
            ++count;
        replaced.append(text);
        from = end;
    }
    if (count > 0)
        line = std::move(replaced.append(line, from));
    return count;
}

/// Parts of names that are also ordinary words.
bool isCommonWord(std::string_view word) {
    static constexpr std::array common{
        "root",    "user",  "admin",  "guest", "test",   "live",   "debian", "ubuntu",    "linux", "system",
        "desktop", "home",  "mark",   "will",  "grant",  "bill",   "max",    "rob",       "art",   "long",
        "short",   "young", "field",  "page",  "name",   "disk",   "drive",  "volume",    "data",  "file",
        "write",   "read",  "random", "local", "laptop", "server", "host",   "localhost", "an",    "as",
        "at",      "be",    "by",     "do",    "go",     "he",     "if",     "in",        "is",    "it",
        "me",      "my",    "no",     "of",    "ok",     "on",     "or",     "so",        "to",    "up",
        "us",      "we",    "ms",     "kb",    "mb",     "gb",     "tb",     "id",        "fs",    "os",
        "io",      "ip",    "sd",     "hd",    "vm",     "pc",     "db",     "qt",        "ui",    "am",
        "pm",      "rw",    "ro"};
    std::string lower(word);
    std::ranges::transform(lower, lower.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return std::ranges::find(common, lower) != common.end();
}

std::vector<std::string> wordsOf(const std::string& text) {
    std::vector<std::string> words;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find_first_of(" .,-", from), text.size());
        if (end > from)
            words.push_back(text.substr(from, end - from));
        from = end + 1;
    }
    return words;
}

/// The short name from two characters on, case-sensitive up to three; words of the full name and of the host
/// name from four characters on. Empty: no names.
std::string patternOfNames(const platform::UserFacts& user) {
    std::string pattern;
    const auto add = [&](const std::string& name, bool anyCase) {
        if (isCommonWord(name))
            return;
        pattern.append(pattern.empty() ? "" : "|").append(anyCase ? "(?i:" : "(?-i:");
        pattern.append(RE2::QuoteMeta(name)).append(")");
    };
    std::string shortName = user.shortName.value_or("");
    mendUtf8(shortName);
    if (const std::size_t count = characterCount(shortName); count >= 2)
        add(shortName, count > 3);
    for (const auto& fact : {user.fullName, user.hostName}) {
        std::string text = fact.value_or("");
        mendUtf8(text);
        for (const std::string& word : wordsOf(text))
            if (characterCount(word) >= 4)
                add(word, true);
    }
    return pattern;
}

} // namespace

PrivacyNet::PrivacyNet(const platform::UserFacts& user) {
    std::string words = std::string("(?i)").append(wordPattern);
    if (const std::string names = patternOfNames(user); !names.empty()) {
        m_names = std::make_unique<const RE2>(names, RE2::Quiet);
        words.append("|").append(names);
    }
    m_words = std::make_unique<const RE2>(words, RE2::Quiet);
}

PrivacyNet::~PrivacyNet() = default;

int PrivacyNet::scrub(std::string& line) const {
    int count = 0;
    const bool hasWord = RE2::PartialMatch(line, *m_words);
    if (hasWord && m_names)
        count += replaceEach(line, *m_names, "«local»", noWholeWord);
    const auto signsOf = [hasWord](const std::string& text) {
        std::uint32_t signs = signsIn(text) | (hasWord ? word : none);
        const bool mayHavePlace = (signs & (slash | tilde | dollar)) != 0;
        return mayHavePlace && hasPlace(text) ? signs | place : signs;
    };
    std::uint32_t signs = signsOf(line);
    for (const NetRule& rule : netRules()) {
        if ((signs & rule.needs) != rule.needs)
            continue;
        if (const int replaced = replaceEach(line, *rule.regex, rule.rewrite, rule.spares); replaced > 0) {
            count += replaced;
            signs = signsOf(line);
        }
    }
    return count;
}

} // namespace OndelCore::logging
