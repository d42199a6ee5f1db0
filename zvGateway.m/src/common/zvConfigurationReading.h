#ifndef ZV_CONFIGURATION_READING_H
#define ZV_CONFIGURATION_READING_H

#include <string>

#include "zvCfgMgrXmlParser.h"
#include "zvConfigurationInput.h"
#include "zvFindingList.h"

/// Reads a configuration file into the configuration manager, and keeps what is wrong with it.
class zvConfigurationReading {
public:
    using InvalidRule = zvCfgMgrXmlParser::InvalidRule;

    /// Reads the file that the name means. Throws the zvProgramFailure of one that cannot be opened.
    zvConfigurationReading(const std::string& name, InvalidRule invalidRule);

    /// Whether the file was read to its end.
    bool isComplete() const { return m_bComplete; }
    /// Throws the zvProgramFailure of one that was not, with the place in it.
    void requireComplete() const;
    /// The remote system's name; empty when the file has none.
    const zvString& pdmSystemName() const { return m_strPdmSystemName; }
    const zvFindingList& findings() const { return m_findings; }
    /// There as long as this object lives.
    const zvConfigurationInput& input() const { return m_input; }

private:
    const zvConfigurationInput m_input;
    zvFindingList m_findings;
    bool m_bComplete = false;
    zvString m_strPdmSystemName;
};

#endif
