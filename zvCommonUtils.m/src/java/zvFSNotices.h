#ifndef ZV_FS_NOTICES_H
#define ZV_FS_NOTICES_H

#include "zvJniFrame.h"
#include "zvTransferObserver.h"

/// The notices of the Java client, which are logged as warnings and passed to an observer. As with the
/// client, one thread at a time.
class zvFSNotices {
public:
    /// Registers the receivers of the notices and of progress, and what cancels operations. A client of the
    /// site's own may have none of them.
    static void receive(const zvJniFrame& frame);

    /// Sets the observer, which is not owned, or null for none. Returns the observer before.
    static zvTransferObserver* setObserver(zvTransferObserver* observer);
};

#endif
