#ifndef ZV_INTERRUPTION_H
#define ZV_INTERRUPTION_H

#include "zvProcess.h"

/// Thrown where the work can be ended cleanly, after a request to end the process.
struct zvInterruption {
    int signal;

    static void throwIfRequested() {
        if (const int signal = zvProcess::notedSignal()) {
            throw zvInterruption{signal};
        }
    }
};

#endif
