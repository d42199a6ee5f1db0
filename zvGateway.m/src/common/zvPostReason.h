#ifndef ZV_POST_REASON_H
#define ZV_POST_REASON_H

#include <string>

#include "zvRequestOutcome.h"

/// What a person is told of a post that was not delivered: the cause and, if it is known, the cure.
struct zvPostReason {
    /// The address of the post, printable.
    std::string url;
    /// The server's own words, printable; may be empty.
    std::string words;
    /// The target of a redirect, printable.
    std::string target;
    /// The library's message, printable.
    std::string message;

    std::string text(const zvRequestOutcome& outcome) const;
};

#endif
