#include "zvCommunicationUtils.h"

zvCommunicationUtils::zvCommunicationUtils() = default;
zvCommunicationUtils::zvCommunicationUtils(const zvCommunicationUtils&) = default;
zvCommunicationUtils& zvCommunicationUtils::operator=(const zvCommunicationUtils&) = default;
zvCommunicationUtils::~zvCommunicationUtils() = default;

zvRequestOutcome zvCommunicationUtils::lastOutcome() const { return {}; }
