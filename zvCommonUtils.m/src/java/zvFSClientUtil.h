#ifndef ZV_FS_CLIENT_UTIL_H
#define ZV_FS_CLIENT_UTIL_H

#include "zvAttachmentList.h"
#include "zvEventArguments.h"
#include "zvResult.h"
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

/// Moves an event's files between this host and the file server, over the instance of zvFSClient, which has
/// to exist. On the file server they are all in one directory, which "EventShadowDir" names; on this host the
/// data file and the attachments file are in that directory below "RootShadowDir".
///
/// A result that is not OK names the file and the reason. Its failure type is file transfer when the file
/// server refused, with the Java stack trace as additional information, and business when an argument is
/// missing, a local file cannot be read or the names of the files do not go together. Every failure is
/// logged. The client keeps the transfer mode of the last file.
class ZV_EXPORT zvFSClientUtil {
public:
    /// Creates the event's directory on the file server.
    static zvResult createShadowDir(const zvEventArguments& args);

    /// Sends the event's data file and attachments file (both binary) and each attachment in its own transfer
    /// mode, under its own file name. Nothing is sent unless every file can be read and no two have the same
    /// name, upper and lower case being the same. When all files have arrived, the local attachments to be
    /// deleted are removed; one that cannot be removed is no failure, the additional information names it.
    static zvResult uploadEventFiles(const zvEventArguments& args, const zvAttachmentList& attachments,
                                     zvTransferObserver* observer = nullptr);

    /// Fetches the same files into the event's directory on this host, which is created if need be.
    static zvResult downloadEventFiles(const zvEventArguments& args, const zvAttachmentList& attachments,
                                       zvTransferObserver* observer = nullptr);
};

#endif
