#ifndef ZV_HTTP_SERVER_CHECK_H
#define ZV_HTTP_SERVER_CHECK_H

#include "zvCheckReport.h"

/// Connects to the local server, with a TLS session if it is one for https, and sends nothing.
namespace zvHttpServerCheck {

constexpr char name[] = "HTTP server";

void run(const zvString& url, zvCheckReport& report);

}  // namespace zvHttpServerCheck

#endif
