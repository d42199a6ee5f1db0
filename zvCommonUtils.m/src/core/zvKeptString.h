#ifndef ZV_KEPT_STRING_H
#define ZV_KEPT_STRING_H

#include <new>
#include <utility>

#include "zvString.h"

/// A string stored in a collection or a value. Copying throws std::bad_alloc when out of memory, where a copy
/// of a plain zvString would silently be empty.
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

    /// Strong guarantee: a text that fits is copied into the buffer, another one into a new string first.
    zvKeptString& operator=(const zvString& other) {
        if (hasRoomFor(other.size())) {
            zvString::operator=(other);
        } else {
            zvKeptString copy(other);
            swap(copy);
        }
        return *this;
    }
    zvKeptString& operator=(const zvKeptString& other) { return *this = static_cast<const zvString&>(other); }
    zvKeptString& operator=(zvString&& other) noexcept {
        swap(other);
        return *this;
    }
    zvKeptString& operator=(zvKeptString&& other) noexcept {
        swap(other);
        return *this;
    }
};

#endif
