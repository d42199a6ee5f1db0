#include "zvTransferObserver.h"

zvTransferObserver::~zvTransferObserver() = default;

bool zvTransferObserver::hasArrived(const zvString&) { return false; }

void zvTransferObserver::fileBegins(const zvString&) {}

void zvTransferObserver::notice(const zvString&) {}

bool zvTransferObserver::isCancelled() { return false; }

void zvTransferObserver::progress(const zvString&, zvInt64, zvInt64) {}
