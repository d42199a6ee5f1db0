#ifndef ZV_TEST_LOCALE_H
#define ZV_TEST_LOCALE_H

#include <string>

#include "zvTestSupport.h"

/// A locale that localedef makes for one test, in an encoding that has the byte of a backslash inside other
/// characters. It is the process's locale for narrow and wide text until the destructor restores the former
/// one.
class zvTestLocale {
public:
    /// `definition` as in "zh_TW", `encoding` as in "BIG5".
    zvTestLocale(const std::string& definition, const std::string& encoding);
    zvTestLocale(const zvTestLocale&) = delete;
    zvTestLocale& operator=(const zvTestLocale&) = delete;
    ~zvTestLocale();

    /// False when there is no localedef, or when it cannot make the locale.
    bool isSet() const { return m_bIsSet; }

private:
    zvTemporaryFolder m_folder;
    std::string m_former;
    bool m_bIsSet;
};

/// Such a locale, with the bytes of a character that contains the byte of a backslash.
struct zvTestEncoding {
    const char *definition, *encoding, *character;
};
constexpr zvTestEncoding zvTestEncodings[] = {
    {"zh_TW", "BIG5", "\xA5\x5C"}, {"zh_CN", "GBK", "\x81\x5C"}, {"ja_JP", "SHIFT_JIS", "\x95\x5C"}};

#endif
