#ifndef ZV_TRANSFER_STEP_H
#define ZV_TRANSFER_STEP_H

#include <optional>
#include <vector>

#include "zvGatewayEvent.h"
#include "zvProcess.h"
#include "zvResult.h"
#include "zvTransferObserver.h"
#include "zvTransferProgress.h"

/// The step that sends the event's files to the file server, if the gateway home's folder "config" has a file
/// "fileserver.properties". What arrived in an earlier run is not sent again.
class zvTransferStep : private zvTransferObserver {
public:
    explicit zvTransferStep(zvGatewayEvent& event) : m_event(event) {}

    /// Adds the files to the report. Throws a zvStepFailure.
    zvStepOutcome run();

private:
    std::vector<zvString> files() const;
    bool isDone() const;
    zvStepOutcome showFiles();
    bool isRemoteDirectoryInUse() const;
    void makeDirectory();
    zvStepOutcome send(const zvString& configuration);
    static void require(const zvResult& result);

    bool hasArrived(const zvString& local) override;
    void fileBegins(const zvString& local) override;
    void fileTransferred(const zvString& local, zvInt64 bytes, zvInt64 milliseconds) override;
    void notice(const zvString& text) override;
    bool isCancelled() override;
    void progress(const zvString& local, zvInt64 bytes, zvInt64 total) override;

    zvGatewayEvent& m_event;
    // Keeps the program's handlers of signals while the Java machine starts.
    std::optional<zvProcess::SignalsUntouched> m_signals;
    zvTransferProgress m_progress;
    zvInt64 m_sentBytes = 0;
    int m_sentFiles = 0;
};

#endif
