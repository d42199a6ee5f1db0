#ifndef ZV_DELIVERED_FILE_H
#define ZV_DELIVERED_FILE_H

#include <string>

/// The path of a file that is delivered with the program, looked for relative to the program's folder: first
/// where it is installed, then where it is built. Empty when it is in neither place.
std::string findDeliveredFile(const char* installed, const char* built);

#endif
