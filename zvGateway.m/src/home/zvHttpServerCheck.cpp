#include "zvHttpServerCheck.h"

#include <memory>
#include <string>

#include "zvCommunicationFactory.h"
#include "zvConsole.h"
#include "zvHomeCheckKind.h"
#include "zvPostReason.h"

namespace {

// Without an account: it may hold a password.
std::string shown(const zvString& url) {
    std::string text = zvConsole::printable(url);
    const std::size_t begin = text.find("//") + 2;
    const std::size_t end = text.find_first_of("/?#", begin);
    const std::size_t account = text.substr(0, end).rfind('@');
    return account == std::string::npos ? text : text.replace(begin, account - begin, "********");
}

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
