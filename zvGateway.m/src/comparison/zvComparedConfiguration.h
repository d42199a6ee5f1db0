#ifndef ZV_COMPARED_CONFIGURATION_H
#define ZV_COMPARED_CONFIGURATION_H

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "zvCfgConfigManager.h"
#include "zvComparedPart.h"

/// A copy of what a configuration file says: the library has one configuration at a time.
class zvComparedConfiguration {
public:
    /// Reads the file, and leaves the library without a configuration; calls `whileRead`, if it is not empty,
    /// while the library has it. Throws the zvProgramFailure of a file that is not read to its end.
    explicit zvComparedConfiguration(const std::string& file, const std::function<void()>& whileRead = {});
    zvComparedConfiguration(const zvComparedConfiguration&) = delete;
    zvComparedConfiguration& operator=(const zvComparedConfiguration&) = delete;

    /// The configuration itself, without its parts.
    const zvComparedPart& document() const { return m_document; }
    /// In the order of the file: of several candidates the first one is tried first.
    const std::vector<zvComparedPart>& objects() const { return m_objects; }
    const std::vector<zvComparedPart>& collections() const { return m_collections; }
    const std::vector<zvComparedPart>& lifecycles() const { return m_lifecycles; }

private:
    zvComparedPart objectPart(const zvCfgObject& object);
    zvComparedPart attributePart(const zvCfgAttribute& attribute);
    void addCollections(const zvCfgConfigManager& configuration);
    void addLifecycle(const zvCfgLcmGraph& lifecycle);

    zvComparedPart m_document;
    std::vector<zvComparedPart> m_objects;
    std::vector<zvComparedPart> m_collections;
    std::vector<zvComparedPart> m_lifecycles;
    // Names of attributes that the library does not know, to which properties refer.
    std::set<std::string> m_furtherNames;
};

#endif
