#include "zvClientConfigKey.h"

#include <curl/curl.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "zvTextBuilder.h"
#include "zvUtf8.h"

namespace {

using Form = zvClientConfigKey::Form;

constexpr int longestTimeout = 86400;
constexpr int longestDelay = 60;
constexpr int longestAnswer = 1 << 30;
constexpr int longestEvent = 30 * longestTimeout;
constexpr int mostRetries = 1000;

struct CloseUrl {
    void operator()(CURLU* url) const { curl_url_cleanup(url); }
};

zvString faultOfUrl(const zvString& value) {
    const std::unique_ptr<CURLU, CloseUrl> url(curl_url());
    const CURLUcode code = curl_url_set(url.get(), CURLUPART_URL, zvUtf8::encode(value).c_str(), 0);
    if (code != CURLUE_OK) {
        return zvTextBuilder::concat("it is no URL that begins with http:// or https://: ",
                                     curl_url_strerror(code));
    }
    char* scheme = nullptr;
    curl_url_get(url.get(), CURLUPART_SCHEME, &scheme, 0);
    const std::string_view found = scheme == nullptr ? "" : scheme;
    const bool isHttp = found == "http" || found == "https";
    curl_free(scheme);
    return isHttp ? "" : "it is no URL that begins with http:// or https://";
}

bool isNumber(std::string_view text, const zvClientConfigKey& key) {
    const bool isWhole = key.form == Form::wholeNumber;
    if (isWhole && text.find_first_not_of("0123456789") != std::string_view::npos) {
        return false;
    }
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && rest == end && number >= key.least && number <= key.most;
}

// The owner needs all of them.
bool areRights(std::string_view text) {
    constexpr std::size_t numDigits = 3;
    const std::string_view digits = text.substr(text.size() == numDigits + 1 && text.front() == '0' ? 1 : 0);
    return text == "umask" || (digits.size() == numDigits && digits.front() == '7' &&
                               digits.find_first_not_of("01234567") == std::string_view::npos);
}

}  // namespace

const std::vector<zvClientConfigKey>& zvClientConfigKey::all() {
    static const std::vector<zvClientConfigKey> keys = {
        {"local-server-url", Form::url},
        {"http-connect-timeout", Form::wholeNumber, 1, longestTimeout},
        {"http-stall-timeout", Form::wholeNumber, 1, longestTimeout},
        {"http-timeout", Form::wholeNumber, 1, longestTimeout},
        {"http-answer-limit", Form::wholeNumber, 1, longestAnswer},
        {"http-retries", Form::wholeNumber, 0, mostRetries},
        {"http-retry-delay", Form::number, 0, longestDelay},
        {"http-ca-file", Form::certificates},
        {"http-client-certificate", Form::file},
        {"http-client-key", Form::file},
        {"http-client-key-password-env", Form::passwordVariable},
        {"event-timeout", Form::wholeNumber, 0, longestEvent},
        {"java-options", Form::text},
        {"java-archive", Form::choice},
        {"secret-keys", Form::names},
        {"shadow-mode", Form::rights}};
    return keys;
}

const zvClientConfigKey* zvClientConfigKey::find(const zvString& name) {
    const auto found = std::find_if(all().begin(), all().end(),
                                    [&name](const zvClientConfigKey& key) { return key.name == name; });
    return found == all().end() ? nullptr : &*found;
}

zvString zvClientConfigKey::faultOf(const zvString& value) const {
    if (form == Form::url) {
        return faultOfUrl(value);
    }
    if (form == Form::choice) {
        const bool isChoice = value == "on" || value == "off";
        return isChoice ? zvString() : zvTextBuilder::concat("\"", value, "\" is neither \"on\" nor \"off\"");
    }
    if (form == Form::rights) {
        return areRights(zvUtf8::encode(value))
                   ? zvString()
                   : zvTextBuilder::concat("\"", value, "\" is neither \"umask\" nor from 700 to 777");
    }
    if ((form != Form::wholeNumber && form != Form::number) || isNumber(zvUtf8::encode(value), *this)) {
        return {};
    }
    return zvTextBuilder::concat("\"", value, "\" is no ", form == Form::wholeNumber ? "whole " : "",
                                 "number from ", least, " to ", most);
}
