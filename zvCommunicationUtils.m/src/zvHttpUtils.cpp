#include "zvHttpUtils.h"

#include <curl/curl.h>

#include <fstream>
#include <memory>
#include <string>

#include "zvGatewayHome.h"
#include "zvLogSource.h"
#include "zvPath.h"
#include "zvPlatform.h"
#include "zvUtf8.h"

namespace {

constexpr zvLogSource logger("zvCommunicationUtils.m/src/zvHttpUtils");

constexpr int longestTimeout = 86400;
constexpr long firstErrorStatus = 400;

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

    CURLcode perform() { return m_code == CURLE_OK ? curl_easy_perform(m_pHandle.get()) : m_code; }

    // The status of the response; 0 if there was none.
    long status() const {
        long status = 0;
        curl_easy_getinfo(m_pHandle.get(), CURLINFO_RESPONSE_CODE, &status);
        return status;
    }

private:
    struct Cleanup {
        void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    };

    std::unique_ptr<CURL, Cleanup> m_pHandle{curl_easy_init()};
    CURLcode m_code = CURLE_OK;
};

void setSink(Transfer& transfer, WriteMemoryCallbackWrapper* sink) {
    const bool isDiscarded = sink == nullptr || sink->m_pWriteFunction == nullptr;
    transfer.set(CURLOPT_WRITEFUNCTION, isDiscarded ? &discard : sink->m_pWriteFunction);
    transfer.set(CURLOPT_WRITEDATA, sink);
}

// A number of seconds in the client configuration, of which the first line with the key counts.
struct Seconds {
    std::string key;
    long& value;
    bool isRead = false;
};

// A line that is no property ends the reading of a properties file.
bool isProperty(const std::string& line) {
    const std::size_t separator = line.find('=');
    const bool isComment = line.empty() || line.front() == '#';
    return isComment || (separator != std::string::npos && separator > 0 && separator + 1 < line.size());
}

// Overwrites `seconds` if the line has the key and a valid value.
void readSeconds(const std::string& line, Seconds& seconds) {
    const std::size_t separator = seconds.key.size();
    if (seconds.isRead || line.compare(0, separator, seconds.key) != 0 || line[separator] != '=') {
        return;
    }
    seconds.isRead = true;
    zvString text = line.substr(separator + 1).c_str();
    text.trim();
    const int number = zvString::convertUnicodeToInt(text);
    if (number >= 1 && number <= longestTimeout && zvString(number) == text) {
        seconds.value = number;
    } else {
        logger.warn("\"", text, "\" is no number of seconds from 1 to ", longestTimeout, ": \"",
                    seconds.key.c_str(), "\" of the file \"client-config.ini\" stays ",
                    static_cast<int>(seconds.value));
    }
}

zvResult outcome(CURLcode code, long status) {
    zvResult result;
    if (status > 0) {
        result.setAdditionalInformation(zvString(status));
    }
    if (code == CURLE_OK && status < firstErrorStatus) {
        result.setOk();
        return result;
    }
    result.setMessage(code != CURLE_OK ? zvString(curl_easy_strerror(code))
                                       : "HTTP status " + zvString(status));
    logger.error("Following error occured while sending the request : ", result.getMessage());
    return result;
}

}  // namespace

zvHttpUtils::zvHttpUtils() { initializeLibrary(); }

zvHttpUtils::zvHttpUtils(const zvHttpUtils& other)
    : zvCommunicationUtils(other),
      m_bTimeoutsAreRead(other.m_bTimeoutsAreRead),
      m_connectSeconds(other.m_connectSeconds),
      m_stallSeconds(other.m_stallSeconds) {
    initializeLibrary();
}

zvHttpUtils::~zvHttpUtils() { curl_global_cleanup(); }

// Not with zvProperties, which logs what it reads: only a wrong value is worth a line. A missing home, file
// or key means the defaults.
void zvHttpUtils::readTimeouts() {
    m_bTimeoutsAreRead = true;
    const zvString home = zvGatewayHome::readEnvironment(zvGatewayHome::getEnvVariable());
    if (home.empty()) {
        return;
    }
    const std::string path = zvPath::native(zvGatewayHome::configFile(home, "client-config.ini"));
    std::ifstream file(zvPlatform::pathOf(path));
    Seconds timeouts[] = {{"http-connect-timeout", m_connectSeconds}, {"http-stall-timeout", m_stallSeconds}};
    for (std::string line; std::getline(file, line) && isProperty(line);) {
        for (Seconds& timeout : timeouts) {
            readSeconds(line, timeout);
        }
    }
}

zvFormBody zvHttpUtils::computeHttpRequestArgs(const zvEventArguments& args) const {
    logger.debug("Inside function zvHttpUtils::computeHttpRequestArgs(zvEventArguments)");
    zvFormBody body(args);
    logger.info("Args are : ", body.shown().c_str());
    logger.debug("Exiting function zvHttpUtils::computeHttpRequestArgs(zvEventArguments)");
    return body;
}

zvResult zvHttpUtils::request(const zvString& url, const zvEventArguments& args,
                              WriteMemoryCallbackWrapper* sink) {
    if (!m_bTimeoutsAreRead) {
        readTimeouts();
    }
    logger.debug(
        "Inside function zvHttpUtils::request(zvString,zvEventArguments,WriteMemoryCallbackWrapper*)");
    zvResult result = post(url, args, sink);
    logger.debug(
        "Exiting function zvHttpUtils::request(zvString,zvEventArguments,WriteMemoryCallbackWrapper*)");
    return result;
}

zvResult zvHttpUtils::post(const zvString& url, const zvEventArguments& args,
                           WriteMemoryCallbackWrapper* sink) const {
    Transfer transfer;
    if (!transfer.isOpen()) {
        constexpr char noHandle[] = "Error in getting an handle to curl-easy interface.";
        logger.error(noHandle);
        zvResult result;
        result.setMessage(noHandle);
        return result;
    }
    transfer.set(CURLOPT_URL, zvUtf8::encode(url).c_str());
    const zvFormBody body = computeHttpRequestArgs(args);
    logger.info("Parameters to send : \"", body.shown().c_str(), "\"");
    transfer.set(CURLOPT_POSTFIELDS, body.sent().c_str());
    transfer.set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.sent().size()));
    setSink(transfer, sink);
    // libcurl's defaults: certificates are verified, redirects are not followed.
    transfer.set(CURLOPT_PROTOCOLS_STR, "http,https");
    transfer.set(CURLOPT_CONNECTTIMEOUT, m_connectSeconds);
    transfer.set(CURLOPT_LOW_SPEED_LIMIT, 1L);
    transfer.set(CURLOPT_LOW_SPEED_TIME, m_stallSeconds);
    transfer.set(CURLOPT_NOSIGNAL, 1L);
    const CURLcode code = transfer.perform();
    return outcome(code, transfer.status());
}

void zvHttpUtils::queryResponse() {
    logger.warn("Function zvHttpUtils::queryResponse() NOT YET IMPLEMENTED");
}

void zvHttpUtils::queryResponseHeader() {
    logger.warn("Function zvHttpUtils::queryResponseHeader() NOT YET IMPLEMENTED");
}
