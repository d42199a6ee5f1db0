#ifndef ZV_FORM_BODY_H
#define ZV_FORM_BODY_H

#include <string>

#include "zvEventArguments.h"

/// Event arguments as a form-urlencoded body: `name=value` in key order, separated by "&", with the UTF-8
/// bytes of names and values percent-encoded.
class zvFormBody {
public:
    explicit zvFormBody(const zvEventArguments& args);

    const std::string& sent() const { return m_strSent; }
    /// The body for the log, with secrets masked; empty if nothing is logged.
    const std::string& shown() const { return m_strShown; }

private:
    void showPair(const zvString& name, const zvString& value, std::size_t begin, std::size_t separator);

    std::string m_strSent;
    std::string m_strShown;
};

#endif
