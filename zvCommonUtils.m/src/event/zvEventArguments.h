#ifndef ZV_EVENT_ARGUMENTS_H
#define ZV_EVENT_ARGUMENTS_H

#include <memory>

#include "zvCoreObject.h"
#include "zvResult.h"
#include "zvString.h"
#include "zvStringToStringMap.h"

/// The events; getStringForEventNameEnum() returns the names that receiving programs match.
enum zvEventNameEnum : int {
    zvEventMirror = 0,
    zvEventPublishKpdmPart = 1,
    zvEventPublishLkPart = 2,
    zvEventTransferLOCFromKpdm = 3,
    zvEventRefreshKpdmPartLOC = 4,
    zvEventTransferLocFromLk = 5,
    zvEventPublishKpdmCR = 6,
    zvEventPublishKpdmCRFeedback = 7,
    zvEventApproveKpdmCR = 8,
    zvEventKpdmCRApproved = 9,
    zvEventKpdmCRRejected = 10,
    zvEventRefreshKpdmCRApprovalStatus = 11,
    zvEventPublishLkCR = 12,
    zvEventLkCRApproved = 13,
    zvEventLkCRRejected = 14,
    zvEventRefreshLkCRApprovalStatus = 15,
    zvEventReleaseKpdmPart = 16,
    zvEventRefreshKpdmPartReleaseStatus = 17,
    zvEventLkPublishAction = 18,
    zvEventLkWeldReportIntrospection = 19,
    zvEventLkUiPromoteAction = 20,
    zvEventLkUiTransferAction = 21,
    zvEventLkUiShowActionData = 22,
    zvEventLkUiDemoteAction = 23,
    zvEventLkUiCreateAction = 24,
    zvEventLkUiPromotePart = 25,
    zvEventLkUiWeldReportGen = 26,
    zvEventLkUiConfigurePRC = 27,
    zvEventSendReplPkgToKpdm = 28,
    zvEventDistributeReplPkgToLk = 29,
    zvEventSendAckToKpdm = 30,
    zvEventForwardAckToLk = 31,
    zvEventSendEnggPkgToKpdm = 32,
    zvEventSendEnggPkgToLk = 33,
    zvEventGetBulkDataFromKpdm = 34,
    zvEventRefreshAndImportPdmData = 35,
    zvEventPartPublishFeedback = 36,
    zvEventApproveCRFeedback = 37,
    zvEventSyncLkDocumentFeedback = 38,
    zvEventSyncLkDocument = 39,
    zvEventPublishFeatures = 40,
    zvEventRefreshLkPartLoc = 41,
    zvEventPushPartsToLk = 42,
    zvEventPushPartsToLkRemote = 43,
    zvEventPublishLkPartToTz = 44,
    zvEventPublishProductConfigurationsToLk = 45,
    zvEventMirrorEBOM = 46,
    zvEventDemoteKpdmCR = 47,
    zvEventRequestLkPartVersion = 48,
    zvEventPartVersionFeedback = 49,
    zvEventCancelKpdmCR = 50,
    zvEventDemoteKpdmPart = 51,
    zvEventDemoteLKPart = 52,
    zvEventLkRejectAction = 53,
    zvEventDemotePartFeedback = 54,
    zvEventApplyStatusForPromote = 55,
    zvEventPublishLkWorkpackage = 56,
    zvEventDemoteLKWorkpackage = 57,
    zvEventExportLKWorkpackage = 58,
    zvEventPublishLkWpAssembly = 59,
    zvEventBroadcastTransferLOCFromKpdm = 60,
    zvEventBomExchangeMain = 61,
    zvEventBomExchangeSub = 62,
    zvEventBomExchangeFeedback = 63,
    zvEventBroadcastTransferLOCFromLk = 64,
    zvEventMirrorFromLK = 65
};

/// The arguments of one event: key-value pairs, ordered by key.
///
/// Copies are deep. The values of "LoginPassword" and "KPDMPasswd" are never logged.
class ZV_EXPORT zvEventArguments : public zvCoreObject {
public:
    /// Sets the arguments "EventName" and "EventTriggeredByUser".
    zvEventArguments(zvEventNameEnum event, const zvString& user);
    zvEventArguments(const zvEventArguments& other);
    zvEventArguments& operator=(const zvEventArguments& other);
    ~zvEventArguments() override;

    /// False, with nothing changed, if the key exists already.
    bool addEventArgument(const zvString& key, const zvString& value) const;
    /// Adds or replaces.
    void setEventArgument(const zvString& key, const zvString& value) const;
    /// The value of `key`; empty also for a missing key.
    zvString getEventArgumentValue(const zvString& key) const;
    /// @name Argument `index` in key order
    /// Its key and its value; empty if `index` is out of range.
    /// @{
    zvString getEventArgumentNameAt(int index) const;
    zvString getEventArgumentValueAt(int index) const;
    /// @}

    int numEventArguments() const;
    /// Calls `visit(key, value)` for every argument in key order, in linear time.
    template <typename Visit>
    void forEach(Visit visit) const {
        m_pArguments->forEach(visit);
    }
    /// Deletes this object, which a parse operation created.
    void destroy();

    /// The event's name; empty for a value outside the enumeration.
    static zvString getStringForEventNameEnum(zvEventNameEnum event);

    /// Splits a `key=value` argument at its first unescaped "=", as the parse operations do: `\=` is a "=" in
    /// the key, and comes out unescaped. False without such a "=" or without a key.
    static bool splitArgument(const zvString& argument, zvString& key, zvString& value);
    /// Parses the arguments of main(), without the program's name. `key=value` is split at the first
    /// unescaped "="; `\=` escapes a "=" in the key. Arguments without "=" are skipped; empty and duplicate
    /// keys are refused with a warning.
    /// @return a new object, owned by the caller and released with destroy().
    static zvEventArguments* parseEventArguments(int argc, char** argv);
    /// Parses the arguments from one line of the form `"A=1" "B=2" "C=3"`.
    static zvEventArguments* parseEventArguments(const zvString& line);

    /// Creates a new directory for the event in `rootShadowDir`, named by the current time in seconds or the
    /// next free number, creates an empty data file and an empty attachments file in it, and sets
    /// "EventShadowDir" (relative to the root), "DataFileName" and "AttachmentsFileName".
    /// @return a failure if the directory cannot be created. Otherwise the result of
    /// zvDirFileUtils::createFile() for the last file: 0 even if the system refused to create it. The message
    /// is the system's reason.
    static zvResult populateEventArguments(const zvString& rootShadowDir, zvEventArguments& args);
    /// Sets "EventShadowDir" of `out` to that of `in` without the prefix "RootShadowDir" of `in` and the
    /// separator; fails without that prefix.
    static zvResult populateEventArguments(const zvEventArguments& in, zvEventArguments& out);

private:
    zvEventArguments();

    static bool addKeyValueToEventArgument(zvString& arg, zvEventArguments* args);

    std::unique_ptr<zvStringToStringMap> m_pArguments;
};

#endif
