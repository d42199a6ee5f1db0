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
    /// The time-outs are 30 seconds for connecting and about 60 seconds for a stalled transfer. The keys
    /// "http-connect-timeout" and "http-stall-timeout" (whole seconds, 1 to 86400) in
    /// "config/client-config.ini" under the gateway home change them; they are read when the utility is
    /// created.
    static zvCommunicationUtils* createCommunicationUtils(zvCommProtocoalEnum protocol);
};

#endif
