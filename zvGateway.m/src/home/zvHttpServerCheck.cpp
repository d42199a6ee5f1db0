#include "zvHttpServerCheck.h"

#include <memory>
#include <string>

#include "zvCommunicationFactory.h"
#include "zvConsole.h"
#include "zvHomeCheckKind.h"
#include "zvPostReason.h"
#include "zvSecrets.h"

namespace {

std::string shown(const zvString& url) { return zvConsole::printable(zvSecrets::maskedUrl(url)); }

}  // namespace

void zvHttpServerCheck::run(const zvString& url, zvCheckReport& report) {
    const std::unique_ptr<zvCommunicationUtils> server(
        zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalHTTP));
    const zvResult connected = server->connect(url);
    if (connected.isOk()) {
        report.addGood(zvCheckPlace(name), zvString("it connects: ") + shown(url).c_str());
        return;
    }
    const zvPostReason reason{shown(url), "", "", zvConsole::printable(connected.getMessage())};
    report.addError(zvCheckPlace(name), zvHomeCheckKind::httpServer,
                    (shown(url) + ": " + reason.text(server->lastOutcome())).c_str(), zvExitCode::post);
}
