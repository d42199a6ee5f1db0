#include "zvCurlFailure.h"

namespace {

using Failure = zvRequestOutcome::Failure;
using TlsFailure = zvRequestOutcome::TlsFailure;

constexpr struct {
    CURLcode code;
    Failure failure;
} failures[] = {
    {CURLE_OK, Failure::none},
    {CURLE_UNSUPPORTED_PROTOCOL, Failure::settings},
    {CURLE_URL_MALFORMAT, Failure::settings},
    {CURLE_SSL_CACERT_BADFILE, Failure::settings},
    {CURLE_SSL_CERTPROBLEM, Failure::settings},
    {CURLE_COULDNT_RESOLVE_PROXY, Failure::resolve},
    {CURLE_COULDNT_RESOLVE_HOST, Failure::resolve},
    {CURLE_COULDNT_CONNECT, Failure::connect},
    {CURLE_OPERATION_TIMEDOUT, Failure::timeout},
    {CURLE_SSL_CONNECT_ERROR, Failure::tls},
    {CURLE_PEER_FAILED_VERIFICATION, Failure::tls},
    {CURLE_SSL_ISSUER_ERROR, Failure::tls},
    {CURLE_SSL_INVALIDCERTSTATUS, Failure::tls},
    {CURLE_GOT_NOTHING, Failure::connection},
    {CURLE_SEND_ERROR, Failure::connection},
    {CURLE_RECV_ERROR, Failure::connection},
    {CURLE_PARTIAL_FILE, Failure::connection},
    {CURLE_HTTP2, Failure::connection},
    {CURLE_HTTP2_STREAM, Failure::connection},
};

// OpenSSL's numbers of failed checks, X509_V_ERR_...
constexpr struct {
    long verifyResult;
    TlsFailure failure;
} checks[] = {
    {2, TlsFailure::unknownIssuer},   // the issuer's certificate is missing
    {9, TlsFailure::notYetValid},     //
    {10, TlsFailure::expired},        //
    {18, TlsFailure::unknownIssuer},  // a self-signed certificate
    {19, TlsFailure::unknownIssuer},  // a self-signed certificate at the end of the chain
    {20, TlsFailure::unknownIssuer},  // the issuer's certificate is missing locally
    {21, TlsFailure::unknownIssuer},  // a chain of one certificate
    {27, TlsFailure::unknownIssuer},  // a root that is not trusted for this use
    {62, TlsFailure::wrongHost},      // another name
    {64, TlsFailure::wrongHost},      // another IP address
};

// With TLS 1.3 the server refuses a client after the handshake is complete on this side.
bool isAlert(std::string_view errorText) {
    return errorText.find("SSL routines") != std::string_view::npos &&
           errorText.find(" alert ") != std::string_view::npos;
}

}  // namespace

bool zvCurlFailure::usesOpenSsl() {
    const char* const version = curl_version_info(CURLVERSION_NOW)->ssl_version;
    const std::string_view backend = version == nullptr ? "" : version;
    for (const char* const name : {"OpenSSL/", "LibreSSL/", "BoringSSL", "quictls/", "AWS-LC/"}) {
        if (backend.rfind(name, 0) == 0) {
            return true;
        }
    }
    return false;
}

Failure zvCurlFailure::kindOf(CURLcode code, std::string_view errorText) {
    for (const auto& row : failures) {
        if (row.code == code) {
            return row.failure == Failure::connection && isAlert(errorText) ? Failure::tls : row.failure;
        }
    }
    return Failure::other;
}

TlsFailure zvCurlFailure::tlsKindOf(CURLcode code, long verifyResult, std::string_view errorText) {
    if (!usesOpenSsl()) {
        return TlsFailure::other;
    }
    if (isAlert(errorText)) {
        return TlsFailure::refused;
    }
    if (code != CURLE_PEER_FAILED_VERIFICATION) {
        return TlsFailure::other;
    }
    for (const auto& check : checks) {
        if (check.verifyResult == verifyResult) {
            return check.failure;
        }
    }
    // libcurl compares the host itself once OpenSSL has accepted the rest: its result is then 0, or still the
    // initial 1.
    return verifyResult == 0 || verifyResult == 1 ? TlsFailure::wrongHost : TlsFailure::other;
}
