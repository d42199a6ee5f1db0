#include "zvFSClientUtil.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <system_error>
#include <vector>

#include "zvAttachment.h"
#include "zvCharString.h"
#include "zvDirFileUtils.h"
#include "zvFSClient.h"
#include "zvFSNotices.h"
#include "zvLogSource.h"
#include "zvPath.h"
#include "zvPlatform.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvFSClientUtil");

// The modes of zvAttachment and of zvFSClient::setFileType.
constexpr int binary = 0;
constexpr int ascii = 1;

// One of the event's files: its local path, its name on the file server and its transfer mode.
struct EventFile {
    zvString path;
    zvString name;
    int mode;
    bool toBeDeleted;
};
using EventFiles = std::vector<EventFile>;

// The two directions of a transfer.
struct Direction {
    const char* failure;
    void (*transfer)(zvFSClient& client, const zvString& local, const zvString& remote);
};
constexpr Direction upload{
    "Error in uploading file [",
    [](zvFSClient& client, const zvString& local, const zvString& remote) { client.put(local, remote); }};
constexpr Direction download{
    "Error in downloading file [",
    [](zvFSClient& client, const zvString& local, const zvString& remote) { client.get(remote, local); }};

zvFSClient& client() {
    zvFSClient* const instance = zvFSClient::getInstance();
    if (instance == nullptr) {
        logger.raise("There is no instance of FSClient to transfer the event's files");
    }
    return *instance;
}

zvString required(const zvEventArguments& args, const char* key) {
    zvString value = args.getEventArgumentValue(key);
    if (value.empty()) {
        logger.raise("The argument \"", key, "\" is missing, without which no file can be transferred");
    }
    return value;
}

zvString fileName(const zvString& path) {
    const bool bare = path.find("\\") == -1 && path.find("/") == -1;
    zvString name = bare ? path : zvPath::fileName(path);
    if (name.empty() || name == "." || name == "..") {
        logger.raise("The path [", path, "] names no file");
    }
    return name;
}

// Collects the event's files by name, since they must not overwrite each other on the file server.
class EventFileCollector {
public:
    void add(const EventFile& file) {
        zvString key(file.name);
        key.toLower();
        const auto [known, isNew] = m_indices.emplace(key, m_files.size());
        if (isNew) {
            m_files.push_back(file);
            return;
        }
        EventFile& first = m_files[known->second];
        if (first.path != file.path) {
            logger.raise("The files [", first.path, "] and [", file.path,
                         "] would have the same name on the file server");
        }
        first.toBeDeleted = first.toBeDeleted && file.toBeDeleted;
    }

    const EventFiles& files() const { return m_files; }

private:
    std::map<zvString, std::size_t> m_indices;
    EventFiles m_files;
};

EventFiles collectFiles(const zvEventArguments& args, const zvAttachmentList& attachments,
                        const zvString& localDir) {
    EventFileCollector collector;
    for (const char* const key : {"DataFileName", "AttachmentsFileName"}) {
        const zvString path = zvPath::join(localDir, required(args, key));
        collector.add({path, fileName(path), binary, false});
    }
    for (int i = 0; i < attachments.numAttachments(); ++i) {
        const zvAttachment& attachment = *attachments.getAttachment(i);
        const zvString path = attachment.getFilePath();
        const int mode = attachment.getFileTransferMode() == ascii ? ascii : binary;
        collector.add({path, fileName(path), mode, attachment.getToBeDeleted()});
    }
    return collector.files();
}

zvString localDirectory(const zvEventArguments& args) {
    return zvPath::join(required(args, "RootShadowDir"), required(args, "EventShadowDir"));
}

// Runs `action`, and converts its exceptions to file-transfer failures with the message `what`, `subject` and
// the reason.
template <typename Action>
void onFileServer(const char* what, const zvString& subject, Action action) {
    try {
        action();
    } catch (const zvException& exception) {
        zvResult result = exception.getResult();
        const zvString details = result.getMessage();
        const zvString reason = exception.getMessage().empty() ? details : exception.getMessage();
        result.setMessage(zvTextBuilder::concat(what, subject, "]: ", reason));
        result.setAdditionalInformation(details);
        result.setFileTransferFailure();
        logger.error("", result.getMessage());
        throw zvException(result);
    }
}

// RAII guard for the observer of a transfer, if any.
class NoticeGuard {
public:
    explicit NoticeGuard(zvTransferObserver* observer) : m_bSet(observer != nullptr) {
        if (m_bSet) {
            m_pBefore = zvFSNotices::setObserver(observer);
        }
    }
    NoticeGuard(const NoticeGuard&) = delete;
    NoticeGuard& operator=(const NoticeGuard&) = delete;
    ~NoticeGuard() {
        if (m_bSet) {
            zvFSNotices::setObserver(m_pBefore);
        }
    }

private:
    const bool m_bSet;
    zvTransferObserver* m_pBefore = nullptr;
};

void tell(zvTransferObserver& observer, const zvString& local, std::chrono::steady_clock::time_point start) {
    const auto duration = std::chrono::steady_clock::now() - start;
    std::error_code error;
    const auto bytes = std::filesystem::file_size(zvPlatform::pathOf(zvCharString(local).data()), error);
    observer.fileTransferred(local, error ? 0 : static_cast<zvInt64>(bytes),
                             std::chrono::duration_cast<std::chrono::milliseconds>(duration).count());
}

void transfer(const EventFile& file, const zvString& local, const zvString& remoteDir,
              const Direction& direction, zvTransferObserver* observer) {
    if (observer != nullptr) {
        observer->fileBegins(local);
    }
    const auto start = std::chrono::steady_clock::now();
    onFileServer(direction.failure, local, [&] {
        client().setFileType(file.mode);
        direction.transfer(client(), zvPath::withNativeDelimiters(local),
                           zvTextBuilder::concat(remoteDir, "/", file.name));
    });
    if (observer != nullptr) {
        tell(*observer, local, start);
    }
}

// Before the files are sent: some of them may continue what is there.
void removeLeftovers(const EventFiles& files, const zvString& remoteDir) {
    zvStringList binaryFiles;
    for (const EventFile& file : files) {
        if (file.mode == binary) {
            binaryFiles.addString(zvPath::withNativeDelimiters(file.path));
        }
    }
    onFileServer("Error in removing incomplete files in directory [", remoteDir,
                 [&] { client().removeLeftovers(remoteDir, binaryFiles); });
}

// @return the paths that could not be removed.
zvString removeLocal(const EventFiles& files) {
    zvTextBuilder left;
    for (const EventFile& file : files) {
        if (file.toBeDeleted && zvDirFileUtils::isAccessible(file.path, zvPlatform::existence) &&
            !zvDirFileUtils::deleteFile(file.path)) {
            left.append(left.empty() ? "Not removed: " : ", ").append(file.path);
        }
    }
    return left.toString();
}

// Runs `action`; converts its exceptions, which are logged already, to results.
template <typename Action>
zvResult resultOf(Action action) {
    try {
        zvResult result(0);
        action(result);
        return result;
    } catch (const zvException& exception) {
        return exception.getResult();
    }
}

}  // namespace

zvResult zvFSClientUtil::createShadowDir(const zvEventArguments& args) {
    return resultOf([&](zvResult&) {
        const zvString directory = required(args, "EventShadowDir");
        zvFSClient& server = client();
        onFileServer("Error in creating directory [", directory, [&] { server.mkDir(directory); });
    });
}

zvResult zvFSClientUtil::createNewShadowDir(const zvEventArguments& args) {
    return resultOf([&](zvResult& result) {
        const zvString localDir = localDirectory(args);
        const zvString directory = required(args, "EventShadowDir");
        zvFSClient& server = client();
        bool created = false;
        onFileServer("Error in creating directory [", directory,
                     [&] { created = server.mkNewDir(directory); });
        if (!created) {
            result.setResult(directoryExists);
            result.setMessage(
                zvTextBuilder::concat("The event in [", localDir, "] needs a new directory [", directory,
                                      "] on the file server, which has one of this name already"));
            logger.error("", result.getMessage());
        }
    });
}

zvResult zvFSClientUtil::uploadEventFiles(const zvEventArguments& args, const zvAttachmentList& attachments,
                                          zvTransferObserver* observer) {
    return resultOf([&](zvResult& result) {
        const EventFiles files = collectFiles(args, attachments, localDirectory(args));
        EventFiles toBeSent;
        for (const EventFile& file : files) {
            if (observer != nullptr && observer->hasArrived(file.path)) {
                continue;
            }
            if (!zvDirFileUtils::isAccessible(file.path, zvPlatform::readable)) {
                logger.raise("The file [", file.path, "] cannot be read");
            }
            toBeSent.push_back(file);
        }
        const zvString remoteDir = required(args, "EventShadowDir");
        const NoticeGuard guard(observer);
        removeLeftovers(toBeSent, remoteDir);
        for (const EventFile& file : toBeSent) {
            transfer(file, file.path, remoteDir, upload, observer);
        }
        result.setAdditionalInformation(removeLocal(files));
    });
}

zvResult zvFSClientUtil::downloadEventFiles(const zvEventArguments& args, const zvAttachmentList& attachments,
                                            zvTransferObserver* observer) {
    return resultOf([&](zvResult&) {
        const zvString localDir = localDirectory(args);
        const EventFiles files = collectFiles(args, attachments, localDir);
        if (!zvDirFileUtils::isAccessible(localDir, zvPlatform::existence) &&
            !zvDirFileUtils::createDirectory(localDir).isOk()) {
            logger.raise("The directory [", localDir, "] cannot be created");
        }
        const zvString remoteDir = required(args, "EventShadowDir");
        const NoticeGuard guard(observer);
        client();
        for (const EventFile& file : files) {
            transfer(file, zvPath::join(localDir, file.name), remoteDir, download, observer);
        }
    });
}
