#ifndef ZV_SECRET_OPTIONS_H
#define ZV_SECRET_OPTIONS_H

#include <CLI/CLI.hpp>

struct zvRoadOptions;

/// The options that name the sources of secrets.
namespace zvSecretOptions {

/// `use` says in the help what the secrets are for.
void declare(CLI::App& command, zvRoadOptions& options, const char* use);

}  // namespace zvSecretOptions

#endif
