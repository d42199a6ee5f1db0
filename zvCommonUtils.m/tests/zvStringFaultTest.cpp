#include "zvCharString.h"
#include "zvFaultyMemory.h"
#include "zvString.h"
#include "zvTestSupport.h"

namespace {

// Constructed in advance, so that only allocations of the operation under test fail.
const zvString b("b");
const zvString upperB("B");
const zvString upper("ABCB");
const zvString longer("something longer");

// After a fault, the string has to be unchanged, empty or equal to the result without a fault; nothing may be
// thrown.
void withEveryFault(void (*operation)(zvString&)) {
    zvString expected("abcb");
    operation(expected);
    zvFaultyMemory::forEveryFault(
        [] { return zvString("abcb"); }, [operation](zvString& text) { EXPECT_NO_THROW(operation(text)); },
        [&expected](const zvString& text, bool faultless) {
            EXPECT_TRUE(text == expected || (!faultless && (text.empty() || text == "abcb"))) << narrow(text);
        });
}

TEST(zvStringFaultTest, AFailedAllocationLeavesTheStringEmptyOrUnchanged) {
    withEveryFault([](zvString& s) { s += longer; });
    withEveryFault([](zvString& s) { s += s; });
    withEveryFault([](zvString& s) { s = longer; });
    withEveryFault([](zvString& s) { s.insert(longer, 2); });
    withEveryFault([](zvString& s) { s.replace(b, longer); });
    withEveryFault([](zvString& s) { s.replaceNoCase(upperB, longer); });
    withEveryFault([](zvString& s) { s = s + s; });
    withEveryFault([](zvString& s) { s = s.substr(1, 2); });
    withEveryFault([](zvString& s) { static_cast<void>(s.getChars()); });
    withEveryFault([](zvString& s) { static_cast<void>(s.equalsIgnoreCase(upper)); });
    withEveryFault([](zvString& s) { static_cast<void>(s.findNoCase(upperB)); });
    withEveryFault([](zvString& s) { s = zvString(zvString::convertUnicodeToDouble(longer)); });
    withEveryFault([](zvString& s) { s += "narrow"; });
    withEveryFault([](zvString& s) { s = zvString(u"\u00E4", 1); });
    withEveryFault([](zvString& s) { EXPECT_NE(zvCharString(s).data(), nullptr); });
}

}  // namespace
