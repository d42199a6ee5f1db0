#ifndef ZV_DEBUG_LOGGER_H
#define ZV_DEBUG_LOGGER_H

#include <memory>

#include "zvCoreObject.h"
#include "zvString.h"

class zvLogChannel;

/// Debug messages under a logger name of the caller's own: one instance for each name.
///
/// Everything else is as with zvLogger, and each instance configures the logging library once more.
class ZV_EXPORT zvDebugLogger : public zvCoreObject {
public:
    /// The instance of that name, owned by the class and created on first use.
    static zvDebugLogger* getInstance(const zvString& name);
    /// Ends the instance of that name, if any: it stays the name's instance, without a channel, so that
    /// whoever still holds it or asks for it again gets a logger that drops its messages.
    static void destroyInstance(const zvString& name);

    void logMsg(const zvString& message, const char* file, int line);

protected:
    explicit zvDebugLogger(const zvString& name);
    ~zvDebugLogger() override;

private:
    std::shared_ptr<zvLogChannel> m_pChannel;
};

#endif
