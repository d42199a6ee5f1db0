#ifndef ZV_TYPES_H
#define ZV_TYPES_H

#include <cstdint>

/// One UTF-16 code unit: the character type of zvString on every platform.
using wchar16 = unsigned short;

/// Seconds since 1970-01-01 00:00:00 UTC.
using zvInt64 = std::int64_t;

#endif
