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

std::size_t discard(char*, std::size_t size, std::size_t count, void*) { return size * count; }

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

    // What is known once it was performed with the result `code`.
    zvRequestOutcome outcome(CURLcode code) const {
        zvRequestOutcome outcome;
        outcome.status = static_cast<int>(info<long>(CURLINFO_RESPONSE_CODE));
        outcome.location = info<const char*>(CURLINFO_REDIRECT_URL);
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

void setSink(Transfer& transfer, WriteMemoryCallbackWrapper* sink) {
    const bool isDiscarded = sink == nullptr || sink->m_pWriteFunction == nullptr;
    transfer.set(CURLOPT_WRITEFUNCTION, isDiscarded ? &discard : sink->m_pWriteFunction);
    transfer.set(CURLOPT_WRITEDATA, sink);
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
            transfer.set(option, zvPath::native(path).c_str());
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

zvResult concluded(CURLcode code, int status, const zvHttpSettings& settings) {
    zvResult result;
    if (status > 0) {
        result.setAdditionalInformation(zvString(status));
    }
    if (code == CURLE_OK && status < firstErrorStatus) {
        result.setOk();
        return result;
    }
    result.setMessage(code != CURLE_OK ? describe(code, settings) : "HTTP status " + zvString(status));
    logger.error("Following error occured while sending the request : ", result.getMessage());
    return result;
}

}  // namespace

zvHttpUtils::zvHttpUtils() { initializeLibrary(); }

zvHttpUtils::zvHttpUtils(const zvHttpUtils& other)
    : zvCommunicationUtils(other), m_settings(other.m_settings), m_outcome(other.m_outcome) {
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
    return transfer(url, [&](Transfer& transfer) {
        body = computeHttpRequestArgs(args);
        logger.info("Parameters to send : \"", body->shown().c_str(), "\"");
        transfer.set(CURLOPT_POSTFIELDS, body->sent().c_str());
        transfer.set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body->sent().size()));
        setSink(transfer, sink);
    });
}

zvResult zvHttpUtils::connect(const zvString& url) {
    begin();
    return transfer(url, [](Transfer& transfer) { transfer.set(CURLOPT_CONNECT_ONLY, 1L); });
}

void zvHttpUtils::begin() {
    if (!m_settings) {
        m_settings = zvHttpSettings::read();
    }
    m_outcome = {};
}

// Performs what `setUp` makes of a transfer.
template <class SetUp>
zvResult zvHttpUtils::transfer(const zvString& url, SetUp setUp) {
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
    setConnection(transfer, *m_settings);
    setCertificates(transfer, *m_settings);
    const CURLcode code = transfer.perform();
    m_outcome = transfer.outcome(code);
    return concluded(code, m_outcome.status, *m_settings);
}

void zvHttpUtils::queryResponse() {
    logger.warn("Function zvHttpUtils::queryResponse() NOT YET IMPLEMENTED");
}

void zvHttpUtils::queryResponseHeader() {
    logger.warn("Function zvHttpUtils::queryResponseHeader() NOT YET IMPLEMENTED");
}
