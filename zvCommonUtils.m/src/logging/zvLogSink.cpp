#include "zvLogSource.h"
#include "zvLogger.h"

namespace zvLogSink {

bool isReady() {
    const zvLogger* const logger = zvLogger::getInstance();
    return logger != nullptr && logger->isReady();
}

void write(zvLogLevel level, const zvString& message, const char* file, int line) {
    zvLogger* const logger = zvLogger::getInstance();
    if (logger != nullptr) {
        logger->log(level, message, file, line);
    }
}

}  // namespace zvLogSink
