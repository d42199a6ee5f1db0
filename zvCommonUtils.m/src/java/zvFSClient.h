#ifndef ZV_FS_CLIENT_H
#define ZV_FS_CLIENT_H

#include <memory>

#include "zvCoreObject.h"
#include "zvString.h"
#include "zvStringList.h"
#include "zvTransferObserver.h"

/// The connection to the file server, a singleton over the Java file-server client on CLASSPATH.
///
/// Paths are passed to Java as they are given. The delivered client takes "\" and "/" as separators on every
/// system. File lists contain bare names.
///
/// Every operation logs a failure and throws it as a zvException. For a Java exception, its message is Java's
/// and its result's message is the Java stack trace. If there is no Java client, both messages say that the
/// client is not initialized.
class ZV_EXPORT zvFSClient : public zvCoreObjectCommon {
public:
    zvFSClient(const zvFSClient&) = delete;
    zvFSClient& operator=(const zvFSClient&) = delete;

    /// The instance, owned by the class. The first call creates it, starts the JVM on demand, configures the
    /// Java client from the file `configPath` and connects. If that fails, the instance exists without a
    /// connection, and its operations are left to the Java client to refuse: call destroyInstance() before a
    /// retry. If no JVM was found, the result's additional information says where it was looked for.
    static zvFSClient* getInstance(const zvString& configPath);
    /// The instance; null if it was not created.
    static zvFSClient* getInstance();
    /// Adds an option for the JVM, as the `java` command has them. It counts for a JVM that getInstance()
    /// starts later, and a wrong one keeps that from starting.
    static void addJavaOption(const zvString& option);
    /// Sets what is called when a JVM that getInstance() starts later ends the process, as it does without
    /// memory; null for nothing. It may be called by any thread, and while the JVM starts the process may end
    /// by exit() instead.
    static void setJavaEndObserver(void (*observer)());
    /// Sets a secret to which the configuration refers as ${secret:NAME}. Java gets the secrets from
    /// getInstance(configPath), as the system properties zv.secret.NAME, until it returns. They are not
    /// logged, and appear neither in the environment nor on a command line.
    static void setSecret(const zvString& name, const zvString& value);
    /// Sets the observer of the client's notices, which is not owned and may be set before the instance is
    /// created; null for none.
    static void setObserver(zvTransferObserver* observer);
    /// Looks for everything that is wrong with a configuration file, which is not used otherwise, and starts
    /// the JVM on demand. Appends a key and the reason in turn; the key is empty for what concerns the file
    /// itself. False with a Java client of the site's own that cannot do this.
    static bool findFaults(const zvString& configPath, zvStringList& faults);
    /// Disconnects and deletes the instance, if any; a failure is only logged. The JVM keeps running.
    static void destroyInstance();

    /// Downloads one file.
    void get(const zvString& remote, const zvString& local);
    /// Downloads the files in `files` from a remote directory.
    void get(const zvString& remoteDir, const zvString& localDir, const zvStringList* files);
    /// Downloads the files of a remote directory that match the glob pattern `filter`.
    void get(const zvString& remoteDir, const zvString& localDir, const zvString& filter);
    /// Uploads one file.
    void put(const zvString& local, const zvString& remote);
    /// Uploads the files in `files` from a local directory.
    void put(const zvString& localDir, const zvString& remoteDir, const zvStringList* files);
    /// Uploads the files of a local directory that match the glob pattern `filter`.
    void put(const zvString& localDir, const zvString& remoteDir, const zvString& filter);
    /// Creates a remote directory and its missing parents.
    void mkDir(const zvString& dir);
    /// Creates a remote directory for this caller alone, and its missing parents: of several clients that try
    /// it only one succeeds. Returns false if there is something of that name already. With a Java client of
    /// the site's own that cannot do this, another client may create the directory between test and creation.
    bool mkNewDir(const zvString& dir);
    /// Removes what interrupted transfers have left in a remote directory, except what the binary uploads of
    /// some files to it would continue. Nobody else may transfer files into the directory at the time. Does
    /// nothing with a Java client of the site's own that cannot do this.
    void removeLeftovers(const zvString& dir, const zvStringList& localFiles);
    /// Writes a small temporary file into the root of the server and removes it. False, with nothing done,
    /// with a Java client of the site's own that cannot do this.
    bool probe();
    /// Whether a file or directory exists on the server.
    bool exists(const zvString& path);
    /// Appends the names of the entries of a remote directory to `out`, which is unchanged on failure.
    void list(const zvString& dir, zvStringList& out);
    /// Sets the transfer mode of later transfers: 0 for binary, 1 for ASCII, as in zvAttachment (the opposite
    /// of zvTransferModeEnum).
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
