#ifndef ZV_LOG_LEVEL_H
#define ZV_LOG_LEVEL_H

/// The levels of the log; `always` is written whatever the configured threshold.
enum class zvLogLevel { debug, info, warn, error, fatal, always };

#endif
