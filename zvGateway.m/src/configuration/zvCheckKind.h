#ifndef ZV_CHECK_KIND_H
#define ZV_CHECK_KIND_H

#include <string_view>

/// What `zvgateway check` finds in a configuration that the library reads without complaint; the library's
/// own kinds are in zvFindingKind.
namespace zvCheckKind {

constexpr std::string_view unreachableObject = "unreachable-object";
constexpr std::string_view shadowedType = "shadowed-type";    ///< not reached from one of its types alone
constexpr std::string_view ambiguousName = "ambiguous-name";  ///< in a rule: that of two attributes
constexpr std::string_view untypedObject = "untyped-object";
constexpr std::string_view unknownDataType = "unknown-data-type";
constexpr std::string_view unusedExtension = "unused-extension";
constexpr std::string_view caseVariant = "case-variant";
constexpr std::string_view unreachableState = "unreachable-state";
constexpr std::string_view unknownAttribute = "unknown-attribute";
constexpr std::string_view unknownElement = "unknown-element";
constexpr std::string_view unknownWord = "unknown-word";

}  // namespace zvCheckKind

#endif
