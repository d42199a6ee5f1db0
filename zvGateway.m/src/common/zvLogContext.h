#ifndef ZV_LOG_CONTEXT_H
#define ZV_LOG_CONTEXT_H

#include "zvString.h"

/// The event that the log's lines are about, as long as it lives. A process that takes one event after the
/// other makes one for each.
///
/// The identity goes to the eighth function of the logging library, if it has one: see zvLoggerLibrary.h.
class zvLogContext {
public:
    zvLogContext() = default;
    zvLogContext(const zvLogContext&) = delete;
    zvLogContext& operator=(const zvLogContext&) = delete;
    ~zvLogContext();

    /// Every line of this thread carries the identity from now on.
    void setEventId(const zvString& eventId);
};

#endif
