#include "zvSecretValues.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

#include "zvSecrets.h"
#include "zvSpelledCharacter.h"
#include "zvUtf8.h"

namespace {

// Of a secret that the end of a text cuts off, fewer characters may as well be anything.
constexpr std::size_t tellingCharacters = 4;

std::u32string charactersOf(const zvString& text) {
    std::u32string characters;
    for (int i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i];
        const bool isSecondOfPair = (unit & 0xFC00U) == 0xDC00U && !characters.empty() &&
                                    (characters.back() & 0xFFFFFC00U) == 0xD800U;
        if (isSecondOfPair) {
            characters.back() = 0x10000 + ((characters.back() & 0x3FFU) << 10U) + (unit & 0x3FFU);
        } else {
            characters += unit;
        }
    }
    return characters;
}

// As a request's header "Authorization" has an account; without the padding, which says nothing.
std::string base64(std::string_view bytes) {
    constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    unsigned bits = 0;
    int count = 0;
    for (const char byte : bytes) {
        bits = (bits << 8U) | static_cast<unsigned char>(byte);
        for (count += 8; count >= 6; count -= 6) {
            text += digits[(bits >> static_cast<unsigned>(count - 6)) & 0x3FU];
        }
    }
    return count == 0 ? text : text + digits[(bits << static_cast<unsigned>(6 - count)) & 0x3FU];
}

std::string percentDecoded(std::string_view text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto isHexadecimal = [&](std::size_t at) {
            return at < text.size() &&
                   std::string_view("0123456789abcdefABCDEF").find(text[at]) != std::string_view::npos;
        };
        if (text[i] == '%' && isHexadecimal(i + 1) && isHexadecimal(i + 2)) {
            bytes += static_cast<char>(std::stoi(std::string(text.substr(i + 1, 2)), nullptr, 16));
            i += 2;
        } else {
            bytes += text[i];
        }
    }
    return bytes;
}

// Whether the text ends before a character of a secret, or within its spelling.
bool isCutOff(std::string_view rest) {
    const auto maySpell = [](char c) {
        constexpr unsigned char firstBeyondAscii = 0x80;
        return static_cast<unsigned char>(c) >= firstBeyondAscii ||
               std::isalnum(static_cast<unsigned char>(c)) != 0 ||
               std::string_view("%\\&#").find(c) != std::string_view::npos;
    };
    return rest.empty() || (rest.size() < zvSpelledCharacter::longest &&
                            !std::isalnum(static_cast<unsigned char>(rest.front())) &&
                            std::all_of(rest.begin(), rest.end(), maySpell));
}

// Of the places where the characters so far may end, the nearest two and the farthest two: a server spells a
// character alike throughout, and a run of backslashes, single or doubled, has as many ends as characters.
void keepTelling(std::vector<std::size_t>& ends) {
    constexpr std::ptrdiff_t ofEach = 2;
    std::sort(ends.begin(), ends.end());
    ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
    if (static_cast<std::ptrdiff_t>(ends.size()) > 2 * ofEach) {
        ends.erase(ends.begin() + ofEach, ends.end() - ofEach);
    }
}

// Where the secret that begins at `begin` ends, by its longest spelling; 0 if there is none, as at most
// places, which allocate nothing.
std::size_t endOf(const std::u32string& secret, std::string_view text, std::size_t begin) {
    std::vector<std::size_t> ends;
    std::vector<std::size_t> next;
    zvSpelledCharacter::appendEnds(text, begin, secret.front(), ends);
    keepTelling(ends);
    for (std::size_t i = 1; i < secret.size() && !ends.empty(); ++i) {
        next.clear();
        for (const std::size_t end : ends) {
            zvSpelledCharacter::appendEnds(text, end, secret[i], next);
        }
        if (next.empty() && i >= tellingCharacters && isCutOff(text.substr(ends.back()))) {
            return text.size();
        }
        keepTelling(next);
        ends.swap(next);
    }
    return ends.empty() ? 0 : ends.back();
}

// Not within a character of UTF-8.
void cut(std::string& text, std::size_t limit) {
    if (text.size() > limit) {
        constexpr unsigned char kind = 0xC0;
        constexpr unsigned char continuation = 0x80;
        constexpr int mostContinuations = 3;
        std::size_t end = limit;
        for (int i = 0; i < mostContinuations && end > 0; ++i) {
            end -= (static_cast<unsigned char>(text[end]) & kind) == continuation ? 1 : 0;
        }
        const bool isCharacter = (static_cast<unsigned char>(text[end]) & kind) != continuation;
        text.resize(isCharacter ? end : limit);
    }
}

}  // namespace

zvSecretValues::zvSecretValues(const zvEventArguments& arguments, const zvString& url) {
    arguments.forEach([this](const zvString& name, const zvString& value) { addArgument(name, value); });
    addAccount(url);
}

void zvSecretValues::add(const zvString& secret) {
    if (!secret.empty()) {
        m_secrets.push_back(charactersOf(secret));
    }
}

void zvSecretValues::addArgument(const zvString& name, const zvString& value) {
    if (zvSecrets::maskedValue(name, value) == value) {
        return;
    }
    add(value);
    // A name or a value that mentions a key may have what belongs to it.
    for (const zvString& text : {name, value}) {
        const int separator = text.find("=");
        if (zvSecrets::keyIn(text) != nullptr && separator >= 0) {
            add(text.substr(separator + 1, text.size() - separator - 1));
        }
    }
}

void zvSecretValues::addAccount(const zvString& url) {
    const std::string account = zvUtf8::encode(zvSecrets::accountIn(url));
    const std::size_t separator = account.find(':');
    if (account.empty()) {
        return;
    }
    const std::string decoded = percentDecoded(account);
    add(base64(decoded).c_str());
    if (separator != std::string::npos) {
        for (const std::string& password :
             {account.substr(separator + 1), percentDecoded(account.substr(separator + 1))}) {
            add(zvUtf8::decodeReplacing(password));
        }
    }
}

std::size_t zvSecretValues::endOfSecretAt(std::string_view text, std::size_t begin) const {
    std::size_t end = 0;
    for (const std::u32string& secret : m_secrets) {
        end = std::max(end, endOf(secret, text, begin));
    }
    return end;
}

std::string zvSecretValues::masked(std::string_view text, std::size_t limit) const {
    std::string result;
    for (std::size_t i = 0; i < std::min(limit + 1, text.size());) {
        const std::size_t end = endOfSecretAt(text, i);
        if (end == 0) {
            result += text[i++];
        } else {
            result += zvSecrets::mask;
            i = end;
        }
    }
    cut(result, limit);
    return result;
}

std::size_t zvSecretValues::longest() const {
    std::size_t characters = 0;
    for (const std::u32string& secret : m_secrets) {
        characters = std::max(characters, secret.size());
    }
    return characters * zvSpelledCharacter::longest;
}
