#ifndef ZV_LOG_TEXT_H
#define ZV_LOG_TEXT_H

#include <log4cxx/logstring.h>

#include <string_view>

/// Texts as they may stand in a log: whoever wrote a part of a message can neither make a line that passes
/// for one of the log nor have a terminal do something.
namespace zvLogText {

/// Decodes a program's text: from the locale's encoding, and where no locale has UTF-8, from UTF-8 if it is
/// that, since a program may have adopted it.
log4cxx::LogString decoded(std::string_view text);

/// Decodes the text. Control characters but tabs, ends of lines and what turns the direction of writing
/// become escapes such as "\n", "\x1b" and "\u202e".
log4cxx::LogString onOneLine(std::string_view text);

/// The same, but line feeds stay, and each line after the first one is indented.
log4cxx::LogString onIndentedLines(std::string_view text);

/// Writes a line about the log itself to standard error, where a person reads it as it was meant.
void complain(const log4cxx::LogString& line);

}  // namespace zvLogText

#endif
