#ifndef ZV_TRANSFER_OBSERVER_H
#define ZV_TRANSFER_OBSERVER_H

#include "zvString.h"
#include "zvTypes.h"

/// The observer of a transfer, called for each file with its local path.
class ZV_EXPORT zvTransferObserver {
public:
    virtual ~zvTransferObserver();

    /// Whether the file was uploaded by an earlier attempt: it is then skipped and need not exist locally any
    /// more. The default is false.
    virtual bool hasArrived(const zvString& local);
    /// Called before the file is transferred.
    virtual void fileBegins(const zvString& local);
    /// Called after the file was transferred successfully, with its size and the duration.
    virtual void fileTransferred(const zvString& local, zvInt64 bytes, zvInt64 milliseconds) = 0;
};

#endif
