#ifndef ZV_LOG_LISTENER_H
#define ZV_LOG_LISTENER_H

#include "zvExport.h"
#include "zvLogLevel.h"
#include "zvString.h"

/// Hears every message that is logged, for a program that shows them itself: see zvLogger::setListener().
class ZV_EXPORT zvLogListener {
public:
    zvLogListener() = default;
    zvLogListener(const zvLogListener&) = delete;
    zvLogListener& operator=(const zvLogListener&) = delete;
    virtual ~zvLogListener();

    /// `file` and `line` are those of the call. Must not log itself.
    virtual void hear(zvLogLevel level, const zvString& message, const char* file, int line) = 0;
};

#endif
