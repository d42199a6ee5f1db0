#ifndef ZV_HOME_SETTINGS_H
#define ZV_HOME_SETTINGS_H

#include <string>
#include <vector>

/// What the client configuration of the gateway home says about secrets, rights and Java. It counts before
/// the first line of the log, so it is read without one.
namespace zvHomeSettings {

/// Makes the arguments that "secret-keys" names secrets.
void adoptSecretKeys();

/// The rights that "shadow-mode" keeps from new files of an event, as a umask; -1 for the process's own. A
/// value that cannot be used is told in `fault`, and counts as none: everything is the owner's alone.
int shadowMask(std::string& fault);

/// The options of "java-options", between blanks.
std::vector<std::string> javaOptions();
/// Whether "java-archive" is not "off".
bool wantsJavaArchive();

}  // namespace zvHomeSettings

#endif
