#ifndef ZV_HTTP_UTILS_H
#define ZV_HTTP_UTILS_H

#include <memory>

#include "zvCommunicationUtils.h"
#include "zvFormBody.h"

/// Posts event arguments as a form with libcurl. Created by zvCommunicationFactory only.
class zvHttpUtils : public zvCommunicationUtils {
public:
    zvResult request(const zvString& url, const zvEventArguments& args,
                     WriteMemoryCallbackWrapper* sink) override;
    void queryResponse() override;
    void queryResponseHeader() override;

private:
    friend class zvCommunicationFactory;
    zvHttpUtils();

    void readTimeouts();
    zvFormBody computeHttpRequestArgs(const zvEventArguments& args) const;
    zvResult post(const zvString& url, const zvEventArguments& args, WriteMemoryCallbackWrapper* sink) const;

    // libcurl's global state, shared by copies: cleaned up after the last of them.
    std::shared_ptr<void> m_pLibrary;
    long m_connectSeconds = 30;
    long m_stallSeconds = 60;
};

#endif
