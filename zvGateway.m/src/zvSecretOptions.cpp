#include "zvSecretOptions.h"

#include <string>

#include "zvRoadOptions.h"

void zvSecretOptions::declare(CLI::App& command, zvRoadOptions& options, const char* use) {
    command.add_option("--secrets", options.secretsFile,
                       std::string("A file with a key=value on each line, ") + use +
                           "; only its owner may have rights to it");
    command
        .add_option("--secrets-fd", options.secretsDescriptor,
                    "The same from an open file descriptor, as in 3<FILE")
        ->check(CLI::NonNegativeNumber);
}
