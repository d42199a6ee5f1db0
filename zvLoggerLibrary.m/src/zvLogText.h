#ifndef ZV_LOG_TEXT_H
#define ZV_LOG_TEXT_H

#include <log4cxx/logstring.h>

#include <string_view>

/// Texts as they may stand in a log: whoever wrote a part of a message can neither make a line that passes
/// for one of the log nor have a terminal do something.
namespace zvLogText {

/// Decodes the text from the locale's encoding. Control characters but tabs, ends of lines and what turns the
/// direction of writing become escapes such as "\n", "\x1b" and "\u202e".
log4cxx::LogString onOneLine(std::string_view text);

/// The same, but line feeds stay, and each line after the first one is indented.
log4cxx::LogString onIndentedLines(std::string_view text);

}  // namespace zvLogText

#endif
