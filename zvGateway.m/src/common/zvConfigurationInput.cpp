#include "zvConfigurationInput.h"

#include "zvConsole.h"
#include "zvFailure.h"
#include "zvProcess.h"
#include "zvReplacedFile.h"
#include "zvStandardInput.h"

namespace {

constexpr std::size_t longestInput = 256'000'000;

}  // namespace

// A document may have any encoding, which the parser finds out of a file. In a folder of its own nothing else
// can be included.
zvConfigurationInput::zvConfigurationInput(const std::string& name)
    : m_strShownName(zvConsole::printable(zvStandardInput::nameOf(name).c_str())), m_strFile(name) {
    if (!zvStandardInput::isMeantBy(name)) {
        return;
    }
    m_folder.emplace();
    m_strFile = (m_folder->path() / "standard-input.xml").string();
    std::string content;
    const std::error_code error = zvProcess::readToEnd(zvStandardInput::descriptor, longestInput, content);
    if (error) {
        throw zvProgramFailure{zvExitCode::configuration, "configuration", m_strShownName,
                               zvProcess::messageOf(error)};
    }
    zvReplacedFile::write(m_strFile, content);
}
