#ifndef ZV_FORM_BODY_H
#define ZV_FORM_BODY_H

#include <string>

#include "zvEventArguments.h"

/// Event arguments as the body of a form post: `name=value` in key order with "&" between, names and values
/// escaped as UTF-8 bytes.
class zvFormBody {
public:
    explicit zvFormBody(const zvEventArguments& args);

    const std::string& sent() const { return m_strSent; }
    /// The body as a log may show it, secrets masked; empty when there is no log to read it.
    const std::string& shown() const { return m_strShown; }

private:
    void showPair(const zvString& name, const zvString& value, std::size_t begin, std::size_t separator);

    std::string m_strSent;
    std::string m_strShown;
};

#endif
