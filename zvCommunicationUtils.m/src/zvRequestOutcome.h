#ifndef ZV_REQUEST_OUTCOME_H
#define ZV_REQUEST_OUTCOME_H

#include "zvString.h"
#include "zvTypes.h"

/// What is known of a request besides whether it succeeded: of its response, or why there is none.
struct zvRequestOutcome {
    /// Why the response is missing or incomplete.
    enum class Failure {
        none,        ///< the response is complete, whatever its status; or nothing was requested yet
        settings,    ///< the URL or protocol, or a file named in the client configuration, cannot be used
        resolve,     ///< the name of the host or of the proxy cannot be resolved
        connect,     ///< the host does not accept the connection
        timeout,     ///< connecting or the whole request took too long, or the transfer stalled
        tls,         ///< no TLS session: see tlsFailure
        connection,  ///< the connection broke; the server may have received the request
        other,
        answerLimit  ///< the answer is longer than "http-answer-limit" of the client configuration
    };
    /// The check of TLS that failed. Told apart where libcurl uses OpenSSL; elsewhere, `other`.
    enum class TlsFailure {
        none,
        unknownIssuer,  ///< the certificate is signed by nobody who is trusted
        expired,
        notYetValid,
        wrongHost,  ///< the certificate is for another host
        refused,    ///< the server ended the handshake, as when it wants a client certificate
        other
    };

    /// The status of the response, also of an incomplete one; 0 if there was none.
    int status = 0;
    /// The target of a redirect as an absolute URL; empty without one.
    zvString location;
    /// What the header "Retry-After" asks for, a date counted from now; 0 without it.
    zvInt64 retryAfterSeconds = 0;
    Failure failure = Failure::none;
    TlsFailure tlsFailure = TlsFailure::none;
    /// libcurl's description of the failure, with host, port and file names; empty if there was none.
    zvString errorText;
};

#endif
