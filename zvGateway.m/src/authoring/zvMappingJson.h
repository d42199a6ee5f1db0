#ifndef ZV_MAPPING_JSON_H
#define ZV_MAPPING_JSON_H

#include <optional>
#include <string>

#include "zvFailure.h"
#include "zvLifecycleWay.h"
#include "zvMappingTrial.h"

/// What became of an object, for programs.
namespace zvMappingJson {

/// One JSON document and a line feed. With `explains` also why. `way` is the one that was asked for, if any;
/// `failure` what the object is refused for.
std::string of(const zvMappingTrial& trial, const std::optional<zvLifecycleWay>& way, bool explains,
               const std::optional<zvProgramFailure>& failure);

}  // namespace zvMappingJson

#endif
