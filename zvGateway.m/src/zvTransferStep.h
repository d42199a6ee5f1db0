#ifndef ZV_TRANSFER_STEP_H
#define ZV_TRANSFER_STEP_H

#include "zvResult.h"
#include "zvRoadEvent.h"
#include "zvRoadReport.h"
#include "zvTransferObserver.h"

/// The step that sends the event's files to the file server, if the gateway home's folder "config" has a file
/// "fileserver.properties". What arrived in an earlier run is not sent again.
class zvTransferStep : private zvTransferObserver {
public:
    /// The files are added to the report.
    zvTransferStep(zvRoadEvent& event, zvRoadReport& report) : m_event(event), m_report(report) {}

    /// Throws a zvStepFailure.
    zvStepOutcome run();

private:
    zvStepOutcome showFiles();
    zvStepOutcome send(const zvString& configuration);
    static void require(const zvResult& result);

    bool hasArrived(const zvString& local) override;
    void fileBegins(const zvString& local) override;
    void fileTransferred(const zvString& local, zvInt64 bytes, zvInt64 milliseconds) override;

    zvRoadEvent& m_event;
    zvRoadReport& m_report;
    zvInt64 m_sentBytes = 0;
    int m_sentFiles = 0;
};

#endif
