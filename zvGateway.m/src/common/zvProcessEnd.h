#ifndef ZV_PROCESS_END_H
#define ZV_PROCESS_END_H

#include <functional>

/// While it lives, something is done before the process ends otherwise than by this program: a Java machine
/// ends it when it has no memory, and so does a client that asks for it.
class zvProcessEnd {
public:
    /// `atEnd` is called once at most, by whichever thread ends the process.
    explicit zvProcessEnd(std::function<void()> atEnd);
    zvProcessEnd(const zvProcessEnd&) = delete;
    zvProcessEnd& operator=(const zvProcessEnd&) = delete;
    ~zvProcessEnd();

    /// To be called by whoever is about to end the process without exit(), which does it by itself.
    static void notify();
};

#endif
