#ifndef ZV_CONFIGURATION_CHECK_H
#define ZV_CONFIGURATION_CHECK_H

#include <vector>

#include "zvCfgConfigManager.h"
#include "zvFinding.h"

/// What is wrong with a configuration that the library reads without complaint. The time it takes grows with
/// the size of the configuration, not faster.
///
/// Errors: an object that nothing reaches, because an earlier one of the same types has no mapping rule, and
/// an attribute with an unknown data type. Warnings: an object that is not reached in one direction, or has
/// no type to be found by; a rule's name that two attributes have, one in each system; an extension that goes
/// neither way, or that is written with other upper and lower case letters as well; a lifecycle state to
/// which no transition leads from the first one.
class zvConfigurationCheck {
public:
    explicit zvConfigurationCheck(const zvCfgConfigManager& configuration);

    /// Objects, files and lifecycles, each in the order of the configuration.
    const std::vector<zvFinding>& findings() const { return m_findings; }

private:
    class Shadows;
    class Spellings;

    void checkObjects();
    void checkAttributes(const zvCfgObject& object);
    void checkRule(const zvCfgObject& object);
    void checkFiles();
    void checkFile(const zvCfgFile& file, Spellings& everywhere);
    void checkLifecycle(const zvCfgLcmGraph& lifecycle);

    const zvCfgConfigManager& m_configuration;
    std::vector<zvFinding> m_findings;
};

#endif
