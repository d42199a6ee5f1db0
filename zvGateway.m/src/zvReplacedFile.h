#ifndef ZV_REPLACED_FILE_H
#define ZV_REPLACED_FILE_H

#include <string>

/// Writing a file so that its readers see the old content or the new one, never a part.
namespace zvReplacedFile {

/// Puts `content` into the file, through another one beside it. Throws a zvStepFailure that names the file
/// and the reason, and leaves nothing behind then.
void write(const std::string& file, const std::string& content);

}  // namespace zvReplacedFile

#endif
