#include "zvTransferObserver.h"

zvTransferObserver::~zvTransferObserver() = default;

bool zvTransferObserver::hasArrived(const zvString&) { return false; }

void zvTransferObserver::fileBegins(const zvString&) {}

void zvTransferObserver::notice(const zvString&) {}
bool zvTransferObserver::isCancelled() { return false; }
