#ifndef ZV_FS_CLIENT_H
#define ZV_FS_CLIENT_H

#include <memory>

#include "zvCoreObject.h"
#include "zvString.h"
#include "zvStringList.h"

/// The process's connection to the file server, through the Java file-server client on CLASSPATH.
///
/// Local paths may separate folders with "\" on every system; remote paths go to the server as they are
/// given. A list names files without their folders.
///
/// Every operation throws a zvException when it fails, with the failure logged before: for a failure in Java,
/// its message is Java's own and its result's message the Java stack trace; an operation without a connection
/// says in the result's message that the client is not initialized.
class ZV_EXPORT zvFSClient : public zvCoreObjectCommon {
public:
    zvFSClient(const zvFSClient&) = delete;
    zvFSClient& operator=(const zvFSClient&) = delete;

    /// The instance, owned by the class. The first call creates it, starts Java if need be, configures the
    /// Java client from the file `configPath` and connects. When that fails there is an instance all the
    /// same, without a connection: destroyInstance() makes way for another attempt.
    static zvFSClient* getInstance(const zvString& configPath);
    /// The instance; null when there is none.
    static zvFSClient* getInstance();
    /// Disconnects, a failure of which is only logged, and deletes the instance, if any. Java keeps running.
    static void destroyInstance();

    /// Fetches one remote file.
    void get(const zvString& remote, const zvString& local);
    /// Fetches the files of a remote directory that `files` lists.
    void get(const zvString& remoteDir, const zvString& localDir, const zvStringList* files);
    /// Fetches the files of a remote directory that match `filter`, as the Java client understands it.
    void get(const zvString& remoteDir, const zvString& localDir, const zvString& filter);
    /// Sends one local file.
    void put(const zvString& local, const zvString& remote);
    /// Sends the files of a local directory that `files` lists.
    void put(const zvString& localDir, const zvString& remoteDir, const zvStringList* files);
    /// Sends the files of a local directory that match `filter`.
    void put(const zvString& localDir, const zvString& remoteDir, const zvString& filter);
    void mkDir(const zvString& dir);
    bool exists(const zvString& path);
    /// Appends the names of what is in a remote directory to `out`, which a failure leaves as it was.
    void list(const zvString& dir, zvStringList& out);
    /// How files travel from now on: 0 binary, 1 ASCII, as in zvAttachment (not as in zvTransferModeEnum).
    void setFileType(int mode);

private:
    struct Impl;

    zvFSClient();
    ~zvFSClient() override;

    void initialize(const zvString& configPath);
    void connect();
    void disconnect();

    static zvFSClient* m_pFSClient;

    std::unique_ptr<Impl> m_pImpl;
};

#endif
