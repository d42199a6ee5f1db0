#include "zvProgramLog.h"

#include "zvCommonUtils.h"
#include "zvLogger.h"

void zvProgramLog::write(zvLogLevel level, const std::string& text, const char* source, int line) {
    // Without a home the library would say so on standard output.
    const zvString variable = zvCommonUtils::getGatewayHomeEnvVariable();
    if (zvCommonUtils::getEnvironmentalVariable(variable).empty()) {
        return;
    }
    zvLogger* const logger = zvLogger::getInstance();
    if (logger != nullptr && logger->isReady()) {
        logger->log(level, text.c_str(), source, line);
    }
}
