#ifndef ZV_EXCEPTION_H
#define ZV_EXCEPTION_H

#include "zvResult.h"

/// The one exception type that the library throws, by value.
///
/// Most throwers put the text into the result: read it with getResult().getMessage(). Only those that use the
/// message constructor fill getMessage().
class ZV_EXPORT zvException {
public:
    zvException();
    explicit zvException(const zvResult& result);
    explicit zvException(const zvString& message);
    zvException(const zvException& other);
    virtual ~zvException();

    zvException& operator=(const zvException& other);

    zvResult getResult() const;
    void setResult(const zvResult& result);
    zvString getMessage() const;
    void setMessage(const zvString& message);

protected:
    /// Result code -1, no message.
    void initialize();
    void copy(const zvException& other);

private:
    zvResult m_result;
    zvString m_strMessage;
};

#endif
