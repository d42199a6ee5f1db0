#include "zvSecretValues.h"

#include <algorithm>

#include "zvCharString.h"
#include "zvSecrets.h"

namespace {

bool isUnreserved(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           std::string_view("-._~").find(c) != std::string_view::npos;
}

// As in a form's body; `blank` is "%20" or "+".
std::string percentEncoded(const std::string& text, const char* blank) {
    constexpr char digits[] = "0123456789ABCDEF";
    constexpr unsigned base = 16;
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (isUnreserved(c)) {
            encoded += c;
        } else if (c == ' ') {
            encoded += blank;
        } else {
            encoded += {'%', digits[byte / base], digits[byte % base]};
        }
    }
    return encoded;
}

// Not within a character of UTF-8.
void cut(std::string& text, std::size_t limit) {
    if (text.size() > limit) {
        constexpr unsigned char kind = 0xC0;
        constexpr unsigned char continuation = 0x80;
        while (limit > 0 && (static_cast<unsigned char>(text[limit]) & kind) == continuation) {
            --limit;
        }
        text.resize(limit);
    }
}

}  // namespace

zvSecretValues::zvSecretValues(const zvEventArguments& arguments) {
    arguments.forEach([this](const zvString& name, const zvString& value) {
        if (!value.empty() && zvSecrets::maskedValue(name, value) != value) {
            const std::string text = zvCharString(value).data();
            m_forms.insert(m_forms.end(), {text, percentEncoded(text, "%20"), percentEncoded(text, "+")});
        }
    });
    m_forms.erase(std::remove(m_forms.begin(), m_forms.end(), std::string()), m_forms.end());
    std::sort(m_forms.begin(), m_forms.end(),
              [](const std::string& left, const std::string& right) { return left.size() > right.size(); });
}

std::string zvSecretValues::masked(std::string_view text, std::size_t limit) const {
    std::string result;
    for (std::size_t i = 0; i < std::min(limit + 1, text.size());) {
        const auto form = std::find_if(m_forms.begin(), m_forms.end(), [&](const std::string& secret) {
            return text.compare(i, secret.size(), secret) == 0;
        });
        if (form == m_forms.end()) {
            result += text[i++];
        } else {
            result += zvSecrets::mask;
            i += form->size();
        }
    }
    cut(result, limit);
    return result;
}
