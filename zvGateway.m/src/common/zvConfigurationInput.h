#ifndef ZV_CONFIGURATION_INPUT_H
#define ZV_CONFIGURATION_INPUT_H

#include <optional>
#include <string>

#include "zvTemporaryFolder.h"

/// The file that is meant by the name of a configuration, where "-" is standard input.
class zvConfigurationInput {
public:
    /// Keeps standard input in a file as long as it lives. Throws the zvProgramFailure of one that cannot be
    /// read.
    explicit zvConfigurationInput(const std::string& name);

    const std::string& file() const { return m_strFile; }
    /// For messages, printable.
    const std::string& shownName() const { return m_strShownName; }

private:
    const std::string m_strShownName;
    std::string m_strFile;
    std::optional<zvTemporaryFolder> m_folder;
};

#endif
