#ifndef ZV_SECRET_VALUES_H
#define ZV_SECRET_VALUES_H

#include <string>
#include <string_view>
#include <vector>

#include "zvEventArguments.h"

/// The values of an event's secrets, which are masked when another system sends them back.
class zvSecretValues {
public:
    explicit zvSecretValues(const zvEventArguments& arguments);

    /// The beginning of the text, at most `limit` bytes, with each secret masked: as it is, or
    /// percent-encoded. A secret that goes beyond the limit is masked if `text` has all of it.
    std::string masked(std::string_view text, std::size_t limit) const;
    /// The length of the longest form of a secret in bytes.
    std::size_t longest() const { return m_forms.empty() ? 0 : m_forms.front().size(); }

private:
    std::vector<std::string> m_forms;  // the longest first
};

#endif
