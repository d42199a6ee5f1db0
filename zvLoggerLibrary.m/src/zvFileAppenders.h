#ifndef ZV_FILE_APPENDERS_H
#define ZV_FILE_APPENDERS_H

#include <log4cxx/fileappender.h>

#include <string>

/// Replaces log4cxx's file appenders, as long as it lives, by ones that are silent about a file that cannot
/// be opened and drop lines until it can, where log4cxx would report each attempt and each line, and that
/// write each line at once.
class zvFileAppenders {
public:
    zvFileAppenders();
    zvFileAppenders(const zvFileAppenders&) = delete;
    zvFileAppenders& operator=(const zvFileAppenders&) = delete;
    ~zvFileAppenders();

    /// Why the appender has no open file; empty if it has one, and for another fault than of the file.
    static std::string openingError(const log4cxx::FileAppender& appender);
};

#endif
