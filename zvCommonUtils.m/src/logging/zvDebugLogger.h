#ifndef ZV_DEBUG_LOGGER_H
#define ZV_DEBUG_LOGGER_H

#include <memory>

#include "zvCoreObject.h"
#include "zvString.h"

class zvLogChannel;

/// Logs debug messages under a logger name of the caller's choice, with one instance per name.
///
/// Otherwise the same as zvLogger. Each new instance initialises the logging library again.
class ZV_EXPORT zvDebugLogger : public zvCoreObject {
public:
    /// The instance of that name, owned by the class and created on first use; null when there is no memory
    /// for it, until a later call finds some.
    static zvDebugLogger* getInstance(const zvString& name);
    /// Closes the instance of that name, if any, for good: it is not deleted, so that no pointer to it
    /// dangles, but drops its messages from now on.
    static void destroyInstance(const zvString& name);

    void logMsg(const zvString& message, const char* file, int line);

protected:
    explicit zvDebugLogger(const zvString& name);
    ~zvDebugLogger() override;

private:
    std::shared_ptr<zvLogChannel> m_pChannel;
};

#endif
