#ifndef ZV_ARGUMENT_TEXTS_H
#define ZV_ARGUMENT_TEXTS_H

#include <string>
#include <vector>

/// Builds the arguments of an event, as a command line has them, from keys and values in UTF-8.
class zvArgumentTexts {
public:
    /// Returns why the argument cannot be used, in printable words; empty if it was added.
    std::string add(const std::string& key, const std::string& value);
    std::vector<std::string> take() { return std::move(m_texts); }

private:
    std::vector<std::string> m_texts;
};

#endif
