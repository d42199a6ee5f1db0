// The program of this test replaces operator new, so that any allocation can be made to fail.
#include <cstdlib>
#include <new>

#include "zvCharString.h"
#include "zvString.h"
#include "zvTestSupport.h"

namespace {

// How many allocations succeed before one fails; negative: all of them.
int allocationsLeft = -1;

bool mayAllocate() { return allocationsLeft < 0 || allocationsLeft-- > 0; }

}  // namespace

void* operator new(std::size_t size) {
    void* const memory = mayAllocate() ? std::malloc(size == 0 ? 1 : size) : nullptr;
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return mayAllocate() ? std::malloc(size == 0 ? 1 : size) : nullptr;
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return ::operator new(size, std::nothrow);
}

void* operator new[](std::size_t size) { return ::operator new(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

// Made before any fault, so that only the operation under test meets one.
const zvString b("b");
const zvString upperB("B");
const zvString upper("ABCB");
const zvString longer("something longer");

// Runs `operation` on a string "abcb" once for every allocation that it makes, letting that one fail. The
// string has to come out as it was, empty, or as it comes out of a run without a fault; nothing may be
// thrown.
void withEveryFault(void (*operation)(zvString&)) {
    zvString expected("abcb");
    operation(expected);
    bool faultless = false;
    for (int allowed = 0; !faultless; ++allowed) {
        zvString text("abcb");
        allocationsLeft = allowed;
        EXPECT_NO_THROW(operation(text));
        faultless = allocationsLeft >= 0;
        allocationsLeft = -1;
        EXPECT_TRUE(text.empty() || text == "abcb" || text == expected) << narrow(text);
    }
}

TEST(zvStringFault, AFailedAllocationLeavesTheStringEmptyOrUnchanged) {
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
