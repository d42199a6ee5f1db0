#ifndef ZV_CURL_FAILURE_H
#define ZV_CURL_FAILURE_H

#include <curl/curl.h>

#include <string_view>

#include "zvRequestOutcome.h"

/// Classifies what libcurl says of a transfer.
namespace zvCurlFailure {

/// Whether libcurl uses OpenSSL or one of its relatives.
bool usesOpenSsl();

/// `errorText` is what libcurl wrote to its error buffer.
zvRequestOutcome::Failure kindOf(CURLcode code, std::string_view errorText);
/// The failed check of a failure of the kind `tls`; `verifyResult` is CURLINFO_SSL_VERIFYRESULT.
zvRequestOutcome::TlsFailure tlsKindOf(CURLcode code, long verifyResult, std::string_view errorText);

}  // namespace zvCurlFailure

#endif
