#include "zvEventArguments.h"

#include "zvDirFileUtils.h"
#include "zvLogSource.h"
#include "zvPath.h"
#include "zvPlatform.h"
#include "zvSecrets.h"
#include "zvStringTokeniser.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvEventArguments");

constexpr const char* eventNames[] = {"mirror",
                                      "publishKpdmPart",
                                      "publishLkPart",
                                      "transferLOCFromKpdm",
                                      "refreshKpdmPartLOC",
                                      "transferLocFromLk",
                                      "publishKpdmCR",
                                      "publishKpdmCRFeedback",
                                      "approveKpdmCR",
                                      "kpdmCRApproved",
                                      "kpdmCRRejected",
                                      "refreshKpdmCRApprovalStatus",
                                      "publishLkCR",
                                      "lkCRApproved",
                                      "lkCRRejected",
                                      "refreshLkCRApprovalStatus",
                                      "releaseKpdmPart",
                                      "refreshKpdmPartReleaseStatus",
                                      "lkPublishAction",
                                      "lkWeldReportIntrospection",
                                      "lkUiPromoteAction",
                                      "lkUiTransferAction",
                                      "lkUiShowActionData",
                                      "lkUiDemoteAction",
                                      "lkUiCreateAction",
                                      "lkUiPromotePart",
                                      "lkUiWeldReportGen",
                                      "lkUiConfigurePRC",
                                      "sendReplPkgToKpdm",
                                      "distributeReplPkgToLk",
                                      "sendAckToKpdm",
                                      "forwardAckToLk",
                                      "sendEnggPkgToKpdm",
                                      "sendEnggPkgToLk",
                                      "getBulkDataFromKpdm",
                                      "refreshAndImportPdmData",
                                      "partPublishFeedback",
                                      "approveCRFeedback",
                                      "syncLkDocumentFeedback",
                                      "syncLkDocument",
                                      "publishFeatures",
                                      "refreshLkPartLoc",
                                      "pushPartsToLk",
                                      "pushPartsToLkRemote",
                                      "publishLkPartToTz",
                                      "publishProductConfigurationsToLk",
                                      "mirrorEBOM",
                                      "demoteKpdmCR",
                                      "requestLkPartVersion",
                                      "partVersionFeedback",
                                      "cancelKpdmCR",
                                      "demoteKpdmPart",
                                      "demoteLKPart",
                                      "lkRejectAction",
                                      "demotePartFeedback",
                                      "applyStatusForPromote",
                                      "publishLkWorkpackage",
                                      "demoteLKWorkpackage",
                                      "exportLKWorkpackage",
                                      "publishLkWpAssembly",
                                      "broadcastTransferLOCFromKpdm",
                                      "bomExchangeMain",
                                      "bomExchangeSub",
                                      "bomExchangeFeedback",
                                      "broadcastTransferLOCFromLk",
                                      "mirrorFromLK"};

// The next candidate for a directory name: seconds as a 32-bit number that wraps around.
std::int32_t nextCandidate(std::int32_t candidate) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(candidate) + 1U);
}

// Creates the event's directory under the first free number and sets `name` and `path`. Retries when another
// process wins the race for a number under the same root, or a link that leads nowhere has the name.
zvResult createEventDirectory(const zvString& root, zvString& name, zvString& path) {
    for (auto candidate = static_cast<std::int32_t>(zvPlatform::currentTime());;
         candidate = nextCandidate(candidate)) {
        name = zvString(static_cast<long>(candidate));
        path = zvPath::join(root, name);
        if (zvDirFileUtils::isAccessible(path, zvPlatform::existence)) {
            continue;
        }
        const zvResult created = zvDirFileUtils::createDirectory(path);
        if (created.isOk() ||
            !(zvPlatform::wasNameTaken() || zvDirFileUtils::isAccessible(path, zvPlatform::existence))) {
            return created;
        }
    }
}

}  // namespace

zvEventArguments::zvEventArguments() : m_pArguments(std::make_unique<zvStringToStringMap>()) {}

zvEventArguments::zvEventArguments(zvEventNameEnum event, const zvString& user) : zvEventArguments() {
    addEventArgument("EventName", getStringForEventNameEnum(event));
    addEventArgument("EventTriggeredByUser", user);
}

zvEventArguments::zvEventArguments(const zvEventArguments& other)
    : zvCoreObject(other), m_pArguments(std::make_unique<zvStringToStringMap>(*other.m_pArguments)) {}

zvEventArguments& zvEventArguments::operator=(const zvEventArguments& other) {
    m_pArguments->copy(*other.m_pArguments);
    return *this;
}

zvEventArguments::~zvEventArguments() = default;

bool zvEventArguments::addEventArgument(const zvString& key, const zvString& value) const {
    return m_pArguments->add(key, value);
}

void zvEventArguments::setEventArgument(const zvString& key, const zvString& value) const {
    m_pArguments->setValue(key, value);
}

zvString zvEventArguments::getEventArgumentValue(const zvString& key) const {
    return m_pArguments->getValue(key);
}

zvString zvEventArguments::getEventArgumentNameAt(int index) const { return m_pArguments->getKey(index); }

zvString zvEventArguments::getEventArgumentValueAt(int index) const { return m_pArguments->getValue(index); }

int zvEventArguments::numEventArguments() const { return m_pArguments->size(); }

void zvEventArguments::destroy() { delete this; }

zvString zvEventArguments::getStringForEventNameEnum(zvEventNameEnum event) {
    const auto index = static_cast<std::size_t>(event);
    return index < std::size(eventNames) ? eventNames[index] : zvString();
}

bool zvEventArguments::splitArgument(const zvString& argument, zvString& key, zvString& value) {
    // The key unescaped so far; `from` is the start of the rest.
    zvTextBuilder unescaped;
    int from = 0;
    int separator = argument.find("=");
    while (separator > 0 && argument[separator - 1] == u'\\') {
        unescaped.append(argument.data() + from, separator - 1 - from).append(u'=');
        from = separator + 1;
        separator = argument.find("=", from);
    }
    const bool found = separator != -1;
    const int keyEnd = found ? separator : argument.size();
    unescaped.append(argument.data() + from, keyEnd - from);
    key = unescaped.toString();
    value = found ? argument.substr(separator + 1, argument.size() - separator - 1) : zvString();
    return found && !key.empty();
}

bool zvEventArguments::addKeyValueToEventArgument(zvString& arg, zvEventArguments* args) {
    if (args == nullptr || arg.find("=") < 1) {
        return false;
    }
    zvString name;
    zvString value;
    const bool found = splitArgument(arg, name, value);
    const int plainSize = name.size() + (found ? 1 + value.size() : 0);
    if (plainSize != arg.size()) {
        // Callers get the argument back unescaped.
        arg = found ? zvTextBuilder::concat(name, "=", value) : name;
    }
    if (!found) {
        return false;
    }
    if (!args->addEventArgument(name, value)) {
        logger.warn("Argument could not be added to the map with Key = \"", zvSecrets::maskedKey(name),
                    "\" and Value = ", zvSecrets::maskedValue(name, value), "\"");
        return false;
    }
    return true;
}

zvEventArguments* zvEventArguments::parseEventArguments(int argc, char** argv) {
    logger.info("zvEventArguments::parseEventArguments(int argc, char** argv)");
    std::unique_ptr<zvEventArguments> args(new zvEventArguments);
    logger.info("Command Line arguments recieved : ");
    for (int i = 1; i < argc; ++i) {
        zvString argument(argv[i]);
        logger.info("> ", [&argument] { return zvSecrets::maskedArgument(argument); });
        if (argument.empty()) {
            logger.warn("Empty Argument received");
        } else if (argument.find("=") != -1 && !addKeyValueToEventArgument(argument, args.get())) {
            logger.warn("", zvSecrets::maskedArgument(argument), " not Added to argument");
        }
    }
    return args.release();
}

zvEventArguments* zvEventArguments::parseEventArguments(const zvString& line) {
    std::unique_ptr<zvEventArguments> args(new zvEventArguments);
    zvStringTokeniser tokeniser(line, "\" \"", true);
    tokeniser.tokenise();
    const int tokens = tokeniser.getNumTokens();
    if (tokens == 0) {
        logger.error("Empty argument received");
    }
    for (int i = 0; i < tokens; ++i) {
        zvString token = tokeniser.getToken(i);
        if (i == 0 && token[0] == u'"') {
            token = token.substr(1, token.size() - 1);
        }
        if (i == tokens - 1) {
            token.trim();
            if (!token.empty() && token[token.size() - 1] == u'"') {
                token = token.substr(0, token.size() - 1);
            }
        }
        if (!addKeyValueToEventArgument(token, args.get())) {
            logger.warn("", zvSecrets::maskedArgument(token), " not added to Arguments");
        }
    }
    return args.release();
}

zvResult zvEventArguments::populateEventArguments(const zvString& rootShadowDir, zvEventArguments& args) {
    zvResult result;
    if (rootShadowDir.empty()) {
        logger.error("Empty RootShadowDir name is recieved in populateEventArguments");
        return result;
    }
    if (!zvDirFileUtils::isAccessible(rootShadowDir, zvPlatform::readAndWrite)) {
        logger.error("Error in accessing RootShadowDir : ", rootShadowDir);
        return result;
    }
    zvString name;
    zvString directory;
    result = createEventDirectory(rootShadowDir, name, directory);
    if (!result.isOk()) {
        logger.error("Error in creating EventShadowDir \"", directory, "\" in populateEventArguments");
        return result;
    }
    logger.debug("EventShadowDir successfully created: ", directory);
    args.setEventArgument("EventShadowDir", name);
    const auto createEventFile = [&](const char* key, const char* suffix) {
        const zvString fileName = name + suffix;
        args.setEventArgument(key, fileName);
        return zvDirFileUtils::createFile(zvPath::join(directory, fileName));
    };
    createEventFile("DataFileName", "_data.xml");
    return createEventFile("AttachmentsFileName", "_attachments.xml");
}

zvResult zvEventArguments::populateEventArguments(const zvEventArguments& in, zvEventArguments& out) {
    zvResult result;
    const zvString root = in.getEventArgumentValue("RootShadowDir");
    const zvString event = in.getEventArgumentValue("EventShadowDir");
    const auto refuse = [&](const char* reason, int line = __builtin_LINE()) {
        logger.error({reason, line}, "Please check the input values. RootShadowDir:", root,
                     " EventShadowDir: ", event);
        return result;
    };
    if (root.empty() || event.empty() || event.size() <= root.size()) {
        return refuse(
            "The EventShadowDir information cannot be extracted from the given input.                 ");
    }
    if (event.find(root) != 0) {
        return refuse("The EventShadowDir doesn't contain the RootShadowDir path.                     ");
    }
    const zvString rest = event.substr(root.size() + 1, event.size() - root.size() - 1);
    if (rest.empty()) {
        return refuse("The EventShadowDir info cannot be extracted from given inout.                     ");
    }
    out.setEventArgument("EventShadowDir", rest);
    result.setOk();
    return result;
}
