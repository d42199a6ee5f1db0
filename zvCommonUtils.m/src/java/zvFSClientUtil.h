#ifndef ZV_FS_CLIENT_UTIL_H
#define ZV_FS_CLIENT_UTIL_H

#include "zvAttachmentList.h"
#include "zvEventArguments.h"
#include "zvResult.h"
#include "zvTransferObserver.h"

/// Transfers an event's files between this host and the file server. Without an instance of zvFSClient every
/// operation fails. On the file server all files are in the directory "EventShadowDir"; on this host the data
/// file and the attachments file are in that directory below "RootShadowDir".
///
/// Every failure is logged, and the result's message names the file and the reason. It is a file-transfer
/// failure, with the Java stack trace as additional information, if the file server failed, and a business
/// failure if an argument is missing, a local file cannot be read or file names conflict. The client keeps
/// the transfer mode of the last file.
class ZV_EXPORT zvFSClientUtil {
public:
    /// Creates the event's directory on the file server.
    static zvResult createShadowDir(const zvEventArguments& args);

    /// Uploads the event's data file and attachments file (both binary) and each attachment in its own
    /// transfer mode, under its file name. Nothing is uploaded unless all files are readable and their names
    /// are unique, case-insensitively. After all uploads, the local attachments to be deleted are removed;
    /// those that cannot be removed are listed in the additional information and are no failure.
    static zvResult uploadEventFiles(const zvEventArguments& args, const zvAttachmentList& attachments,
                                     zvTransferObserver* observer = nullptr);

    /// Downloads the same files into the event's directory on this host, which is created if missing.
    static zvResult downloadEventFiles(const zvEventArguments& args, const zvAttachmentList& attachments,
                                       zvTransferObserver* observer = nullptr);
};

#endif
