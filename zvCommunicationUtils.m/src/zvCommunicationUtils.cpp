#include "zvCommunicationUtils.h"

#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvCommunicationUtils.m/src/zvCommunicationUtils");

}  // namespace

zvCommunicationUtils::zvCommunicationUtils() = default;
zvCommunicationUtils::zvCommunicationUtils(const zvCommunicationUtils&) = default;
zvCommunicationUtils& zvCommunicationUtils::operator=(const zvCommunicationUtils&) = default;
zvCommunicationUtils::~zvCommunicationUtils() = default;

zvResult zvCommunicationUtils::request(const zvString&, const zvEventArguments&,
                                       WriteMemoryCallbackWrapper*) {
    constexpr char noProtocol[] =
        "Function "
        "zvCommunicationUtils::request(zvString,zvEventArguments,WriteMemoryCallbackWrapper*) has no "
        "protocol";
    logger.error(noProtocol);
    zvResult result;
    result.setMessage(noProtocol);
    return result;
}

void zvCommunicationUtils::queryResponse() {
    logger.warn("Function zvCommunicationUtils::queryResponse() has no protocol");
}

void zvCommunicationUtils::queryResponseHeader() {
    logger.warn("Function zvCommunicationUtils::queryResponseHeader() has no protocol");
}

zvRequestOutcome zvCommunicationUtils::lastOutcome() const { return {}; }

void zvCommunicationUtils::setTimeLimit(int) {}

zvResult zvCommunicationUtils::connect(const zvString&) {
    constexpr char noProtocol[] = "Function zvCommunicationUtils::connect(zvString) has no protocol";
    logger.error(noProtocol);
    zvResult result;
    result.setMessage(noProtocol);
    return result;
}
