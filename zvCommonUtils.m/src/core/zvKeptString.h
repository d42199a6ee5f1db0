#ifndef ZV_KEPT_STRING_H
#define ZV_KEPT_STRING_H

#include <new>
#include <utility>

#include "zvString.h"

/// A text that a collection or a value keeps: a copy is complete, or does not come about and throws
/// std::bad_alloc, where one of a plain zvString would be empty and the text lost.
class zvKeptString : public zvString {
public:
    zvKeptString() = default;
    zvKeptString(const zvString& text) : zvString(text) {
        if (size() != text.size()) {
            throw std::bad_alloc();
        }
    }
    zvKeptString(zvString&& text) noexcept : zvString(std::move(text)) {}
    zvKeptString(const zvKeptString& other) : zvKeptString(static_cast<const zvString&>(other)) {}
    zvKeptString(zvKeptString&& other) noexcept : zvString(std::move(other)) {}

    zvKeptString& operator=(zvKeptString other) noexcept {
        swap(other);
        return *this;
    }
};

#endif
