#include "zvHttpUtils.h"

#include <curl/curl.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "zvCurlFailure.h"
#include "zvDirFileUtils.h"
#include "zvLogSource.h"
#include "zvPath.h"
#include "zvPlatform.h"
#include "zvUtf8.h"

namespace {

constexpr zvLogSource logger("zvCommunicationUtils.m/src/zvHttpUtils");

constexpr int firstErrorStatus = 400;

void initializeLibrary() {
    const CURLcode code = curl_global_init(CURL_GLOBAL_ALL);
    if (code != CURLE_OK) {
        logger.error("Following error occurred while initializing the LIBCURL library : \"",
                     static_cast<int>(code), "\" -", curl_easy_strerror(code));
    }
}

// Counts what the server sends, headers included, and passes the body on. A full one ends the transfer.
class LimitedAnswer {
public:
    LimitedAnswer(long limit, WriteMemoryCallbackWrapper* sink)
        : m_left(static_cast<std::size_t>(limit)), m_pSink(sink) {}

    bool isTooLong() const { return m_bTooLong; }

    static std::size_t takeHeader(char*, std::size_t size, std::size_t count, void* answer) {
        return static_cast<LimitedAnswer*>(answer)->has(size * count) ? size * count : 0;
    }
    static std::size_t takeBody(char* data, std::size_t size, std::size_t count, void* answer) {
        auto& self = *static_cast<LimitedAnswer*>(answer);
        if (!self.has(size * count)) {
            return 0;
        }
        const bool isDiscarded = self.m_pSink == nullptr || self.m_pSink->m_pWriteFunction == nullptr;
        return isDiscarded ? size * count : self.m_pSink->m_pWriteFunction(data, size, count, self.m_pSink);
    }

private:
    bool has(std::size_t bytes) {
        m_bTooLong = m_bTooLong || bytes > m_left;
        m_left -= m_bTooLong ? m_left : bytes;
        return !m_bTooLong;
    }

    std::size_t m_left;
    WriteMemoryCallbackWrapper* m_pSink;
    bool m_bTooLong = false;
};

// RAII wrapper of a libcurl easy handle. An option that fails makes the transfer fail.
class Transfer {
public:
    bool isOpen() const { return m_pHandle != nullptr; }

    template <typename Value>
    void set(CURLoption option, Value value) {
        if (m_code == CURLE_OK) {
            m_code = curl_easy_setopt(m_pHandle.get(), option, value);
        }
    }

    CURLcode perform() {
        set(CURLOPT_ERRORBUFFER, m_errorText);
        return m_code == CURLE_OK ? curl_easy_perform(m_pHandle.get()) : m_code;
    }

    // Whether it has used up the time, but for what the clock is inexact.
    bool hasTaken(long seconds) const {
        constexpr curl_off_t perSecond = 1'000'000;
        constexpr curl_off_t inexact = 100'000;
        return info<curl_off_t>(CURLINFO_TOTAL_TIME_T) + inexact >= seconds * perSecond;
    }

    // What is known once it was performed with the result `code`.
    zvRequestOutcome outcome(CURLcode code) const {
        zvRequestOutcome outcome;
        outcome.status = static_cast<int>(info<long>(CURLINFO_RESPONSE_CODE));
        const char* const location = info<const char*>(CURLINFO_REDIRECT_URL);
        outcome.location = zvUtf8::decodeReplacing(location == nullptr ? "" : location);
        // Negative for a date that has passed.
        outcome.retryAfterSeconds = std::max(info<curl_off_t>(CURLINFO_RETRY_AFTER), curl_off_t{0});
        outcome.failure = zvCurlFailure::kindOf(code, m_errorText);
        if (outcome.failure == zvRequestOutcome::Failure::tls) {
            outcome.tlsFailure =
                zvCurlFailure::tlsKindOf(code, info<long>(CURLINFO_SSL_VERIFYRESULT), m_errorText);
        }
        if (code != CURLE_OK) {
            outcome.errorText = m_errorText[0] != '\0' ? m_errorText : curl_easy_strerror(code);
            const auto number = info<long>(CURLINFO_OS_ERRNO);
            if (outcome.failure == zvRequestOutcome::Failure::connect && number != 0) {
                outcome.errorText += ": ";
                outcome.errorText += zvPlatform::errorText(static_cast<unsigned long>(number)).c_str();
            }
        }
        return outcome;
    }

private:
    template <typename Value>
    Value info(CURLINFO key) const {
        Value value{};
        curl_easy_getinfo(m_pHandle.get(), key, &value);
        return value;
    }

    struct Cleanup {
        void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    };

    char m_errorText[CURL_ERROR_SIZE] = "";
    std::unique_ptr<CURL, Cleanup> m_pHandle{curl_easy_init()};
    CURLcode m_code = CURLE_OK;
};

void setAnswer(Transfer& transfer, LimitedAnswer& answer) {
    transfer.set(CURLOPT_HEADERFUNCTION, &LimitedAnswer::takeHeader);
    transfer.set(CURLOPT_HEADERDATA, &answer);
    transfer.set(CURLOPT_WRITEFUNCTION, &LimitedAnswer::takeBody);
    transfer.set(CURLOPT_WRITEDATA, &answer);
}

zvString describeLimit(const zvHttpSettings& settings) {
    return "the answer is longer than " + zvString(static_cast<int>(settings.answerLimit)) +
           " bytes, \"http-answer-limit\" of client-config.ini";
}

bool endsWith(const std::string& text, std::string_view end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// libcurl's defaults: certificates are verified, redirects are not followed.
void setConnection(Transfer& transfer, const zvHttpSettings& settings) {
    transfer.set(CURLOPT_PROTOCOLS_STR, "http,https");
    transfer.set(CURLOPT_CONNECTTIMEOUT, settings.connectSeconds);
    transfer.set(CURLOPT_LOW_SPEED_LIMIT, 1L);
    transfer.set(CURLOPT_LOW_SPEED_TIME, settings.stallSeconds);
    transfer.set(CURLOPT_NOSIGNAL, 1L);
}

void setCertificates(Transfer& transfer, const zvHttpSettings& settings) {
    const auto setPath = [&](CURLoption option, const zvString& path) {
        if (!path.empty()) {
            transfer.set(option, zvPlatform::textForLibraries(zvPath::native(path)).c_str());
        }
    };
    setPath(CURLOPT_CAINFO, settings.caFile);
    setPath(CURLOPT_CAPATH, settings.caFolder);
    setPath(CURLOPT_SSLCERT, settings.clientCertificate);
    setPath(CURLOPT_SSLKEY, settings.clientKey);
    const std::string certificate = zvPath::native(settings.clientCertificate);
    if (endsWith(certificate, ".p12") || endsWith(certificate, ".pfx")) {
        transfer.set(CURLOPT_SSLCERTTYPE, "P12");
    }
    if (!settings.clientKeyPassword.empty()) {
        transfer.set(CURLOPT_KEYPASSWD, zvUtf8::encode(settings.clientKeyPassword).c_str());
    }
}

// The file and, if it cannot be read, the system's reason.
zvString describeFile(const zvString& path) {
    const zvString error = zvDirFileUtils::getAccessError(path, zvPlatform::readable);
    return ": \"" + path + "\"" + (error.empty() ? zvString() : ": " + error);
}

// libcurl's text does not name the files.
zvString describe(CURLcode code, const zvHttpSettings& settings) {
    zvString text = curl_easy_strerror(code);
    if (code == CURLE_SSL_CACERT_BADFILE && !settings.caFile.empty()) {
        text += describeFile(settings.caFile);
    } else if (code == CURLE_SSL_CERTPROBLEM) {
        text += describeFile(settings.clientCertificate);
        if (!settings.clientKey.empty()) {
            text += describeFile(settings.clientKey);
        }
    }
    return text;
}

zvResult concluded(CURLcode code, const zvRequestOutcome& outcome, const zvHttpSettings& settings) {
    zvResult result;
    if (outcome.status > 0) {
        result.setAdditionalInformation(zvString(outcome.status));
    }
    if (code == CURLE_OK && outcome.status < firstErrorStatus) {
        result.setOk();
        return result;
    }
    const bool isTooLong = outcome.failure == zvRequestOutcome::Failure::answerLimit;
    result.setMessage(isTooLong          ? outcome.errorText
                      : code != CURLE_OK ? describe(code, settings)
                                         : "HTTP status " + zvString(outcome.status));
    logger.error("Following error occured while sending the request : ", result.getMessage());
    return result;
}

}  // namespace

zvHttpUtils::zvHttpUtils() { initializeLibrary(); }

zvHttpUtils::zvHttpUtils(const zvHttpUtils& other)
    : zvCommunicationUtils(other),
      m_settings(other.m_settings),
      m_timeLimit(other.m_timeLimit),
      m_outcome(other.m_outcome) {
    initializeLibrary();
}

zvHttpUtils::~zvHttpUtils() { curl_global_cleanup(); }

zvFormBody zvHttpUtils::computeHttpRequestArgs(const zvEventArguments& args) const {
    logger.debug("Inside function zvHttpUtils::computeHttpRequestArgs(zvEventArguments)");
    zvFormBody body(args);
    logger.info("Args are : ", body.shown().c_str());
    logger.debug("Exiting function zvHttpUtils::computeHttpRequestArgs(zvEventArguments)");
    return body;
}

zvResult zvHttpUtils::request(const zvString& url, const zvEventArguments& args,
                              WriteMemoryCallbackWrapper* sink) {
    begin();
    logger.debug(
        "Inside function zvHttpUtils::request(zvString,zvEventArguments,WriteMemoryCallbackWrapper*)");
    zvResult result = post(url, args, sink);
    logger.debug(
        "Exiting function zvHttpUtils::request(zvString,zvEventArguments,WriteMemoryCallbackWrapper*)");
    return result;
}

zvResult zvHttpUtils::post(const zvString& url, const zvEventArguments& args,
                           WriteMemoryCallbackWrapper* sink) {
    std::optional<zvFormBody> body;
    LimitedAnswer answer(m_settings->answerLimit, sink);
    return transfer(url, answer, [&](Transfer& transfer) {
        body = computeHttpRequestArgs(args);
        logger.info("Parameters to send : \"", body->shown().c_str(), "\"");
        transfer.set(CURLOPT_POSTFIELDS, body->sent().c_str());
        transfer.set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body->sent().size()));
    });
}

zvResult zvHttpUtils::connect(const zvString& url) {
    begin();
    LimitedAnswer answer(m_settings->answerLimit, nullptr);
    return transfer(url, answer, [](Transfer& transfer) { transfer.set(CURLOPT_CONNECT_ONLY, 1L); });
}

void zvHttpUtils::setTimeLimit(int seconds) { m_timeLimit = seconds; }

// Of a transfer, in seconds.
long zvHttpUtils::timeLimit() const {
    const long most = m_settings->totalSeconds;
    return m_timeLimit > 0 ? std::min<long>(most, m_timeLimit) : most;
}

void zvHttpUtils::begin() {
    if (!m_settings) {
        m_settings = zvHttpSettings::read();
    }
    m_outcome = {};
}

// Performs what `setUp` makes of a transfer.
template <class Answer, class SetUp>
zvResult zvHttpUtils::transfer(const zvString& url, Answer& answer, SetUp setUp) {
    Transfer transfer;
    if (!transfer.isOpen()) {
        constexpr char noHandle[] = "Error in getting an handle to curl-easy interface.";
        logger.error(noHandle);
        zvResult result;
        result.setMessage(noHandle);
        return result;
    }
    transfer.set(CURLOPT_URL, zvUtf8::encode(url).c_str());
    setUp(transfer);
    setAnswer(transfer, answer);
    setConnection(transfer, *m_settings);
    setCertificates(transfer, *m_settings);
    transfer.set(CURLOPT_TIMEOUT, timeLimit());
    const CURLcode code = transfer.perform();
    m_outcome = transfer.outcome(code);
    if (answer.isTooLong()) {
        m_outcome.failure = zvRequestOutcome::Failure::answerLimit;
        m_outcome.errorText = describeLimit(*m_settings);
    } else if (code == CURLE_OPERATION_TIMEDOUT && transfer.hasTaken(m_settings->totalSeconds)) {
        m_outcome.errorText += ": \"http-timeout\" of client-config.ini";
    }
    return concluded(code, m_outcome, *m_settings);
}

void zvHttpUtils::queryResponse() {
    logger.warn("Function zvHttpUtils::queryResponse() NOT YET IMPLEMENTED");
}

void zvHttpUtils::queryResponseHeader() {
    logger.warn("Function zvHttpUtils::queryResponseHeader() NOT YET IMPLEMENTED");
}
