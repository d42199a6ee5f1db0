#ifndef ZV_POST_DELIVERY_H
#define ZV_POST_DELIVERY_H

#include <memory>
#include <random>
#include <string>

#include "zvCommunicationUtils.h"
#include "zvGatewayEvent.h"
#include "zvPostRetry.h"
#include "zvSecretValues.h"

/// The delivery of an event's arguments to the local server: one post, and its retries.
class zvPostDelivery {
public:
    zvPostDelivery(zvGatewayEvent& event, const zvString& url);

    /// Posts until the server answers with a status from 200 to 299; tells each retry, and adds the last
    /// answer to the event's report. Returns the status in printable words. Throws a zvStepFailure, or a
    /// zvInterruption between two attempts.
    std::string run();

private:
    std::string post();
    std::string shown(const zvString& text) const;
    void tellAnswer();
    void tellRetry(const std::string& text);
    [[noreturn]] void fail(std::string reason, zvPostRetry::Decision decision, int attempt);

    zvGatewayEvent& m_event;
    zvString m_url;
    std::string m_strShownUrl;  // without its account
    zvSecretValues m_secrets;
    std::unique_ptr<zvCommunicationUtils> m_pServer;
    std::string m_strAnswer;  // of the last attempt
    std::random_device m_random;
};

#endif
