#ifndef ZV_JAVA_START_H
#define ZV_JAVA_START_H

#include <string>
#include <vector>

#include "zvString.h"

/// How the Java machine of this process starts: with which client, options and archive of classes.
namespace zvJavaStart {

/// What is told of a machine that ends the process, as one without memory does: see zvProcessEnd.
constexpr char endReason[] =
    "the Java machine ends the process; its own words stand above, or in its file hs_err_pid*.log";

/// Makes known the delivered client, unless CLASSPATH names one of the site's own, the options for short
/// work, unless the environment has others, those of the key "java-options" in the client configuration, and
/// the archive of the client's classes, if there is one. To be called before Java is needed; again, it does
/// nothing. Returns why there is no client that Java could run; empty if there is one.
[[nodiscard]] zvString prepare();

/// Makes the archive if prepare() missed it. A failure is nobody's: the next process tries again.
void leaveArchive();

/// Makes the archive for the machine that an event would start. Returns where it is; throws a
/// zvProgramFailure.
std::string makeArchive();

/// Makes known these options alone, for a process that makes an archive of the classes that it uses.
void prepareArchive(const std::string& file, const std::vector<std::string>& options);

}  // namespace zvJavaStart

#endif
