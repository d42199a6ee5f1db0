#ifndef ZV_PROGRAM_LOG_H
#define ZV_PROGRAM_LOG_H

#include <string>

#include "zvLogLevel.h"

/// The program's own lines in the log. Nothing without a gateway home, or when the log cannot be written.
namespace zvProgramLog {

/// `source` is the name of the source file, as in "zvGateway.m/src/zvPostDelivery".
void write(zvLogLevel level, const std::string& text, const char* source, int line);

}  // namespace zvProgramLog

#endif
