#ifndef ZV_RESULT_H
#define ZV_RESULT_H

#include "zvString.h"

/// The outcome of an operation: a code, a message, the type of failure and additional information as free
/// text.
///
/// A new result is a failure, so that an early return reports one unless success is set explicitly.
class ZV_EXPORT zvResult {
public:
    /// Code -1, business failure, no message.
    zvResult();
    /// 0 is success and -1 generic failure; an operation may define further codes.
    zvResult(int code);
    zvResult(const zvResult& other);
    virtual ~zvResult();

    zvResult& operator=(const zvResult& other);
    /// Sets the code only.
    zvResult& operator=(int code);

    void setResult(int code);
    int getResult() const;
    bool isOk() const;
    /// Sets the code to 0; an earlier message stays.
    void setOk();

    void setMessage(const zvString& message);
    zvString getMessage() const;
    void setAdditionalInformation(const zvString& information);
    zvString getAdditionalInformation() const;

    /// 0 for a business failure, 1 for a file-transfer failure; independent of the code.
    int getFailureType() const;
    void setBusinessFailure();
    void setFileTransferFailure();
    static bool isBusinessFailure(int type);
    static bool isFileTransferFailure(int type);

    /// Compares code and failure type, not the message and the additional information.
    bool operator==(const zvResult& other) const;
    bool operator!=(const zvResult& other) const;

protected:
    void initialize();
    void copy(const zvResult& other);

private:
    int m_result;
    zvString m_strMessage;
    int m_failureType;
    zvString m_strAdditionalInformation;
};

#endif
