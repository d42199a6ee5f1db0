#ifndef ZV_FILE_SERVER_CONNECTION_H
#define ZV_FILE_SERVER_CONNECTION_H

#include "zvException.h"
#include "zvString.h"
#include "zvTransferObserver.h"

/// The connection to the file server, over the delivered Java client unless the site has one of its own.
class zvFileServerConnection {
public:
    /// What a person is told of a failure: Java says no more of a class that it lacks than the class's name.
    static zvString reasonOf(const zvException& exception);

    /// Connects as the file says. Throws a zvException, also with where Java was looked for.
    zvFileServerConnection(const zvString& configuration, zvTransferObserver& observer);
    zvFileServerConnection(const zvFileServerConnection&) = delete;
    zvFileServerConnection& operator=(const zvFileServerConnection&) = delete;
    ~zvFileServerConnection();
};

#endif
