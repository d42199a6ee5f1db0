#include "zvPostReason.h"

#include <algorithm>
#include <iterator>

#include "zvConsole.h"

namespace {

using Failure = zvRequestOutcome::Failure;
using TlsFailure = zvRequestOutcome::TlsFailure;

constexpr int firstFailure = 300;
constexpr int redirects[] = {301, 302, 303, 307, 308};

constexpr struct {
    TlsFailure failure;
    const char* text;
} tlsTexts[] = {
    {TlsFailure::unknownIssuer,
     "nobody who is trusted has signed the server's certificate (unknown CA): name a PEM file with the CA's "
     "certificate as \"http-ca-file\" in client-config.ini"},
    {TlsFailure::expired, "the server's certificate, or its CA's, has expired: it has to be renewed"},
    {TlsFailure::notYetValid, "the server's certificate is not valid yet: look at the clocks of both hosts"},
    {TlsFailure::wrongHost,
     "the server's certificate is for another host (wrong host): \"local-server-url\" has to name the host "
     "as "
     "the certificate does"},
    {TlsFailure::refused,
     "the server refuses this client: it may want a certificate, \"http-client-certificate\" and "
     "\"http-client-key\" in client-config.ini"},
    {TlsFailure::other,
     "there is no TLS session: is the server one for https, and its CA in the file that \"http-ca-file\" in "
     "client-config.ini names?"},
};

std::string tlsText(TlsFailure failure) {
    for (const auto& row : tlsTexts) {
        if (row.failure == failure) {
            return row.text;
        }
    }
    return {};
}

}  // namespace

std::string zvPostReason::text(const zvRequestOutcome& outcome) const {
    const std::string status = "HTTP status " + std::to_string(outcome.status);
    const std::string error = zvConsole::printable(outcome.errorText);
    const bool isRedirect = std::count(std::begin(redirects), std::end(redirects), outcome.status) > 0;
    if (isRedirect && !target.empty()) {
        return target == url
                   ? status + ": a redirect to the same address, which has no end"
                   : status + ": a redirect to " + target +
                         ", which is not followed: set \"local-server-url\" in client-config.ini to it";
    }
    if (outcome.status >= firstFailure || outcome.failure == Failure::none) {
        return words.empty() ? status : status + ": " + words;
    }
    switch (outcome.failure) {
        case Failure::settings:
            return message;
        case Failure::tls:
            return tlsText(outcome.tlsFailure) + " (" + error + ")";
        default:
            return outcome.status == 0 ? error : status + ", but not the whole answer: " + error;
    }
}
