#ifndef ZV_GATEWAY_EVENT_H
#define ZV_GATEWAY_EVENT_H

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "zvAttachmentList.h"
#include "zvEventArguments.h"
#include "zvEventDeadline.h"
#include "zvEventRecord.h"
#include "zvLogContext.h"
#include "zvRoadReport.h"
#include "zvRoadSession.h"

/// An event on its road: what its steps share.
struct zvGatewayEvent {
    struct Destroy {
        void operator()(zvEventArguments* arguments) const { arguments->destroy(); }
    };

    explicit zvGatewayEvent(zvRoadSession& shared) : session(shared) {}

    zvRoadSession& session;
    /// The identity that it gets unless its record has one.
    zvString eventId;
    zvLogContext logContext;
    /// As given, `key=value` each.
    std::vector<std::string> commandLine;
    /// The names of the session's secrets that become arguments of the event; null for all but the file
    /// server's.
    const std::set<zvString>* secretNames = nullptr;
    /// There from the first step on.
    std::unique_ptr<zvEventArguments, Destroy> arguments;
    /// There once the event has a directory.
    std::unique_ptr<zvEventRecord> record;
    bool wasPostedBefore = false;
    zvAttachmentList attachments;
    zvRoadReport report;
    zvEventDeadline deadline;

    zvString argument(const char* key) const { return arguments->getEventArgumentValue(key); }
    /// The path of the event's directory.
    zvString directory() const { return argument("RootShadowDir") + "\\" + argument("EventShadowDir"); }
    /// The path of the file in the event's directory whose name is the argument `key`.
    zvString file(const char* key) const { return directory() + "\\" + argument(key); }
    zvString dataFile() const { return file("DataFileName"); }
    zvString attachmentsFile() const { return file("AttachmentsFileName"); }
};

#endif
