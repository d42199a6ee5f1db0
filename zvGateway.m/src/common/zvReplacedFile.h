#ifndef ZV_REPLACED_FILE_H
#define ZV_REPLACED_FILE_H

#include <string>

/// Writing a file so that its readers see the old content or the new one, never a part.
namespace zvReplacedFile {

/// Replaces the file by `content`, through a temporary file in the same folder. Throws a zvProgramFailure
/// that names the file and the reason, and then leaves no temporary file.
void write(const std::string& file, const std::string& content);

}  // namespace zvReplacedFile

#endif
