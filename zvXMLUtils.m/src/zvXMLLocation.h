#ifndef ZV_XML_LOCATION_H
#define ZV_XML_LOCATION_H

#include <filesystem>
#include <optional>
#include <string>

/// Where documents and their external entities stand: paths and "file:" URIs, never a network.
namespace zvXMLLocation {

/// The path that `location`, a path or a URI, names on this machine, as it stands; none for a URI that leads
/// elsewhere.
std::optional<std::filesystem::path> localPath(const std::string& location);

/// What `path` names when it is read as a URI reference: "%20" is a blank.
std::filesystem::path percentDecoded(const std::filesystem::path& path);

/// Whether `path` stands in `folder` or below it; both are canonical.
bool isWithin(const std::filesystem::path& folder, const std::filesystem::path& path);

}  // namespace zvXMLLocation

#endif
