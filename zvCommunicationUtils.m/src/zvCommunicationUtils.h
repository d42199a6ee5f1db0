#ifndef ZV_COMMUNICATION_UTILS_H
#define ZV_COMMUNICATION_UTILS_H

#include <cstddef>

#include "zvCoreObject.h"
#include "zvEventArguments.h"
#include "zvRequestOutcome.h"
#include "zvResult.h"
#include "zvString.h"

/// The callback that receives the body of a response.
///
/// The write function is called for every chunk in order, with `size * count` bytes at `data`; `sink` points
/// to this wrapper, whose m_pUserData is the function's own. It returns the number of bytes that it consumed;
/// any other number than it was given aborts the request as a failure. It must not throw.
struct WriteMemoryCallbackWrapper {
    std::size_t (*m_pWriteFunction)(char* data, std::size_t size, std::size_t count, void* sink) = nullptr;
    void* m_pUserData = nullptr;
};

/// Sends event arguments to a server over one protocol; created by zvCommunicationFactory. The class itself,
/// which a copy of such an object may be, knows no protocol: its operations log that and do nothing.
class ZV_EXPORT zvCommunicationUtils : public zvCoreObject {
public:
    zvCommunicationUtils();
    zvCommunicationUtils(const zvCommunicationUtils& other);
    zvCommunicationUtils& operator=(const zvCommunicationUtils& other);
    ~zvCommunicationUtils() override;

    /// Sends the arguments to `url` and waits for the response, whose body is passed to `sink` whatever the
    /// status; a null sink, or one without a write function, discards it. An answer that is longer than
    /// "http-answer-limit" of the client configuration (1 MiB), and a request that takes longer than
    /// "http-timeout" (10 minutes), is a failure.
    /// @return 0 for a response with a status below 400, including redirects, which are not followed;
    /// otherwise -1 with the reason as message. The additional information is the status in decimal, empty if
    /// there was no response.
    virtual zvResult request(const zvString& url, const zvEventArguments& args,
                             WriteMemoryCallbackWrapper* sink);
    /// @name Not implemented
    /// Only logs a warning.
    /// @{
    virtual void queryResponse();
    virtual void queryResponseHeader();
    /// @}

    /// More of the last request than its result says; by default, nothing.
    virtual zvRequestOutcome lastOutcome() const;

    /// Connects to the server of `url` as request() does, TLS session included, and disconnects: nothing is
    /// sent. lastOutcome() then tells of it. A client certificate is looked at by many servers with the first
    /// request only.
    /// @return 0 if it succeeds; otherwise -1 with the reason as message.
    virtual zvResult connect(const zvString& url);

    /// The seconds that each later request may take if its protocol would give it more; 0 for no other limit.
    virtual void setTimeLimit(int seconds);
};

#endif
