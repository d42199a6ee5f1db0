#ifndef ZV_COMMUNICATION_UTILS_H
#define ZV_COMMUNICATION_UTILS_H

#include <cstddef>

#include "zvCoreObject.h"
#include "zvEventArguments.h"
#include "zvResult.h"
#include "zvString.h"

/// Where the body of a response goes.
///
/// The write function is called for every piece that arrives, in order, with `size * count` bytes at `data`.
/// `sink` is the address of this very wrapper, through whose m_pUserData the function reaches its own data.
/// It returns the number of bytes that it took, any other number than it was given ends the request with a
/// failure, and it does not throw.
struct WriteMemoryCallbackWrapper {
    std::size_t (*m_pWriteFunction)(char* data, std::size_t size, std::size_t count, void* sink) = nullptr;
    void* m_pUserData = nullptr;
};

/// Sends event arguments to a server; made by zvCommunicationFactory for one protocol.
class ZV_EXPORT zvCommunicationUtils : public zvCoreObject {
public:
    zvCommunicationUtils();
    zvCommunicationUtils(const zvCommunicationUtils& other);
    zvCommunicationUtils& operator=(const zvCommunicationUtils& other);
    ~zvCommunicationUtils() override;

    /// Sends the arguments to `url` and waits for the response, whose body goes to `sink` whatever its
    /// status; a null sink, or one without a write function, discards it.
    /// @return 0 for an answer with a status below 400, also for a redirection, which is not followed;
    /// otherwise -1 with the reason as its message. The additional information is the status in decimal,
    /// empty when there was no answer.
    virtual zvResult request(const zvString& url, const zvEventArguments& args,
                             WriteMemoryCallbackWrapper* sink) = 0;
    /// @name Not there yet
    /// A call is only logged, as a warning.
    /// @{
    virtual void queryResponse() = 0;
    virtual void queryResponseHeader() = 0;
    /// @}
};

#endif
