#ifndef ZV_SERVER_ANSWER_H
#define ZV_SERVER_ANSWER_H

#include <cstddef>
#include <string>

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

private:
    static std::size_t take(char* data, std::size_t size, std::size_t count, void* sink);

    const zvSecretValues& m_secrets;
    std::size_t m_limit;  // a secret that begins in what is shown is kept as a whole
    std::string m_beginning;
    WriteMemoryCallbackWrapper m_sink;
};

#endif
