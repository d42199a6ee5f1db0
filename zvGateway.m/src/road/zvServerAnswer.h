#ifndef ZV_SERVER_ANSWER_H
#define ZV_SERVER_ANSWER_H

#include <cstddef>
#include <string>
#include <string_view>

#include "zvCommunicationUtils.h"
#include "zvSecretValues.h"

/// The beginning of a server's answer, which is what a person wants to see of it.
class zvServerAnswer {
public:
    /// `secrets` has to live as long.
    explicit zvServerAnswer(const zvSecretValues& secrets);
    zvServerAnswer(const zvServerAnswer&) = delete;
    zvServerAnswer& operator=(const zvServerAnswer&) = delete;

    /// For a request; owned by this object.
    WriteMemoryCallbackWrapper* sink() { return &m_sink; }
    /// The first 200 bytes on one line, printable, with secrets masked.
    std::string text() const;

    /// The beginning, at most `limit` bytes, of what a server sent, in the same form. What is not UTF-8, or
    /// unknown to the locale, is replaced.
    static std::string shown(std::string_view text, std::size_t limit, const zvSecretValues& secrets);

private:
    static std::size_t take(char* data, std::size_t size, std::size_t count, void* sink);

    const zvSecretValues& m_secrets;
    std::size_t m_limit;  // a secret that begins in what is shown is kept as a whole
    std::string m_beginning;
    WriteMemoryCallbackWrapper m_sink;
};

#endif
