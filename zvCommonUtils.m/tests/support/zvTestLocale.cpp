#include "zvTestLocale.h"

#include <clocale>
#include <cstdlib>

#include "zvPlatform.h"

zvTestLocale::zvTestLocale(const std::string& definition, const std::string& encoding)
    : m_former(std::setlocale(LC_CTYPE, nullptr)), m_bIsSet(false) {
    if (onWindows) {
        return;
    }
    const std::string name = definition + "." + encoding;
    // It fails with a warning about encodings that are not quite ASCII, and has made the locale nevertheless.
    const std::string command = "localedef -c -f " + encoding + " -i " + definition + " \"" +
                                m_folder.file(name) + "\" > /dev/null 2>&1";
    [[maybe_unused]] const int code = std::system(command.c_str());
    zvPlatform::setEnvironment("LOCPATH", m_folder.path().string().c_str());
    m_bIsSet = std::setlocale(LC_CTYPE, name.c_str()) != nullptr;
}

zvTestLocale::~zvTestLocale() {
    std::setlocale(LC_CTYPE, m_former.c_str());
    zvPlatform::setEnvironment("LOCPATH", "");
}
