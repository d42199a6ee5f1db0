#include "zvException.h"

zvException::zvException() = default;

zvException::zvException(const zvResult& result) : m_result(result) {}

zvException::zvException(const zvString& message) : m_strMessage(message) {}

zvException::zvException(const zvException& other) = default;

zvException::~zvException() = default;

zvException& zvException::operator=(const zvException& other) = default;

zvResult zvException::getResult() const { return m_result; }
void zvException::setResult(const zvResult& result) { m_result = result; }
zvString zvException::getMessage() const { return m_strMessage; }
void zvException::setMessage(const zvString& message) { m_strMessage = message; }

void zvException::initialize() {
    m_result = -1;
    m_strMessage.clear();
}

void zvException::copy(const zvException& other) { *this = other; }
