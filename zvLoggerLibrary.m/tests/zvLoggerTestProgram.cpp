#include <cstdlib>
#include <string>

#include "zvLoggerLibrary.h"
#include "zvLoggerTestMessage.h"
#include "zvPlatform.h"

namespace {

/// Constructed before the logging library is configured, and so destroyed after most other static objects.
struct EarlyObject {
    ~EarlyObject() {
        LogInfoMessage("early.object", "destroyed \xC3\xBC", "early/object.cpp", 1);
        LogAlwaysMessage("early.object.always", "destroyed", "early/object.cpp", 2);
    }
} earlyObject;

}  // namespace

/// Arguments: the configuration file, a name for this process, the number of messages to log.
int main(int argc, char** argv) {
    zvPlatform::adoptUserLocale();
    if (argc != 4 || !InitializeLogger(argv[1])) {
        return EXIT_FAILURE;
    }
    std::atexit([] { LogErrorMessage("at.exit", "called", "at/exit.cpp", 3); });
    const int count = std::atoi(argv[3]);
    for (int i = 0; i < count; ++i) {
        LogInfoMessage("test.program", zvLoggerTestMessage(argv[2], i).c_str(), "test/program.cpp", i);
    }
    return EXIT_SUCCESS;
}
