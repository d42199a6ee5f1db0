#ifndef ZV_EVENT_ID_H
#define ZV_EVENT_ID_H

#include <string>
#include <vector>

#include "zvString.h"

/// A new identity for an event: a random UUID, as in "f81d4fae-7dec-41d0-a765-00a0c91e6bf6".
std::string makeEventId();

/// The identity of the event with these arguments, before any of them is looked at: that of the record in the
/// directory that they name, else the one that they give, else a new one.
zvString eventIdOf(const std::vector<std::string>& arguments);

#endif
