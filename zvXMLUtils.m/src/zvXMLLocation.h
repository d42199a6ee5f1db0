#ifndef ZV_XML_LOCATION_H
#define ZV_XML_LOCATION_H

#include <filesystem>
#include <optional>
#include <string>

/// Locations of documents and external entities: paths and "file:" URIs, never the network.
namespace zvXMLLocation {

/// The local path of `location`, which is a path or a URI, without percent-decoding; nothing for a URI with
/// another scheme or host.
std::optional<std::filesystem::path> localPath(const std::string& location);

/// Percent-decodes `path`: "%20" becomes a blank.
std::filesystem::path percentDecoded(const std::filesystem::path& path);

/// Whether `path` is in `folder` or below it. Precondition: both are canonical.
bool isWithin(const std::filesystem::path& folder, const std::filesystem::path& path);

}  // namespace zvXMLLocation

#endif
