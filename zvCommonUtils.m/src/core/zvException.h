#ifndef ZV_EXCEPTION_H
#define ZV_EXCEPTION_H

#include "zvResult.h"

/// The only exception type that the library throws, by value.
///
/// Most exceptions carry their message in the result: read getResult().getMessage(). getMessage() is set only
/// by the constructor that takes a message and by setMessage().
class ZV_EXPORT zvException {
public:
    zvException();
    zvException(const zvResult& result);
    zvException(const zvString& message);
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
