#ifndef ZV_PROCESS_END_H
#define ZV_PROCESS_END_H

#include <functional>

#include "zvFailure.h"

/// While it lives, something is done before the process ends otherwise than by this program: a Java machine
/// ends it when it has no memory, and so does a client that asks for it.
class zvProcessEnd {
public:
    /// `atEnd` is called once at most, by whichever thread ends the process, and returns the exit code. Of
    /// several objects the newest is called first, and the exit code of the oldest counts. They go in the
    /// opposite order of their making.
    explicit zvProcessEnd(std::function<zvExitCode()> atEnd);
    zvProcessEnd(const zvProcessEnd&) = delete;
    zvProcessEnd& operator=(const zvProcessEnd&) = delete;
    ~zvProcessEnd();

    /// To be called by whoever is about to end the process without exit(), which does it by itself. Ends it,
    /// if there is anything to be done.
    static void notify();

private:
    const std::function<zvExitCode()> m_atEnd;
};

#endif
