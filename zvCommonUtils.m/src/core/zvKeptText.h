#ifndef ZV_KEPT_TEXT_H
#define ZV_KEPT_TEXT_H

#include "zvCharString.h"

/// Conversions that throw std::bad_alloc when out of memory, where the plain ones silently give an empty
/// text. A text that cannot be converted is empty, as ever.
namespace zvKeptText {

/// The wide form of `text`.
zvString widen(const char* text);

/// The narrow form of a text.
class Narrow : public zvCharString {
public:
    explicit Narrow(const zvString& text);
};

}  // namespace zvKeptText

#endif
