#ifndef ZV_COMMUNICATION_FACTORY_H
#define ZV_COMMUNICATION_FACTORY_H

#include "zvCommunicationUtils.h"

enum zvCommProtocoalEnum { zvCommProtocoalNone = 0, zvCommProtocoalHTTP = 1 };

/// Makes the communication utility for a protocol.
class ZV_EXPORT zvCommunicationFactory {
public:
    zvCommunicationFactory();
    zvCommunicationFactory(const zvCommunicationFactory& other);
    zvCommunicationFactory& operator=(const zvCommunicationFactory& other);
    virtual ~zvCommunicationFactory();

    /// A utility that posts the arguments as a form over HTTP or HTTPS, certificates verified; null, which is
    /// logged, for any other protocol. The caller owns it and deletes it.
    ///
    /// It gives up when no connection stands after 30 seconds and when no byte moved for 60, a few seconds
    /// more or less. The keys "http-connect-timeout" and "http-stall-timeout" (whole seconds, 1 to 86400) of
    /// the file "client-config.ini" in the gateway home's folder "config" change these times; they are read
    /// when the utility is made.
    static zvCommunicationUtils* createCommunicationUtils(zvCommProtocoalEnum protocol);
};

#endif
