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
/// the transfer mode of the last file. An observer is told the client's notices too, instead of the one that
/// zvFSClient::setObserver() has set.
class ZV_EXPORT zvFSClientUtil {
public:
    /// Creates the event's directory on the file server, unless it is there already.
    static zvResult createShadowDir(const zvEventArguments& args);

    /// The code of a result: there is already something of the directory's name on the file server.
    static constexpr int directoryExists = 1;
    /// Creates the event's directory on the file server, which must not exist. If it does, nothing is
    /// changed, and the result, a business failure, has the code directoryExists and names the directory
    /// there and that on this host. Two events that try it at once cannot both succeed, see
    /// zvFSClient::mkNewDir().
    static zvResult createNewShadowDir(const zvEventArguments& args);

    /// Removes what interrupted transfers have left in the event's directory on the file server, except what
    /// can be continued; the caller sees to it that no other process transfers files of this event. Then
    /// uploads the event's data file and attachments file (both binary) and each attachment in its own
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
