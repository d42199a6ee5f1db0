#include "zvFormBody.h"

#include <curl/curl.h>

#include <algorithm>
#include <memory>
#include <new>

#include "zvLogSource.h"
#include "zvSecrets.h"
#include "zvUtf8.h"

namespace {

struct FreeEscaped {
    void operator()(char* text) const { curl_free(text); }
};

// In pieces, since libcurl refuses to escape long strings. An empty string has no piece: to libcurl the
// length 0 means a null-terminated string.
void appendEscaped(std::string& body, const zvString& text, std::string& buffer) {
    constexpr std::size_t longestPiece = 1'000'000;
    const std::string_view bytes = zvUtf8::encode(text, buffer);
    for (std::size_t from = 0; from < bytes.size(); from += longestPiece) {
        const std::size_t length = std::min(longestPiece, bytes.size() - from);
        const std::unique_ptr<char, FreeEscaped> escaped(
            curl_easy_escape(nullptr, bytes.data() + from, static_cast<int>(length)));
        if (escaped == nullptr) {
            throw std::bad_alloc();
        }
        body += escaped.get();
    }
}

}  // namespace

zvFormBody::zvFormBody(const zvEventArguments& args) {
    const bool isShown = zvLogSink::isReady();
    std::string buffer;
    int left = args.numEventArguments();
    args.forEach([&](const zvString& name, const zvString& value) {
        const std::size_t begin = m_strSent.size();
        appendEscaped(m_strSent, name, buffer);
        const std::size_t separator = m_strSent.size();
        m_strSent += '=';
        appendEscaped(m_strSent, value, buffer);
        if (--left > 0) {
            m_strSent += '&';
        }
        if (isShown) {
            showPair(name, value, begin, separator);
        }
    });
}

// `begin` and `separator` are the positions of the pair and of its "=" in the body that is sent. A name that
// mentions a secret may contain its value, so the whole argument is masked as on the command line.
void zvFormBody::showPair(const zvString& name, const zvString& value, std::size_t begin,
                          std::size_t separator) {
    const char* const secret = zvSecrets::keyIn(name);
    if (secret == nullptr && zvSecrets::keyIn(value) == nullptr) {
        m_strShown.append(m_strSent, begin);
        return;
    }
    m_strShown += secret != nullptr ? secret : m_strSent.substr(begin, separator - begin);
    m_strShown.append("=").append(zvSecrets::mask);
    if (m_strSent.back() == '&') {
        m_strShown += '&';
    }
}
