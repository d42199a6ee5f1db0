#ifndef ZV_HTTP_UTILS_H
#define ZV_HTTP_UTILS_H

#include <optional>

#include "zvCommunicationUtils.h"
#include "zvFormBody.h"
#include "zvHttpSettings.h"

/// Posts event arguments as a form with libcurl. Created by zvCommunicationFactory only.
///
/// libcurl counts its users: each object is one from its creation to its destruction, also as a copy.
class zvHttpUtils : public zvCommunicationUtils {
public:
    zvHttpUtils(const zvHttpUtils& other);
    zvHttpUtils& operator=(const zvHttpUtils& other) = default;
    ~zvHttpUtils() override;

    zvResult request(const zvString& url, const zvEventArguments& args,
                     WriteMemoryCallbackWrapper* sink) override;
    void queryResponse() override;
    void queryResponseHeader() override;
    zvRequestOutcome lastOutcome() const override { return m_outcome; }
    zvResult connect(const zvString& url) override;
    void setTimeLimit(int seconds) override;

private:
    friend class zvCommunicationFactory;
    zvHttpUtils();

    zvFormBody computeHttpRequestArgs(const zvEventArguments& args) const;
    zvResult post(const zvString& url, const zvEventArguments& args, WriteMemoryCallbackWrapper* sink);
    void begin();
    long timeLimit() const;
    template <class Answer, class SetUp>
    zvResult transfer(const zvString& url, Answer& answer, SetUp setUp);

    // Read by the first request.
    std::optional<zvHttpSettings> m_settings;
    int m_timeLimit = 0;
    zvRequestOutcome m_outcome;
};

#endif
