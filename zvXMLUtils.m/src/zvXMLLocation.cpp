#include "zvXMLLocation.h"

#include <algorithm>
#include <cctype>

#include "zvPlatform.h"

namespace fs = std::filesystem;

namespace {

bool isLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }

bool isHexDigit(char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; }

bool isSchemeCharacter(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '+' || c == '-' || c == '.';
}

// The scheme of a URI in lower case; empty for a path, also one with a drive letter.
std::string schemeOf(const std::string& location) {
    const auto end = std::find_if_not(location.begin(), location.end(), isSchemeCharacter);
    if (end - location.begin() < 2 || end == location.end() || *end != ':' || !isLetter(location.front())) {
        return {};
    }
    std::string scheme(location.begin(), end);
    std::transform(scheme.begin(), scheme.end(), scheme.begin(),
                   [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return scheme;
}

std::string decoded(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size() && isHexDigit(text[i + 1]) && isHexDigit(text[i + 2])) {
            out += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            out += text[i];
        }
    }
    return out;
}

// The path of a "file:" URI; nothing if it has another host.
std::optional<std::string> pathOfFileUri(std::string uri) {
    constexpr bool hasDrives = fs::path::preferred_separator == '\\';
    uri.erase(0, uri.find(':') + 1);
    if (uri.compare(0, 2, "//") == 0) {
        const std::string host = uri.substr(2, uri.find('/', 2) - 2);
        if (!host.empty() && host != "localhost") {
            return std::nullopt;
        }
        uri.erase(0, 2 + host.size());
    }
    if (hasDrives && uri.size() > 2 && uri[0] == '/' && isLetter(uri[1]) && uri[2] == ':') {
        uri.erase(0, 1);
    }
    return decoded(uri);
}

}  // namespace

std::optional<fs::path> zvXMLLocation::localPath(const std::string& location) {
    const std::string scheme = schemeOf(location);
    std::optional<std::string> path;
    if (scheme.empty()) {
        path = location;
    } else if (scheme == "file") {
        path = pathOfFileUri(location);
    }
    return path ? std::optional<fs::path>(zvPlatform::pathOf(*path)) : std::nullopt;
}

fs::path zvXMLLocation::percentDecoded(const fs::path& path) {
    return zvPlatform::pathOf(decoded(zvPlatform::textOf(path)));
}

bool zvXMLLocation::isWithin(const fs::path& folder, const fs::path& path) {
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}
