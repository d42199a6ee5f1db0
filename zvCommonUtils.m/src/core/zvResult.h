#ifndef ZV_RESULT_H
#define ZV_RESULT_H

#include "zvString.h"

/// The outcome of an operation: a code, a message, the kind of failure and free additional information.
///
/// A result is a failure until an operation says otherwise, so that every early return reports one.
class ZV_EXPORT zvResult {
public:
    /// Code -1, business failure, no texts.
    zvResult();
    /// 0 means success and -1 the generic failure; an operation may have codes of its own.
    zvResult(int code);
    zvResult(const zvResult& other);
    virtual ~zvResult();

    zvResult& operator=(const zvResult& other);
    /// Sets the code and keeps everything else.
    zvResult& operator=(int code);

    void setResult(int code);
    int getResult() const;
    bool isOk() const;
    /// Sets the code to 0 and keeps everything else, an earlier message too.
    void setOk();

    void setMessage(const zvString& message);
    zvString getMessage() const;
    void setAdditionalInformation(const zvString& information);
    zvString getAdditionalInformation() const;

    /// 0 for a business failure, 1 for a file-transfer failure; it says nothing about success.
    int getFailureType() const;
    void setBusinessFailure();
    void setFileTransferFailure();
    static bool isBusinessFailure(int type);
    static bool isFileTransferFailure(int type);

    /// Equal codes and failure types; the texts are not compared.
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
