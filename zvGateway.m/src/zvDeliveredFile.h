#ifndef ZV_DELIVERED_FILE_H
#define ZV_DELIVERED_FILE_H

#include <string>

/// A file that is delivered with the program, looked for from where the program is: first as it is installed,
/// then as it is built. Empty when it is in neither place.
std::string zvDeliveredFile(const char* installed, const char* built);

#endif
