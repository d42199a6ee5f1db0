#ifndef ZV_TRANSFER_OBSERVER_H
#define ZV_TRANSFER_OBSERVER_H

#include "zvString.h"
#include "zvTypes.h"

/// Follows a transfer, file by file. `local` is a file's path on this host.
class ZV_EXPORT zvTransferObserver {
public:
    virtual ~zvTransferObserver();

    /// Whether an earlier upload sent the file: it is not sent again and need not be there any more.
    /// Otherwise every file is sent.
    virtual bool hasArrived(const zvString& local);
    /// The transfer of the file begins.
    virtual void fileBegins(const zvString& local);
    /// It is over; the duration is in milliseconds.
    virtual void fileTransferred(const zvString& local, zvInt64 bytes, zvInt64 milliseconds) = 0;
};

#endif
