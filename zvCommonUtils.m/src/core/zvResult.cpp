#include "zvResult.h"

namespace {

constexpr int success = 0;
constexpr int failure = -1;
constexpr int businessFailure = 0;
constexpr int fileTransferFailure = 1;

}  // namespace

zvResult::zvResult() : zvResult(failure) {}

zvResult::zvResult(int code) : m_result(code), m_failureType(businessFailure) {}

zvResult::zvResult(const zvResult& other) = default;

zvResult::~zvResult() = default;

zvResult& zvResult::operator=(const zvResult& other) = default;

zvResult& zvResult::operator=(int code) {
    m_result = code;
    return *this;
}

void zvResult::setResult(int code) { m_result = code; }
int zvResult::getResult() const { return m_result; }
bool zvResult::isOk() const { return m_result == success; }
void zvResult::setOk() { m_result = success; }

void zvResult::setMessage(const zvString& message) { m_strMessage = message; }
zvString zvResult::getMessage() const { return m_strMessage; }
void zvResult::setAdditionalInformation(const zvString& information) {
    m_strAdditionalInformation = information;
}
zvString zvResult::getAdditionalInformation() const { return m_strAdditionalInformation; }

int zvResult::getFailureType() const { return m_failureType; }
void zvResult::setBusinessFailure() { m_failureType = businessFailure; }
void zvResult::setFileTransferFailure() { m_failureType = fileTransferFailure; }
bool zvResult::isBusinessFailure(int type) { return type == businessFailure; }
bool zvResult::isFileTransferFailure(int type) { return type == fileTransferFailure; }

bool zvResult::operator==(const zvResult& other) const {
    return m_result == other.m_result && m_failureType == other.m_failureType;
}

bool zvResult::operator!=(const zvResult& other) const { return !(*this == other); }

void zvResult::initialize() {
    m_result = failure;
    m_failureType = businessFailure;
}

void zvResult::copy(const zvResult& other) { *this = other; }
