#ifndef ZV_COMMUNICATION_TEST_SUPPORT_H
#define ZV_COMMUNICATION_TEST_SUPPORT_H

#include <memory>
#include <string>

#include "zvCommunicationFactory.h"
#include "zvPlatform.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

/// Has an event's arguments, and requests without a proxy.
class zvCommunicationUtilsTest : public zvLoggedTest {
protected:
    zvCommunicationUtilsTest() : m_args(zvEventMirror, "anna") {
        zvPlatform::setEnvironment("no_proxy", "*");
    }

    static std::unique_ptr<zvCommunicationUtils> create() {
        return std::unique_ptr<zvCommunicationUtils>(
            zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalHTTP));
    }

    /// Result code, message and additional information of a request by a utility of its own.
    std::string request(const zvString& url, WriteMemoryCallbackWrapper* sink = nullptr) const {
        const zvResult result = create()->request(url, m_args, sink);
        return std::to_string(result.getResult()) + "|" + narrow(result.getMessage()) + "|" +
               narrow(result.getAdditionalInformation());
    }

    zvEventArguments m_args;
};

#endif
