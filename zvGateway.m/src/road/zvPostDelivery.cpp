#include "zvPostDelivery.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <utility>

#include "zvCommunicationFactory.h"
#include "zvConsole.h"
#include "zvInterruption.h"
#include "zvLogLevel.h"
#include "zvPostReason.h"
#include "zvProcess.h"
#include "zvProgramLog.h"
#include "zvSecrets.h"
#include "zvServerAnswer.h"
#include "zvUtf8.h"

namespace {

void log(zvLogLevel level, const std::string& text, int line) {
    zvProgramLog::write(level, text, "zvGateway.m/src/zvPostDelivery", line);
}

bool isDelivered(const zvRequestOutcome& outcome) {
    constexpr int first = 200;
    constexpr int last = 299;
    return outcome.failure == zvRequestOutcome::Failure::none && outcome.status >= first &&
           outcome.status <= last;
}

std::string seconds(std::chrono::milliseconds time) {
    constexpr double perSecond = 1000;
    constexpr std::size_t width = 40;
    char text[width];
    std::snprintf(text, width, "%.1f s", static_cast<double>(time.count()) / perSecond);
    return text;
}

zvPostRetry readRetry() {
    zvClientSettings settings;
    const zvPostRetry retry = zvPostRetry::read(settings);
    settings.tellFaults();
    return retry;
}

void logFailure(zvLogLevel level, const std::string& url, const std::string& text) {
    log(level, "Post to \"" + url + "\" failed: " + text, __LINE__);
}

}  // namespace

zvPostDelivery::zvPostDelivery(zvGatewayEvent& event, const zvString& url)
    : m_event(event),
      m_url(url),
      m_strShownUrl(zvConsole::printable(zvSecrets::maskedUrl(url))),
      m_secrets(*event.arguments, url),
      m_pServer(zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalHTTP)) {}

std::string zvPostDelivery::run() {
    const zvPostRetry retry = readRetry();
    for (int attempt = 1;; ++attempt) {
        const std::string reason = post();
        const zvRequestOutcome outcome = m_pServer->lastOutcome();
        if (isDelivered(outcome)) {
            tellAnswer();
            return "HTTP status " + std::to_string(outcome.status) +
                   (attempt == 1 ? "" : ", try " + std::to_string(attempt));
        }
        const zvPostRetry::Decision decision = retry.decide(outcome, attempt);
        if (decision != zvPostRetry::Decision::again) {
            fail(reason, decision, attempt);
        }
        m_event.deadline.throwIfOver(m_strShownUrl, reason);
        const auto wait =
            retry.wait(outcome, attempt, std::uniform_real_distribution<double>(0, 1)(m_random));
        tellRetry(reason + "; try " + std::to_string(attempt + 1) + " of " +
                  std::to_string(retry.retries + 1) + " in " + seconds(wait));
        const int left = m_event.deadline.secondsLeft();
        zvProcess::waitFor(left == 0 ? wait
                                     : std::min<std::chrono::milliseconds>(wait, std::chrono::seconds(left)));
        zvInterruption::throwIfRequested();
        m_event.deadline.throwIfOver(m_strShownUrl, reason);
    }
}

// Returns the reason in case it failed.
std::string zvPostDelivery::post() {
    zvServerAnswer answer(m_secrets);
    m_pServer->setTimeLimit(m_event.deadline.secondsLeft());
    const zvResult posted = m_pServer->request(m_url, *m_event.arguments, answer.sink());
    zvRequestOutcome outcome = m_pServer->lastOutcome();
    m_strAnswer = answer.text();
    // libcurl quotes names that the server has given.
    outcome.errorText = shown(outcome.errorText).c_str();
    const zvPostReason reason = {m_strShownUrl, m_strAnswer, shown(zvSecrets::maskedUrl(outcome.location)),
                                 shown(posted.getMessage())};
    return reason.text(outcome);
}

std::string zvPostDelivery::shown(const zvString& text) const {
    constexpr std::size_t longest = 2000;
    return zvServerAnswer::shown(zvUtf8::encode(text), longest, m_secrets);
}

void zvPostDelivery::tellAnswer() {
    if (!m_strAnswer.empty()) {
        zvConsole::fact("answer", m_strAnswer);
        m_event.report.setFact("answer", "", m_strAnswer);
    }
}

void zvPostDelivery::tellRetry(const std::string& text) {
    zvConsole::fact("retry", text);
    logFailure(zvLogLevel::warn, m_strShownUrl, text);
}

void zvPostDelivery::fail(std::string reason, zvPostRetry::Decision decision, int attempt) {
    tellAnswer();
    if (decision == zvPostRetry::Decision::tooLong) {
        reason += "; the server asks to wait " + std::to_string(m_pServer->lastOutcome().retryAfterSeconds) +
                  " s, and more than " + std::to_string(zvPostRetry::longestRetryAfter.count()) +
                  " s is not waited: go on with the event then";
    }
    if (attempt > 1) {
        reason += " (" + std::to_string(attempt) + " tries)";
    }
    logFailure(zvLogLevel::error, m_strShownUrl, reason);
    throw zvStepFailure{m_strShownUrl, reason};
}
