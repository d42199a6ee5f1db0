#ifndef ZV_DIR_FILE_UTILS_H
#define ZV_DIR_FILE_UTILS_H

#include "zvResult.h"
#include "zvString.h"
#include "zvStringList.h"

/// Operations on directories, files and paths. Failures are logged and reported as a result of -1 or as
/// false.
///
/// The path separator is the backslash; on other systems it is translated when a path is used.
class ZV_EXPORT zvDirFileUtils {
public:
    zvDirFileUtils();
    zvDirFileUtils(const zvDirFileUtils& other);
    zvDirFileUtils& operator=(const zvDirFileUtils& other);
    virtual ~zvDirFileUtils();

    /// Appends a backslash, even if the path ends in one.
    static void appendPathDelimiter(zvString& path);
    /// Creates one directory, not its parents; fails if it exists. If the system refuses, the result's
    /// message is the system's reason, as in createFile().
    static zvResult createDirectory(const zvString& path);
    /// Creates a new, empty file; fails if it exists. If the system refuses, that is logged, but the code is
    /// 0: check with isAccessible() whether the file exists.
    static zvResult createFile(const zvString& path);
    /// Deletes one file; false if that fails, and for a directory.
    static bool deleteFile(const zvString& path);
    /// Removes directory trees with the command "rmdir /s/q", to which `path` is appended as it is: it has to
    /// begin with a blank, and a path with blanks has to be quoted. Where the system has no such command, a
    /// path that ends in "." or ".." is refused.
    static bool deleteDir(const zvString& path);
    /// What an access test asks for.
    enum AccessMode : int { existence = 0, writable = 2, readable = 4, readAndWrite = 6 };
    /// Whether the file or directory is accessible; false for a `mode` that is not one of AccessMode's.
    static bool isAccessible(const zvString& path, int mode);
    /// Why the system would take a path for another one than it names, or for none; empty if it does not.
    /// Windows has names of devices in every folder, as "aux.txt", drops a dot or a blank at the end of a
    /// name, and lacks some characters.
    static zvString getNameError(const zvString& path);
    /// The system's reason why the path is not accessible in that mode; empty if it is.
    static zvString getAccessError(const zvString& path, int mode);
    /// The path with this system's delimiters, for other libraries.
    static zvString nativePath(const zvString& path);
    /// Appends the file's lines to `lines`, without line feeds and without empty lines; on failure `lines` is
    /// cleared. After a read error the result's message is the system's reason.
    static zvResult readFile(const zvString& path, zvStringList& lines);
    /// The part before the last backslash; empty for a path without a dot or a backslash.
    static zvString extractDirName(const zvString& path);
    /// The part after the last backslash or slash; empty for a path without either.
    static zvString extractFileName(const zvString& path);
};

#endif
