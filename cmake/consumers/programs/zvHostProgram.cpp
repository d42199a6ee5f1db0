#include "zvCheck.h"
#include "zvCommonUtils.h"
#include "zvDebugLogger.h"
#include "zvDirFileUtils.h"
#include "zvLogger.h"
#include "zvProperties.h"

namespace {

class DerivedProperties : public zvProperties {
public:
    bool add(const zvString& line) { return addPropertyToMap(line); }
};

void logging() {
    zvLogger* const logger = zvLogger::getInstance();
    logger->logDebug("text", __FILE__, __LINE__);
    logger->logInfo(5, nullptr, 0);
    logger->logWarn('x', "f.cpp", 1);
    logger->logError(u"text", "f.cpp", 1);
    logger->logFatal(true, "f.cpp", 1);
    logger->logAlways(zvString("text") + 5, "f.cpp", 1);
    zvLogger::destroyInstance();
    zvDebugLogger* const debug = zvDebugLogger::getInstance("name");
    ZV_CHECK(zvDebugLogger::getInstance("name") == debug && zvDebugLogger::getInstance(5) != debug);
    debug->logMsg(2.5, "f.cpp", 1);
    zvDebugLogger::destroyInstance("name");
}

void files(const zvString& folder) {
    zvString path = folder;
    zvDirFileUtils::appendPathDelimiter(path);
    path += "made";
    ZV_CHECK(zvDirFileUtils::createDirectory(path) == 0 && zvDirFileUtils::createDirectory(path) != 0);
    const zvString file = path + "\\a.txt";
    zvStringList lines;
    ZV_CHECK(zvDirFileUtils::createFile(file).isOk() && zvDirFileUtils::isAccessible(file, 0));
    ZV_CHECK(zvDirFileUtils::readFile(file, lines).isOk() && zvDirFileUtils::deleteFile(file));
    ZV_CHECK(zvDirFileUtils::extractDirName(file) == path &&
             zvDirFileUtils::extractFileName(file) == "a.txt");
    ZV_CHECK(zvDirFileUtils::deleteDir(' ' + path) && !zvDirFileUtils::isAccessible(path, 0));
    const zvDirFileUtils helpers, copy(helpers);
    use(copy);
}

void properties() {
    DerivedProperties added;
    zvStringList names;
    ZV_CHECK(added.add("a=1") && !added.add('b') && added.getPropertyValue("a") == 1);
    ZV_CHECK(added.getAllPropertyNames(names) && names.numStrings() == 1);
    zvProperties file;
    ZV_CHECK(!file.parse("").isOk() && file.parse("nowhere").getResult() == -1);
}

void environment() {
    const zvCommonUtils helpers;
    ZV_CHECK(zvCommonUtils::setGatewayHomeEnvVariable("ZV_NO_SUCH_HOME"));
    ZV_CHECK(zvCommonUtils::getGatewayHomeEnvVariable() == "ZV_NO_SUCH_HOME");
    ZV_CHECK(zvCommonUtils::getGatewayHomePath().empty() && zvCommonUtils::getLocalServerUrl().empty());
    ZV_CHECK(zvCommonUtils::getEnvironmentalVariable("ZV_NO_SUCH_HOME").empty());
    ZV_CHECK(zvCommonUtils::getFunctionPtr(nullptr, "f") == nullptr &&
             !zvCommonUtils::getCurrentTime().empty());
    zvCommonUtils::sleep(0);
    ZV_CHECK(zvCommonUtils::validBooleanValue(true) && !zvCommonUtils::validBooleanValue(1));
    use(helpers);
}

}  // namespace

int main() {
    environment();
    logging();
    files(".");
    properties();
    return failures;
}
