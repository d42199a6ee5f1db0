#ifndef ZV_TRANSFER_OBSERVER_H
#define ZV_TRANSFER_OBSERVER_H

#include "zvString.h"
#include "zvTypes.h"

/// The observer of a transfer, called for each file with its local path, in the thread that transfers.
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
    /// Called at once when the file-server client tells something that does not end the operation, in one
    /// line: a retry with its reason, a file that is continued, text that arrived with other line ends. What
    /// it throws is ignored. The default does nothing.
    virtual void notice(const zvString& text);
    /// Asked again and again while the file-server client works: true ends the operation with a failure,
    /// which keeps what was uploaded of a large file to be continued. Another thread may ask while the one
    /// that transfers waits for the server. The default is false.
    virtual bool isCancelled();
};

#endif
