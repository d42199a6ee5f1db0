#ifndef ZV_FAILURE_JSON_H
#define ZV_FAILURE_JSON_H

#include <nlohmann/json.hpp>

#include "zvFailure.h"
#include "zvShownArguments.h"

/// A failure in the program's JSON documents.
namespace zvFailureJson {

inline nlohmann::ordered_json of(const zvProgramFailure& failure) {
    // Before it is escaped, which would keep a secret from being found.
    return {{"step", failure.step},
            {"subject", zvShownArguments::masked(failure.subject)},
            {"reason", zvShownArguments::masked(failure.reason)}};
}

}  // namespace zvFailureJson

#endif
