#include "zvProperties.h"

#include <algorithm>
#include <utility>

#include "zvDirFileUtils.h"
#include "zvLogSource.h"
#include "zvSecrets.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvProperties");

constexpr wchar16 commentMark = u'#';

}  // namespace

zvProperties::zvProperties() : m_pProperties(std::make_unique<zvStringToStringMap>()) {}

zvProperties::zvProperties(const zvProperties& other)
    : zvCoreObject(other), m_pProperties(std::make_unique<zvStringToStringMap>(*other.m_pProperties)) {}

zvProperties& zvProperties::operator=(const zvProperties& other) {
    m_pProperties->copy(*other.m_pProperties);
    return *this;
}

zvProperties::~zvProperties() = default;

zvResult zvProperties::parse(const zvString& path) {
    m_pProperties->clear();
    if (path.empty()) {
        logger.error("Empty Property file path");
        return {};
    }
    zvStringList lines;
    const zvResult read = zvDirFileUtils::readFile(path, lines);
    if (read != zvResult(0)) {
        return read;
    }
    if (lines.empty()) {
        logger.warn("No property defined in the file.");
        return {0};
    }
    bool good = true;
    for (int i = 0; good && i < lines.numStrings(); ++i) {
        good = addPropertyToMap(*lines.findString(i));
    }
    if (!good || m_pProperties->size() == 0) {
        logger.error("Error occured in parsing properties file: \"", path, "\"");
    }
    return {0};
}

zvString zvProperties::getPropertyValue(const zvString& name) const {
    return name.empty() ? zvString() : m_pProperties->getValue(name);
}

bool zvProperties::getAllPropertyNames(zvStringList& names) const {
    m_pProperties->forEach([&names](const zvString& name, const zvString&) { names.addString(name); });
    return m_pProperties->size() > 0;
}

bool zvProperties::addPropertyToMap(const zvString& line) {
    if (line.empty() || line[0] == commentMark) {
        return true;
    }
    logger.info("Processing string :", [&line] { return zvSecrets::maskedUrl(line); });
    const wchar16* const end = line.data() + line.size();
    const auto separator = static_cast<int>(std::find(line.data(), end, wchar16{u'='}) - line.data());
    if (separator < 1 || separator == line.size()) {
        logger.error("Line : \"", zvSecrets::maskedUrl(line), "\" doesn't have key-value separator char.");
        return false;
    }
    zvString name = line.substr(0, separator);
    zvString value = line.substr(separator + 1, line.size() - separator - 1);
    if (value.empty()) {
        logger.error("Property cannot be added to map");
        return false;
    }
    return m_pProperties->add(std::move(name), std::move(value));
}
