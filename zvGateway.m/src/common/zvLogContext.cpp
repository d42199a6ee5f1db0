#include "zvLogContext.h"

#include "zvConsole.h"
#include "zvProcess.h"
#include "zvSecrets.h"

namespace {

// An identity is its caller's, and stands in every line.
constexpr int longestIdentity = 100;

void tellLogger(const char* eventId) {
    using SetEventId = void (*)(const char*);
    static const auto setEventId =
        reinterpret_cast<SetEventId>(zvProcess::findLoggerFunction("SetLogEventId"));
    if (setEventId != nullptr) {
        setEventId(eventId);
    }
}

}  // namespace

zvLogContext::~zvLogContext() { tellLogger(nullptr); }

void zvLogContext::setEventId(const zvString& eventId) {
    const zvString shown = zvSecrets::maskedValue("EventId", eventId);
    tellLogger(zvConsole::printable(shown.substr(0, longestIdentity)).c_str());
}
