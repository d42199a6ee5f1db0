#ifndef ZV_SECRET_VALUES_H
#define ZV_SECRET_VALUES_H

#include <string>
#include <string_view>
#include <vector>

#include "zvEventArguments.h"

/// The secrets that travel with an event, which are masked when another system sends them back.
class zvSecretValues {
public:
    /// Those among the arguments, and the account in the server's address if it has one.
    zvSecretValues(const zvEventArguments& arguments, const zvString& url);

    /// The beginning of the text, at most `limit` bytes, with each secret masked, however its characters are
    /// spelled. A secret that goes beyond the limit is masked if `text` has all of it, and so is one that the
    /// end of the text cuts off.
    std::string masked(std::string_view text, std::size_t limit) const;
    /// The length of the longest spelling of a secret in bytes.
    std::size_t longest() const;

private:
    void add(const zvString& secret);
    void addArgument(const zvString& name, const zvString& value);
    void addAccount(const zvString& url);
    std::size_t endOfSecretAt(std::string_view text, std::size_t begin) const;

    std::vector<std::u32string> m_secrets;
};

#endif
