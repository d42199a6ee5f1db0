#ifndef ZV_DIR_FILE_UTILS_H
#define ZV_DIR_FILE_UTILS_H

#include "zvResult.h"
#include "zvString.h"
#include "zvStringList.h"

/// Directories, files and paths. Failures are told by the result (-1) or by false, and logged.
///
/// The path delimiter is the backslash; on a system with another one, paths are translated when they reach
/// it.
class ZV_EXPORT zvDirFileUtils {
public:
    zvDirFileUtils();
    zvDirFileUtils(const zvDirFileUtils& other);
    zvDirFileUtils& operator=(const zvDirFileUtils& other);
    virtual ~zvDirFileUtils();

    /// Appends one backslash, also behind another one.
    static void appendPathDelimiter(zvString& path);
    /// Creates one directory, not its parents. An existing one is a failure. What the system refuses, here
    /// and in createFile(), has the system's reason as the result's message.
    static zvResult createDirectory(const zvString& path);
    /// Creates a new, empty file; an existing one is a failure. A file that the system refuses to create is
    /// logged and yet answered with 0: who needs the file tests for it with isAccessible().
    static zvResult createFile(const zvString& path);
    /// Removes one file.
    static bool deleteFile(const zvString& path);
    /// Removes directory trees through the command "rmdir /s/q", which `path` follows at once: it begins with
    /// a blank, and a path with blanks stands in double quotes.
    static bool deleteDir(const zvString& path);
    /// What an access test asks for.
    enum AccessMode : int { existence = 0, writable = 2, readable = 4, readAndWrite = 6 };
    /// False for a `mode` that is none of AccessMode's.
    static bool isAccessible(const zvString& path, int mode);
    /// The system's reason why the path is not accessible in that mode; empty when it is.
    static zvString getAccessError(const zvString& path, int mode);
    /// The path with this system's delimiters, for other libraries.
    static zvString nativePath(const zvString& path);
    /// Appends the file's lines, without their line feeds and without the empty ones, to `lines`, which a
    /// failure empties.
    static zvResult readFile(const zvString& path, zvStringList& lines);
    /// The part before the last backslash; empty for a path without a dot or a backslash.
    static zvString extractDirName(const zvString& path);
    /// The part behind the last backslash or slash; empty for a bare name.
    static zvString extractFileName(const zvString& path);
};

#endif
