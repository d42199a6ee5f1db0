#ifndef ZV_DATA_TYPE_WORDS_H
#define ZV_DATA_TYPE_WORDS_H

#include <string_view>

#include "zvValue.h"

/// The words by which files and people name the data types.
namespace zvDataTypeWords {

/// In the order of zvDataTypeEnum.
constexpr std::u16string_view words[] = {u"None", u"Integer", u"Float", u"String", u"Date", u"Boolean"};

constexpr std::u16string_view wordOf(zvDataTypeEnum type) { return words[type]; }

/// None for a text that names no type; the word "None" names none.
constexpr zvDataTypeEnum typeOf(std::u16string_view text) {
    for (int type = zvDataTypeInteger; type <= zvDataTypeBoolean; ++type) {
        if (words[type] == text) {
            return static_cast<zvDataTypeEnum>(type);
        }
    }
    return zvDataTypeNone;
}

}  // namespace zvDataTypeWords

#endif
