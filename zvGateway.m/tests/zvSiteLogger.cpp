// A site's own logging library: writes what it is told to the file that SITE_LOG names. ZV_EIGHTH_FUNCTION
// gives it the optional function, which the delivered one has.
#include <cstdio>
#include <cstdlib>

namespace {

void write(const char* word, const char* text) {
    const char* const path = std::getenv("SITE_LOG");
    std::FILE* const file = path == nullptr ? nullptr : std::fopen(path, "a");
    if (file != nullptr) {
        std::fprintf(file, "%s %s\n", word, text);
        std::fclose(file);
    }
}

}  // namespace

extern "C" {
bool InitializeLogger(const char* /*path*/) { return true; }
void LogDebugMessage(const char* /*logger*/, const char* /*message*/, const char* /*file*/, int /*line*/) {}
void LogInfoMessage(const char* /*logger*/, const char* message, const char* /*file*/, int /*line*/) {
    write("info", message);
}
void LogWarnMessage(const char* /*logger*/, const char* message, const char* /*file*/, int /*line*/) {
    write("warn", message);
}
void LogErrorMessage(const char* /*logger*/, const char* message, const char* /*file*/, int /*line*/) {
    write("error", message);
}
void LogFatalMessage(const char* /*logger*/, const char* message, const char* /*file*/, int /*line*/) {
    write("fatal", message);
}
void LogAlwaysMessage(const char* /*logger*/, const char* message, const char* /*file*/, int /*line*/) {
    write("always", message);
}
#ifdef ZV_EIGHTH_FUNCTION
void SetLogEventId(const char* eventId) { write("event", eventId == nullptr ? "" : eventId); }
#endif
}
