#ifndef ZV_HTTP_UTILS_H
#define ZV_HTTP_UTILS_H

#include <memory>
#include <optional>

#include "zvCommunicationUtils.h"
#include "zvFormBody.h"
#include "zvHttpSettings.h"

/// Posts event arguments as a form with libcurl. Created by zvCommunicationFactory only.
class zvHttpUtils : public zvCommunicationUtils {
public:
    zvResult request(const zvString& url, const zvEventArguments& args,
                     WriteMemoryCallbackWrapper* sink) override;
    void queryResponse() override;
    void queryResponseHeader() override;
    zvRequestOutcome lastOutcome() const override { return m_outcome; }

private:
    friend class zvCommunicationFactory;
    zvHttpUtils();

    zvFormBody computeHttpRequestArgs(const zvEventArguments& args) const;
    zvResult post(const zvString& url, const zvEventArguments& args, WriteMemoryCallbackWrapper* sink);

    // libcurl's global state, shared by copies: cleaned up after the last of them.
    std::shared_ptr<void> m_pLibrary;
    // Read by the first request.
    std::optional<zvHttpSettings> m_settings;
    zvRequestOutcome m_outcome;
};

#endif
