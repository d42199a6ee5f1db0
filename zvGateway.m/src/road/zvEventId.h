#ifndef ZV_EVENT_ID_H
#define ZV_EVENT_ID_H

#include <string>

/// A new identity for an event: a random UUID, as in "f81d4fae-7dec-41d0-a765-00a0c91e6bf6".
std::string makeEventId();

#endif
