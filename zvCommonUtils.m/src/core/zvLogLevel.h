#ifndef ZV_LOG_LEVEL_H
#define ZV_LOG_LEVEL_H

/// The log levels; `always` ignores the configured threshold.
enum class zvLogLevel { debug, info, warn, error, fatal, always };

#endif
