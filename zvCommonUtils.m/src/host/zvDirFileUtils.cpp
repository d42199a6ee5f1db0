#include "zvDirFileUtils.h"

#include <cerrno>
#include <cstring>
#include <string>
#include <system_error>

#include "zvCharString.h"
#include "zvLogSource.h"
#include "zvPath.h"
#include "zvPlatform.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvDirFileUtils");

zvString lastErrorCode() { return zvString(static_cast<long>(zvPlatform::lastError())); }

// Reads a line in pieces of 1023 bytes, without its line feed. A zero byte ends the piece that it is in.
// @return the error number of a read error, or 0.
int readLine(std::FILE* file, std::string& line) {
    constexpr std::size_t pieceCapacity = 1024;
    char piece[pieceCapacity];
    std::size_t length = 0;
    line.clear();
    do {
        piece[0] = '\0';
        if (std::fgets(piece, pieceCapacity, file) == nullptr) {
            return std::ferror(file) == 0 ? 0 : errno;
        }
        length = std::strlen(piece);
        if (length > 0 && piece[length - 1] == '\n') {
            --length;
        }
        line.append(piece, length);
    } while (length == pieceCapacity - 1);
    return 0;
}

}  // namespace

zvDirFileUtils::zvDirFileUtils() = default;
zvDirFileUtils::zvDirFileUtils(const zvDirFileUtils&) = default;
zvDirFileUtils& zvDirFileUtils::operator=(const zvDirFileUtils&) = default;
zvDirFileUtils::~zvDirFileUtils() = default;

void zvDirFileUtils::appendPathDelimiter(zvString& path) { path += '\\'; }

zvResult zvDirFileUtils::createDirectory(const zvString& path) {
    zvResult result;
    if (path.empty()) {
        logger.error("Empty directory path received in zvDirFileUtils::createDirectory.");
        return result;
    }
    if (isAccessible(path, zvPlatform::existence)) {
        logger.warn("Directory \"", path, "\" already exist");
        return result;
    }
    if (zvPlatform::createDirectory(path.data())) {
        result.setOk();
    } else {
        result.setMessage(zvPlatform::errorText(zvPlatform::lastError()).c_str());
        logger.error("Error occured while creating directory :", path, " ErrorCode :", lastErrorCode());
    }
    return result;
}

zvResult zvDirFileUtils::createFile(const zvString& path) {
    zvResult result;
    if (path.empty()) {
        logger.error("Empty file path received in zvDirFileUtils::createDirectory.");
        return result;
    }
    if (isAccessible(path, zvPlatform::existence)) {
        logger.warn("File \"", path, "\" already exist");
        return result;
    }
    // A refused creation is success as well, since callers rely on that: it returns a handle too, one that
    // cannot be closed. No system returns 0.
    const zvPlatform::Handle handle = zvPlatform::createFile(path.data());
    result.setOk();
    if (!zvPlatform::closeHandle(handle)) {
        result.setMessage(zvPlatform::errorText(zvPlatform::lastError()).c_str());
        logger.error("Error occured while closing file handle :", path, " ErrorCode :", lastErrorCode());
    }
    return result;
}

bool zvDirFileUtils::deleteFile(const zvString& path) {
    logger.info("Inside function zvDirFileUtils::deleteDirectory(zvString)");
    const bool deleted = zvPlatform::removeFile(zvCharString(path).data());
    if (deleted) {
        logger.info("Successfully Deleted :", path);
    } else {
        logger.warn("Failed to Delete :", path);
    }
    return deleted;
}

bool zvDirFileUtils::deleteDir(const zvString& path) {
    logger.info("Inside function zvDirFileUtils::deleteDir(zvString)");
    if (path.empty()) {
        return false;
    }
    const bool deleted = zvPlatform::removeTree(zvCharString(path).data());
    if (deleted) {
        logger.info("Successfully Deleted Dir:", path);
    } else {
        logger.warn("Failed to Delete Dir :", path);
    }
    return deleted;
}

bool zvDirFileUtils::isAccessible(const zvString& path, int mode) {
    if (path.empty()) {
        logger.warn("Empty directory/file name passed.");
        return false;
    }
    return zvPlatform::isAccessible(zvCharString(path).data(), mode);
}

zvString zvDirFileUtils::getAccessError(const zvString& path, int mode) {
    zvString fault = getNameError(path);
    if (!fault.empty()) {
        return fault;
    }
    const unsigned long error = zvPlatform::accessError(zvCharString(path).data(), mode);
    return error == 0 ? zvString() : zvString(zvPlatform::errorText(error).c_str());
}

zvString zvDirFileUtils::getNameError(const zvString& path) {
    return zvPlatform::nameFault(zvCharString(path).data()).c_str();
}

zvString zvDirFileUtils::nativePath(const zvString& path) { return zvPath::withNativeDelimiters(path); }

zvResult zvDirFileUtils::readFile(const zvString& path, zvStringList& lines) {
    zvResult result;
    if (path.empty()) {
        logger.error("Empty file path.");
        lines.clear();
        return result;
    }
    const zvPlatform::File file = zvPlatform::openForReading(zvCharString(path).data());
    if (file == nullptr) {
        logger.error("Error in opening file : \"", path, "\"");
        lines.clear();
        return result;
    }
    logger.info("\"", path, "\" opened for reading.");
    std::string line;
    int error = 0;
    while (std::feof(file.get()) == 0 && error == 0) {
        error = readLine(file.get(), line);
        zvString text(line.c_str());
        if (!text.empty()) {
            lines.addString(std::move(text));
        } else if (!line.empty()) {
            logger.warn("A line of the file \"", path, "\" cannot be converted and is left out.");
        }
    }
    if (error != 0) {
        const std::string reason = std::generic_category().message(error);
        result.setMessage(reason.c_str());
        logger.error("Error in reading file : \"", path, "\", ", reason.c_str());
        lines.clear();
        return result;
    }
    result.setOk();
    return result;
}

zvString zvDirFileUtils::extractDirName(const zvString& path) {
    if (path.empty()) {
        logger.warn("Function zvDirFileUtils::extractDirName(zvString) received empty file name.");
        return {};
    }
    if (path.reverseFind(".") == -1) {
        logger.warn("\".\" not found in the absolute file path.");
        return {};
    }
    const int delimiter = path.reverseFind("\\");
    if (delimiter == -1) {
        logger.warn("\"\\\" not found in the absolute file path.");
        return {};
    }
    return path.substr(0, delimiter);
}

zvString zvDirFileUtils::extractFileName(const zvString& path) { return zvPath::fileName(path); }
