#ifndef ZV_FS_CLIENT_UTIL_H
#define ZV_FS_CLIENT_UTIL_H

#include "zvAttachmentList.h"
#include "zvEventArguments.h"
#include "zvResult.h"
#include "zvTransferObserver.h"

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
