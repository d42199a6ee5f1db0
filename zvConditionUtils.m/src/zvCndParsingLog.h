#ifndef ZV_CND_PARSING_LOG_H
#define ZV_CND_PARSING_LOG_H

#include "zvLogSource.h"

namespace zvCndParsing {

/// Whatever reads, builds or writes conditions logs as the class that callers know.
inline constexpr zvLogSource logger("zvConditionUtils.m/src/zvCndParsingUtils");

}  // namespace zvCndParsing

#endif
