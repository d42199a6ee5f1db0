#ifndef ZV_SHOWN_ARGUMENTS_H
#define ZV_SHOWN_ARGUMENTS_H

#include <string>
#include <vector>

/// Texts that may quote arguments, as they may be shown: an argument that mentions a secret key is masked
/// wherever it stands.
namespace zvShownArguments {

/// The arguments of this process, `key=value` each or options, that texts may quote from now on.
void setCommandLine(const std::vector<std::string>& arguments);
/// The same for the event that is run, in the place of the one before.
void setEvent(const std::vector<std::string>& arguments);

/// The printable text, with what it quotes of these arguments masked.
std::string masked(std::string text);

}  // namespace zvShownArguments

#endif
