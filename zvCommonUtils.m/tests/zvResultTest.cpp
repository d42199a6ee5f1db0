#include "zvException.h"
#include "zvTestSupport.h"

namespace {

TEST(zvResultTest, IsAFailureUntilItIsSetToSuccess) {
    zvResult result;
    EXPECT_FALSE(result.isOk());
    EXPECT_EQ(result.getResult(), -1);
    EXPECT_TRUE(zvResult::isBusinessFailure(result.getFailureType()));
    result.setMessage("m");
    result.setFileTransferFailure();
    result = 5;
    EXPECT_EQ(result.getResult(), 5);
    EXPECT_EQ(result.getMessage(), "m");
    result.setOk();
    EXPECT_TRUE(result.isOk() && zvResult::isFileTransferFailure(result.getFailureType()));
}

TEST(zvResultTest, EqualityIsThatOfCodeAndFailureType) {
    zvResult left(3);
    zvResult right(3);
    left.setMessage("one");
    left.setAdditionalInformation("two");
    EXPECT_TRUE(left == right);
    right.setFileTransferFailure();
    EXPECT_TRUE(left != right);
    right = left;
    EXPECT_EQ(right.getMessage(), "one");
    EXPECT_EQ(right.getAdditionalInformation(), "two");
}

TEST(zvExceptionTest, CarriesAResultOrAMessage) {
    zvResult result(4);
    result.setMessage("in the result");
    zvException exception(result);
    EXPECT_TRUE(exception.getMessage().empty());
    EXPECT_EQ(exception.getResult().getMessage(), "in the result");
    exception = zvException(zvString("own"));
    EXPECT_EQ(exception.getMessage(), "own");
    EXPECT_EQ(exception.getResult().getResult(), -1);
}

}  // namespace
