#ifndef ZV_NEAREST_NAME_H
#define ZV_NEAREST_NAME_H

#include <string>
#include <vector>

#include "zvString.h"

/// Finds the name that was meant by one that is not known.
namespace zvNearestName {

/// The first of the `known` names that differ from `name` in the fewest characters, case not counted. Empty
/// when each differs in more than a third of them, and for a name of more than 64 characters.
zvString find(const zvString& name, const std::vector<zvString>& known);
/// A name that was found for the end of a message, as in `; did you mean "rev"?`. Empty for none.
std::string question(const zvString& found);
/// Both.
std::string suggestion(const zvString& name, const std::vector<zvString>& known);

}  // namespace zvNearestName

#endif
