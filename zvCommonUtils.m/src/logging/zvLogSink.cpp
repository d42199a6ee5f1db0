#include "zvLogSource.h"
#include "zvLogger.h"

namespace zvLogSink {

bool isReady() {
    const zvLogger* const logger = zvLogger::getInstance();
    return logger != nullptr && logger->isReady();
}

void write(zvLogLevel level, const zvString& message, const char* file, int line) {
    using Operation = void (zvLogger::*)(const zvString&, const char*, int);
    static constexpr Operation operations[] = {&zvLogger::logDebug, &zvLogger::logInfo, &zvLogger::logWarn,
                                               &zvLogger::logError, &zvLogger::logFatal};
    zvLogger* const logger = zvLogger::getInstance();
    if (logger != nullptr) {
        (logger->*operations[static_cast<int>(level)])(message, file, line);
    }
}

}  // namespace zvLogSink
