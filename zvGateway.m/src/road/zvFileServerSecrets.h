#ifndef ZV_FILE_SERVER_SECRETS_H
#define ZV_FILE_SERVER_SECRETS_H

#include <set>

#include "zvString.h"

/// The secrets that belong to the file server, which no other server must get.
namespace zvFileServerSecrets {

/// The names in the references `${secret:NAME}` of the gateway home's "fileserver.properties". Empty when
/// there is no such file, or it cannot be read, which the file transfer tells.
std::set<zvString> names();

}  // namespace zvFileServerSecrets

#endif
