#include "zvCheck.h"
#include "zvException.h"
#include "zvResult.h"

namespace {

class DerivedResult : public zvResult {
public:
    DerivedResult() { initialize(); }
    explicit DerivedResult(const zvResult& other) { copy(other); }
};

class DerivedException : public zvException {
public:
    DerivedException() { initialize(); }
    explicit DerivedException(const zvException& other) { copy(other); }
};

zvResult succeed() { return 0; }
zvException refuse(bool withResult) {
    if (withResult) {
        return zvResult(4);
    }
    return zvString("refused");
}

void results() {
    zvResult result, copy(result), code = 3;
    result = 5;
    result.setMessage("no");
    result.setAdditionalInformation(7);
    result.setFileTransferFailure();
    copy = result;
    copy.setMessage('x');
    ZV_CHECK(copy == result && copy != code && copy.getResult() == 5 && !copy.isOk());
    ZV_CHECK(copy.getMessage() == 'x' && copy.getAdditionalInformation() == 7);
    ZV_CHECK(zvResult::isFileTransferFailure(copy.getFailureType()) && !zvResult::isBusinessFailure(1));
    copy.setBusinessFailure();
    copy.setOk();
    copy.setResult(0);
    ZV_CHECK(copy == 0 && succeed().isOk() && DerivedResult(code).getResult() == 3 &&
             !DerivedResult().isOk());
}

void exceptions() {
    zvException exception, copy(exception);
    exception = zvString("text");
    copy = zvResult(3);
    copy.setMessage(2.5);
    copy.setResult(5);
    ZV_CHECK(exception.getMessage() == "text" && exception.getResult().getResult() == -1);
    ZV_CHECK(copy.getMessage() == "2.500000" && copy.getResult().getResult() == 5);
    ZV_CHECK(refuse(true).getResult().getResult() == 4 && refuse(false).getMessage() == "refused");
    ZV_CHECK(DerivedException(exception).getMessage() == "text" && DerivedException().getMessage().empty());
    try {
        throw zvException("thrown");
    } catch (const zvException& caught) {
        ZV_CHECK(caught.getMessage() == "thrown");
    }
}

}  // namespace

int main() {
    results();
    exceptions();
    return failures;
}
