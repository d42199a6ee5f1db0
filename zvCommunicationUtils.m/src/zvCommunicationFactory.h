#ifndef ZV_COMMUNICATION_FACTORY_H
#define ZV_COMMUNICATION_FACTORY_H

#include "zvCommunicationUtils.h"

enum zvCommProtocoalEnum { zvCommProtocoalNone = 0, zvCommProtocoalHTTP = 1 };

/// Creates the communication utility for a protocol.
class ZV_EXPORT zvCommunicationFactory {
public:
    zvCommunicationFactory();
    zvCommunicationFactory(const zvCommunicationFactory& other);
    zvCommunicationFactory& operator=(const zvCommunicationFactory& other);
    virtual ~zvCommunicationFactory();

    /// A utility that posts the arguments as a form over HTTP or HTTPS, with TLS certificate verification;
    /// null, which is logged, for any other protocol. The caller owns it.
    ///
    /// These keys of "config/client-config.ini" under the gateway home are read by the first request:
    /// - "http-connect-timeout" and "http-stall-timeout": whole seconds, 1 to 86400. The defaults are 30 for
    ///   connecting and about 60 for a stalled transfer
    /// - "http-ca-file": trusted certificates, in PEM. Without it the variables CURL_CA_BUNDLE, SSL_CERT_FILE
    /// and
    ///   SSL_CERT_DIR apply; the latter two where libcurl uses OpenSSL
    /// - "http-client-certificate" and "http-client-key": in PEM, the certificate also as a ".p12" or ".pfx"
    ///   file; "http-client-key-password-env" names the environment variable with the key's password
    ///
    /// Proxies are those of libcurl's variables, such as https_proxy and no_proxy.
    static zvCommunicationUtils* createCommunicationUtils(zvCommProtocoalEnum protocol);
};

#endif
