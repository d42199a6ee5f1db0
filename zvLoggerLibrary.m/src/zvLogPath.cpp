#include "zvLogPath.h"

#include <log4cxx/helpers/transcoder.h>

using log4cxx::LogString;
using log4cxx::helpers::Transcoder;

std::filesystem::path zvLogPath::of(const LogString& name) {
    std::filesystem::path::string_type path;
    Transcoder::encode(name, path);
    return path;
}

LogString zvLogPath::textOf(const std::filesystem::path& path) {
    LogString text;
    Transcoder::decode(path.native(), text);
    return text;
}
